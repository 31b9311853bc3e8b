// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the loads windows: each row declares all that there is to a field.
#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/units.h"
#include "forms/text_numbers/loads.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr double coldestWater = 0, hottestWater = 212;  // degF
constexpr double largestInteger = std::numeric_limits<std::int16_t>::max();
constexpr double freezing = 32;           // degF
constexpr double mostLoadFlow = 1000000;  // cfm or gpm
constexpr ByMode<double> defaultInletTemp{85, 50};
constexpr ByMode<double> defaultAirTemp{67, 70};
constexpr ByMode<double> defaultWaterTemp{55, 100};
constexpr ByMode<int> modeTexts{Text::cooling, Text::heating};
constexpr std::array<int, timeBlocks> timeTexts{Text::blockEightToNoon, Text::blockNoonToFour,
                                                Text::blockFourToEight, Text::blockEightToEight};
constexpr UnitTexts degrees{Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric};

/// Cooling's COP is shown as an EER in English units.
const Quantity energyEfficiency{
    {[](double cop) { return cop * mbtuPerKilowatt; }, [](double cop) { return cop; }},
    {[](double eer) { return eer / mbtuPerKilowatt; }, [](double cop) { return cop; }}};

/// The zone on display by then, to read and to write to; null while there is none.
struct ZoneOnDisplay {
    std::function<const Zone*()> shown;
    std::function<Zone*()> edited;
};

/// A number of that zone; 0 while there is none.
StoredNumber ofZone(const ZoneOnDisplay& zone, const std::function<double(const Zone&)>& get,
                    const std::function<void(Zone&, double)>& set, double largest = 1e308) {
    return {[zone, get] {
                const Zone* shown = zone.shown();
                return shown == nullptr ? 0 : get(*shown);
            },
            [zone, set](double value) {
                if (Zone* edited = zone.edited()) set(*edited, value);
            },
            largest};
}

/// The same for a pump's value by mode.
StoredNumber ofPump(const ZoneOnDisplay& zone, ByMode<double> MiniPump::*member, std::size_t m) {
    return ofZone(
        zone, [member, m](const Zone& of) { return (of.pump.*member)[m]; },
        [member, m](Zone& of, double value) { (of.pump.*member)[m] = value; });
}

}  // namespace

void ZoneWindow::setFieldManner() {
    fields().setManner({.codeIsWriting = [this] { return settingUnits; },
                        .units = [this] { return units(); },
                        .changed = [this] { markChanged(); },
                        .anyErrorStoresZero = false});
}

void ZoneWindow::addLoadsFrame() {
    const std::string frame = "LODesignLoadsFrame";
    add(frame, ControlKind::frame, Text::loadingInformation).in("LOZoneFrame");
    add("LOZoneReferenceLabel", ControlKind::label, Text::referenceLabel).in(frame);
    add("LOZoneReferenceText", ControlKind::text)
        .in(frame)
        .captionedBy("LOZoneReferenceLabel")
        .helpedBy("loads#zone");
    add("LOLoadsLabel(0)", ControlKind::label, Text::designDayLoads).in(frame);
    add("LOTimeOfDayLabel", ControlKind::label, Text::timeOfDay).in(frame);
    addGainsFields();
    add("LOLoadsChart", ControlKind::image, Text::zoneDayChart).in(frame);
    addHoursFields();
    add("LOEqvHoursCommand", ControlKind::button, Text::calculateHours).in(frame);
}

/// Heat gains in the fields 0 to 3, heat losses in 4 to 7.
void ZoneWindow::addGainsFields() {
    const ZoneOnDisplay zone{[this] { return shownZone(); }, [this] { return editShownZone(); }};
    const std::string frame = "LODesignLoadsFrame";
    const ByMode<std::string> labels{"LOHeatGainsLabel", "LOHeatLossesLabel"};
    const ByMode<std::string> units{"LOHeatGainsUnitLabel", "LOHeatLossesUnitLabel"};
    const ByMode<int> captions{Text::heatGains, Text::heatLosses};
    for (const Mode m : modes) {
        add(labels[m], ControlKind::label, captions[m]).in(frame);
        add(units[m], ControlKind::label).in(frame);
    }
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        add(elementName("LOTimeLabel", block), ControlKind::label, timeTexts[block]).in(frame);
        for (const Mode m : modes)
            addField({.control = elementName("LOGainsText", m * timeBlocks + block),
                      .stored = ofZone(
                          zone, [m, block](const Zone& of) { return of.gains[block][m]; },
                          [m, block](Zone& of, double x) { of.gains[block][m] = x; }),
                      .quantity = &quantities::load,
                      .beside = {.frame = frame,
                                 .label = labels[m],
                                 .unitLabel = units[m],
                                 .unit = {Text::loadUnitsEnglish, Text::loadUnitsMetric},
                                 .help = "loads#zone",
                                 .distinction = timeTexts[block]}});
    }
}

