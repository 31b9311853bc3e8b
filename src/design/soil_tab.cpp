// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/soil_tab.h"

#include "design/ground_design.h"
#include "forms/text_numbers.h"

namespace varnholt {

SoilTab::SoilTab(GroundDesign& design, SoilValues& soil) : DesignTab(design) {
    addFrame("SOSoilFrame", Text::soilTemperaturesAndProperties);
    addFrame("SOGroundTempFrame", Text::undisturbedGroundTemperature, "SOSoilFrame");
    addField({.control = "SOGroundTempText",
              .stored = &soil.groundTemp,
              .quantity = &quantities::temperature,
              .highest = 212,
              .fallback = 62,
              .beside = {
                  .frame = "SOGroundTempFrame",
                  .label = "SOGroundTempLabel",
                  .caption = {Text::groundTemperature, Text::groundTemperature},
                  .unitLabel = "SOGroundTempUnitsLabel",
                  .unit = {Text::groundTemperatureUnitsEnglish, Text::groundTemperatureUnitsMetric},
                  .help = "borehole#soil"}});
    addFrame("SOPropertiesFrame", Text::soilThermalProperties, "SOSoilFrame");
    addProperties(soil);
    addMenuButton("SOSoilCommand(0)", "SOPropertiesFrame", Text::diffusivityButton, "mnuDiffCalc");
    addMenuButton("SOSoilCommand(1)", "SOPropertiesFrame", Text::soilTablesButton,
                  "SoilProperties");
}

void SoilTab::addProperties(SoilValues& soil) {
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
                         .help = "borehole#soil"}});
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
                         .help = "borehole#soil"}});
}

}  // namespace varnholt
