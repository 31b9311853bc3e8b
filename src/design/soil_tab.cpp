// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/soil_tab.h"

#include <algorithm>

#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {

SoilTab::SoilTab(GroundDesign& design, SoilValues& soil) : DesignTab(design) {
    addFrame("SOSoilFrame", Text::soilTemperaturesAndProperties);
    addGroundTemp(soil.groundTemp);
    addProperties(soil);
}

void SoilTab::addGroundTemp(double& groundTemp, const Changed& changed) {
    addFrame("SOGroundTempFrame", Text::undisturbedGroundTemperature, "SOSoilFrame");
    addField({.control = "SOGroundTempText",
              .stored = &groundTemp,
              .quantity = &quantities::temperature,
              .highest = 212,
              .fallback = 62,
              .beside = {.frame = "SOGroundTempFrame",
                         .label = "SOGroundTempLabel",
                         .caption = {Text::groundTemperature, Text::groundTemperature},
                         .unitLabel = "SOGroundTempUnitsLabel",
                         .unit = {Text::groundTemperatureUnitsEnglish,
                                  Text::groundTemperatureUnitsMetric},
                         .help = "borehole#soil"},
              .changed = changed});
}

void SoilTab::addProperties(SoilValues& soil, const Changed& changed) {
    addFrame("SOPropertiesFrame", Text::soilThermalProperties, "SOSoilFrame");
    addField({.control = "SOThermalConductivityText",
              .stored = &soil.conductivity,
              .quantity = &quantities::conductivity,
              .highest = 1000.0,
              .fallback = 1.3,
              .format = "###0.00",
              .beside = {.frame = "SOPropertiesFrame",
                         .label = "SOThermalConductivityLabel",
                         .caption = {Text::thermalConductivity, Text::thermalConductivity},
                         .unitLabel = "SOThermalConductivityUnitsLabel",
                         .unit = {Text::thermalConductivityUnitsEnglish,
                                  Text::thermalConductivityUnitsMetric},
                         .help = "borehole#soil"},
              .changed = changed});
    addField({.control = "SOThermalDiffusivityText",
              .stored = &soil.diffusivity,
              .quantity = &quantities::diffusivity,
              .highest = 1000.0,
              .fallback = 0.75,
              .format = "###0.00",
              .metricFormat = "###0.000",
              .beside = {.frame = "SOPropertiesFrame",
                         .label = "SOThermalDiffusivityLabel",
                         .caption = {Text::thermalDiffusivity, Text::thermalDiffusivity},
                         .unitLabel = "SOThermalDiffusivityUnitsLabel",
                         .unit = {Text::thermalDiffusivityUnitsEnglish,
                                  Text::thermalDiffusivityUnitsMetric},
                         .help = "borehole#soil"},
              .changed = changed});
    addMenuButton("SOSoilCommand(0)", "SOPropertiesFrame", Text::diffusivityButton, "mnuDiffCalc");
    addMenuButton("SOSoilCommand(1)", "SOPropertiesFrame", Text::soilTablesButton,
                  "SoilProperties");
}

void SoilTab::addSwing(double& airTempSwing, ByMode<std::int16_t>& extremeDay,
                       const Changed& changed, const std::string& help) {
    const std::string frame = "SOCorrectionFrame";
    addFrame(frame, Text::groundTemperatureCorrections, "SOSoilFrame");
    addField({.control = "SOAirTempSwingText",
              .stored = &airTempSwing,
              .quantity = &quantities::temperatureDifference,
              .highest = 212,
              .fallback = 22,
              .beside = {.frame = frame,
                         .label = "SOAirTempSwingLabel",
                         .caption = {Text::airTemperatureSwing, Text::airTemperatureSwing},
                         .unitLabel = "SOSwingdegCLabel",
                         .unit = {Text::groundTemperatureUnitsEnglish,
                                  Text::groundTemperatureUnitsMetric},
                         .help = help},
              .changed = changed});
    add("SODayLabel", ControlKind::label, frame, Text::extremeDays);
    for (const Mode mode : modes) addExtremeDay(mode, extremeDay[mode], frame, changed, help);
    addMenuButton("SOSwingTableCommand", frame, Text::swingTableButton, "SoilProperties");
}

/// No day is day 0: a field left at it takes the day that stands for none entered.
void SoilTab::addExtremeDay(Mode mode, std::int16_t& day, const std::string& frame,
                            const Changed& changed, const std::string& help) {
    constexpr std::int16_t unknownDay = 34;
    const ByMode<int> seasons{Text::summer, Text::winter};
    const std::string field = elementName("SODayText", mode);
    addField({.control = field,
              // A number that no day can hold is out of range like any other.
              .stored = {[&day] { return static_cast<double>(day); },
                         [&day](double typed) { day = toInteger(std::clamp(typed, -1.0, 366.0)); }},
              .highest = 365,
              .fallback = unknownDay,
              .format = "###0",
              .beside = {.frame = frame,
                         .label = elementName("SOSeasonLabel", mode),
                         .caption = {seasons[mode], seasons[mode]},
                         .help = help,
                         .accessible = Text::extremeDays,
                         .distinction = seasons[mode]},
              .changed = changed,
              .left = [this, &day, field, changed] {
                  if (day != 0) return;
                  day = unknownDay;
                  design().fields().show(field);
                  if (changed) changed();
                  design().calculationNeeded();
              }});
}

}  // namespace varnholt