void ZoneWindow::addHoursFields() {
    const ZoneOnDisplay zone{[this] { return shownZone(); }, [this] { return editShownZone(); }};
    for (const Mode m : modes)
        addField({.control = elementName("LOHoursText", m),
                  .stored = ofZone(
                      zone, [m](const Zone& of) { return of.hours[m]; },
                      [m](Zone& of, double x) { of.hours[m] = toInteger(x); }, largestInteger),
                  .format = "###0",
                  .beside = {.frame = "LODesignLoadsFrame",
                             .label = "LOLoadsLabel(1)",
                             .caption = {kind_.hoursText, kind_.hoursText},
                             .help = "loads#zone",
                             .distinction = modeTexts[m]}});
    addField(
        {.control = "LODaysperWeekText",
         .stored = ofZone(
             zone, [](const Zone& of) { return of.days; }, [](Zone& of, double x) { of.days = x; }),
         .highest = 7,
         .fallback = 7,
         .beside = {.frame = "LODesignLoadsFrame",
                    .label = "LODaysperWeekLabel",
                    .caption = {Text::daysOccupiedPerWeek, Text::daysOccupiedPerWeek},
                    .help = "loads#zone"},
         .unparsable = -1});
}

void ZoneWindow::addSpecificationsFrame() {
    const std::string frame = "LOSpecificationsFrame";
    add(frame, ControlKind::frame, Text::heatPumpSpecifications).in("LOZoneFrame");
    add("LOPumpNameLabel", ControlKind::label, kind_.pumpNameText).in(frame);
    add("LOPumpNameText", ControlKind::text)
        .in(frame)
        .captionedBy("LOPumpNameLabel")
        .helpedBy("loads#pump");
    addUnitsField();
    add("LOCoolingLabel", ControlKind::label, Text::cooling).in(frame);
    add("LOHeatingLabel", ControlKind::label, Text::heating).in(frame);
    addFigureFields();
}

void ZoneWindow::addUnitsField() {
    const ZoneOnDisplay zone{[this] { return shownZone(); }, [this] { return editShownZone(); }};
    addField({.control = "LONumberOfUnitsText(1)",
              .stored = ofZone(
                  zone, [](const Zone& of) { return of.pump.number; },
                  [](Zone& of, double x) { of.pump.number = toInteger(x); }, largestInteger),
              .lowest = 1,
              .fallback = 1,
              .format = "###0",
              .beside = {.frame = "LOSpecificationsFrame",
                         .label = "LONumberOfUnitsLabel(1)",
                         .caption = {Text::numberOfUnitsSign, Text::numberOfUnitsSign},
                         .help = "loads#pump",
                         .accessible = Text::numberOfUnits},
              .changed = [this] { showUnitsToSelect(); }});
}

/// What a pump does, in cooling and in heating.
void ZoneWindow::addFigureFields() {
    struct Figure {
        const char* name;
        UnitTexts caption;
        ByMode<double> MiniPump::*member;
        ByMode<const Quantity*> quantity;
        const char* format;
        std::optional<double> highest;
    };
    const Quantity* load = &quantities::load;
    const Quantity* plain = &quantities::plain;
    const Quantity* flow = &quantities::waterFlow;
    const Figure figures[] = {
        {"LOCapacity",
         {Text::zonePumpCapacityEnglish, Text::zonePumpCapacityMetric},
         &MiniPump::capacity,
         {load, load},
         "###0.0",
         {}},
        {"LOPower",
         {Text::zonePumpPower, Text::zonePumpPower},
         &MiniPump::watts,
         {plain, plain},
         "###0.00",
         {}},
        {"LOCOP",
         {Text::zonePumpCopEnglish, Text::zonePumpCopMetric},
         &MiniPump::efficiency,
         {&energyEfficiency, plain},
         "###0.0",
         {}},
        {"LOFlowRate",
         {Text::zonePumpFlowRateEnglish, Text::zonePumpFlowRateMetric},
         &MiniPump::flowRate,
         {flow, flow},
         "###0.0",
         {}},
        {"LOPLF",
         {Text::partialLoadFactor, Text::partialLoadFactor},
         &MiniPump::plf,
         {plain, plain},
         "###0.00",
         1},
    };
    const ZoneOnDisplay zone{[this] { return shownZone(); }, [this] { return editShownZone(); }};
    for (const Figure& figure : figures)
        for (const Mode m : modes)
            addField({.control = elementName(figure.name + std::string("Text"), m),
                      .stored = ofPump(zone, figure.member, m),
                      .quantity = figure.quantity[m],
                      .highest = figure.highest.value_or(1e308),
                      .format = figure.format,
                      .beside = {.frame = "LOSpecificationsFrame",
                                 .label = figure.name + std::string("Label"),
                                 .caption = figure.caption,
                                 .help = "loads#pump",
                                 .distinction = modeTexts[m]},
                      .ifAbove = figure.highest,
                      .changed = [this] { figureTyped(); }});
}

/// @param first index of the frame's cooling fields; its heating fields follow
void ZoneWindow::addLoadSideFrame(const std::string& frame, int captionText, int first) {
    add(frame, ControlKind::frame, captionText).in("LODetailsFrame");
    for (const Mode m : modes)
        add(elementName("LOInletLoadsModeLabel", static_cast<std::size_t>(first) + m),
            ControlKind::label, modeTexts[m])
            .in(frame);
    addLoadSideFields(frame, static_cast<std::size_t>(first));
}

/// Two fields for each value: one in the frame for air, one in the frame for water.
void ZoneWindow::addLoadSideFields(const std::string& frame, std::size_t first) {
    const ZoneOnDisplay zone{[this] { return shownZone(); }, [this] { return editShownZone(); }};
    const bool air = first == 0;
    const auto beside = [&](const char* name, int caption, const UnitTexts& unit, Mode m) {
        return FieldCompanions{.frame = frame,
                               .label = elementName(name + std::string("Label"), first),
                               .caption = {caption, caption},
                               .unitLabel = elementName(name + std::string("UnitLabel"), first),
                               .unit = unit,
                               .help = "loads#details",
                               .distinction = modeTexts[m]};
    };
    for (const Mode m : modes)
        addField({.control = elementName("LOInletLoadsTempText", first + m),
                  .stored = ofPump(zone, &MiniPump::elt, m),
                  .quantity = &quantities::temperature,
                  .lowest = coldestWater,
                  .highest = hottestWater,
                  .fallback = air ? defaultAirTemp[m] : defaultWaterTemp[m],
                  .beside = beside("LOInletLoadsTemp", Text::loadSideTemperature, degrees, m)});
    for (const Mode m : modes)
        addField({.control = elementName("LOInletLoadsFlowText", first + m),
                  .stored = ofPump(zone, &MiniPump::elf, m),
                  .quantity = air ? &quantities::airFlow : &quantities::waterFlow,
                  .highest = mostLoadFlow,
                  .format = air ? "###0" : "###0.0",
                  .beside = beside(
                      "LOInletLoadsFlow", Text::loadSideFlow,
                      air ? UnitTexts{Text::airFlowUnitsEnglish, Text::airFlowUnitsMetric}
                          : UnitTexts{Text::waterFlowUnitsEnglish, Text::waterFlowUnitsMetric},
                      m)});
}

void ZoneWindow::addConditionsFrame() {
    const std::string frame = "HPDesignFrame";
    add(frame, ControlKind::frame, Text::designConditions);
    add("HPCoolingLabel", ControlKind::label, Text::cooling).in(frame);
    add("HPHeatingLabel", ControlKind::label, Text::heating).in(frame);
    addTemperatureFields();
    addFlowField();
    add("HPInletAirFrame", ControlKind::frame, Text::inletAirTemperatures).in(frame);
    add("HPInletWaterFrame", ControlKind::frame, Text::enteringWaterTemperatures).in(frame);
    for (std::size_t i = 0; i < 4; ++i)
        addLoadTempField(i < 2 ? "HPInletAirFrame" : "HPInletWaterFrame", i);
}

void ZoneWindow::addTemperatureFields() {
    for (const Mode m : modes)
        addField({.control = elementName("LOInletTempText", m),
                  .stored = &designConditions().inletTemp[m],
                  .quantity = &quantities::temperature,
                  .lowest = coldestWater,
                  .highest = hottestWater,
                  .fallback = defaultInletTemp[m],
                  .beside = {.frame = "HPDesignFrame",
                             .label = "LOInletTempLabel",
                             .caption = {Text::sourceInletTemperatureEnglish,
                                         Text::sourceInletTemperatureMetric},
                             .help = "loads#conditions",
                             .distinction = modeTexts[m]},
                  .left = [this, m] { takeFreezingPoint(m); }});
}

void ZoneWindow::addFlowField() {
    addField(
        {.control = "FLFlowRateText",
         .stored = &designConditions().flowRate,
         .quantity = &quantities::waterFlow,
         .highest = 212,
         .fallback = 3,
         .beside = {.frame = "HPDesignFrame",
                    .label = "FLFlowRateLabel",
                    .caption = {Text::sourceFlowRate, Text::sourceFlowRate},
                    .unitLabel = "FLFlowRateUnitLabel",
                    .unit = {Text::sourceFlowRateUnitsEnglish, Text::sourceFlowRateUnitsMetric},
                    .help = "loads#conditions"},
         .lowestIsRefused = true});
}

/// Cooling and heating with air in the fields 0 and 1, with water in 2 and 3.
void ZoneWindow::addLoadTempField(const std::string& frame, std::size_t index) {
    constexpr int captions[] = {Text::coolingWetBulb, Text::heatingDryBulb, Text::cooling,
                                Text::heating};
    DesignConditions& conditions = designConditions();
    const bool air = index < 2;
    const std::size_t m = index % 2;
    addField({.control = elementName("HPLoadInletText", index),
              .stored = air ? &conditions.inletLoadAirTemp[m] : &conditions.inletLoadWaterTemp[m],
              .quantity = &quantities::temperature,
              .lowest = coldestWater,
              .highest = hottestWater,
              .fallback = air ? defaultAirTemp[m] : defaultWaterTemp[m],
              .beside = {.frame = frame,
                         .label = elementName("HPLoadInletLabel", index),
                         .caption = {captions[index], captions[index]},
                         .unitLabel = elementName("HPLoadInletUnitLabel", index),
                         .unit = degrees,
                         .help = "loads#conditions"}});
}

void ZoneWindow::SetFluidsTabbedPaneSwitchVariables() {
    fields().showCaptions();
    for (const char* prefix : {"LOInletTemp", "FLFlowRate", "HPLoadInlet"})
        fields().showAll(prefix);
}

/// A 0 that is still shown as 0 means the freezing point, which is 0 degC.
void ZoneWindow::takeFreezingPoint(std::size_t mode) {
    const std::string name = elementName("LOInletTempText", mode);
    double& temperature = designConditions().inletTemp[mode];
    if (temperature != 0 || leadingNumber(control(name).text()) != 0) return;
    temperature = freezing;
    fields().show(name);
    markChanged();
}

void ZoneWindow::hookTexts() {
    const auto text = [this](const std::string& name, const std::function<void(Zone&)>& take) {
        onChange(name, [this, take] {
            if (settingUnits || shownZone() == nullptr) return;
            take(*editShownZone());
            markChanged();
        });
    };
    text("LOZoneReferenceText",
         [this](Zone& zone) { zone.title = control("LOZoneReferenceText").text(); });
    text("LOPumpNameText",
         [this](Zone& zone) { zone.pump.name = control("LOPumpNameText").text(); });
    for (const Mode m : modes) {
        const std::string name = elementName("LOInletTempText", m);
        onKey(name, [this, name](const std::string& key) {
            if (key == "Enter") fields().left(name);
            if (key == "Ctrl+V") type(name, platform().clipboard());
        });
    }
    onLeave("LONumberOfUnitsText(0)", [this] {
        const double units = leadingNumber(control("LONumberOfUnitsText(0)").text());
        control("LONumberOfUnitsText(0)").setText(formatNumber(units < 1 ? 1 : units, "###0"));
    });
}

}  // namespace varnholt
