// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of the fields of the loads windows.
#include <cstdint>
#include <functional>
#include <string>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/units.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr double coldestWater = 0, hottestWater = 212;  // degF
constexpr double freezing = 32;                         // degF
constexpr double mostLoadFlow = 1000000;                // cfm or gpm
constexpr ByMode<double> defaultInletTemp{85, 50};
constexpr ByMode<double> defaultAirTemp{67, 70};
constexpr ByMode<double> defaultWaterTemp{55, 100};

/// Cooling's COP is shown as an EER in English units.
const Quantity energyEfficiency{
    {[](double cop) { return cop * mbtuPerKilowatt; }, [](double cop) { return cop; }},
    {[](double eer) { return eer / mbtuPerKilowatt; }, [](double cop) { return cop; }}};

std::string numbered(const std::string& name, std::size_t index) {
    return name + "(" + std::to_string(index) + ")";
}

using ZoneOnDisplay = std::function<Zone*()>;

/// A number of the zone that is on display by then; nothing while there is none.
StoredNumber ofZone(const ZoneOnDisplay& zone, const std::function<double(const Zone&)>& get,
                    const std::function<void(Zone&, double)>& set) {
    return {[zone, get] {
                const Zone* shown = zone();
                return shown == nullptr ? 0 : get(*shown);
            },
            [zone, set](double value) {
                if (Zone* shown = zone()) set(*shown, value);
            }};
}

/// The same for a pump's value by mode.
StoredNumber ofPump(const ZoneOnDisplay& zone, ByMode<double> MiniPump::*member, std::size_t m) {
    return ofZone(
        zone, [member, m](const Zone& of) { return (of.pump.*member)[m]; },
        [member, m](Zone& of, double value) { (of.pump.*member)[m] = value; });
}

}  // namespace

void ZoneWindow::addFields() {
    fields().setManner({.codeIsWriting = [this] { return settingUnits; },
                        .units = [this] { return units(); },
                        .changed = [this] { markChanged(); },
                        .anyErrorStoresZero = false});
    addLoadsFields();
    addPumpFields();
    addDetailsFields();
    addConditionFields();
}

void ZoneWindow::addLoadsFields() {
    const auto zone = [this] { return shownZone(); };
    for (const Mode m : modes)
        for (std::size_t block = 0; block < timeBlocks; ++block)
            fields().add({.control = numbered("LOGainsText", m * timeBlocks + block),
                          .stored = ofZone(
                              zone, [m, block](const Zone& of) { return of.gains[block][m]; },
                              [m, block](Zone& of, double x) { of.gains[block][m] = x; }),
                          .quantity = &quantities::load});
    for (const Mode m : modes)
        fields().add({.control = numbered("LOHoursText", m),
                      .stored = ofZone(
                          zone, [m](const Zone& of) { return of.hours[m]; },
                          [m](Zone& of, double x) { of.hours[m] = toInteger(x); }),
                      .format = "###0"});
    fields().add(
        {.control = "LODaysperWeekText",
         .stored = ofZone(
             zone, [](const Zone& of) { return of.days; }, [](Zone& of, double x) { of.days = x; }),
         .highest = 7,
         .fallback = 7,
         .unparsable = -1});
}

void ZoneWindow::addPumpFields() {
    const auto zone = [this] { return shownZone(); };
    const auto typed = [this] { figureTyped(); };
    fields().add({.control = "LONumberOfUnitsText(1)",
                  .stored = ofZone(
                      zone, [](const Zone& of) { return of.pump.number; },
                      [](Zone& of, double x) { of.pump.number = toInteger(x); }),
                  .lowest = 1,
                  .fallback = 1,
                  .format = "###0",
                  .changed = [this] { showUnitsToSelect(); }});
    for (const Mode m : modes) {
        fields().add({.control = numbered("LOCapacityText", m),
                      .stored = ofPump(zone, &MiniPump::capacity, m),
                      .quantity = &quantities::load,
                      .changed = typed});
        fields().add({.control = numbered("LOPowerText", m),
                      .stored = ofPump(zone, &MiniPump::watts, m),
                      .format = "###0.00",
                      .changed = typed});
        fields().add({.control = numbered("LOCOPText", m),
                      .stored = ofPump(zone, &MiniPump::efficiency, m),
                      .quantity = m == cooling ? &energyEfficiency : &quantities::plain,
                      .changed = typed});
        fields().add({.control = numbered("LOFlowRateText", m),
                      .stored = ofPump(zone, &MiniPump::flowRate, m),
                      .quantity = &quantities::waterFlow,
                      .changed = typed});
        fields().add({.control = numbered("LOPLFText", m),
                      .stored = ofPump(zone, &MiniPump::plf, m),
                      .highest = 1,
                      .format = "###0.00",
                      .ifAbove = 1,
                      .changed = typed});
    }
}

/// Two fields for each value: one in the frame for air, one in the frame for water.
void ZoneWindow::addDetailsFields() {
    const auto zone = [this] { return shownZone(); };
    for (std::size_t i = 0; i < 4; ++i) {
        const bool air = i < 2;
        const std::size_t m = i % 2;
        fields().add({.control = numbered("LOInletLoadsTempText", i),
                      .stored = ofPump(zone, &MiniPump::elt, m),
                      .quantity = &quantities::temperature,
                      .lowest = coldestWater,
                      .highest = hottestWater,
                      .fallback = air ? defaultAirTemp[m] : defaultWaterTemp[m]});
        fields().add({.control = numbered("LOInletLoadsFlowText", i),
                      .stored = ofPump(zone, &MiniPump::elf, m),
                      .quantity = air ? &quantities::airFlow : &quantities::waterFlow,
                      .highest = mostLoadFlow,
                      .format = air ? "###0" : "###0.0"});
    }
}

void ZoneWindow::addConditionFields() {
    for (const Mode m : modes)
        fields().add({.control = numbered("LOInletTempText", m),
                      .stored = &inletTemp[m],
                      .quantity = &quantities::temperature,
                      .lowest = coldestWater,
                      .highest = hottestWater,
                      .fallback = defaultInletTemp[m],
                      .left = [this, m] { takeFreezingPoint(m); }});
    fields().add({.control = "FLFlowRateText",
                  .stored = &flowRate,
                  .quantity = &quantities::waterFlow,
                  .highest = 212,
                  .fallback = 3,
                  .lowestIsRefused = true});
    for (std::size_t i = 0; i < 4; ++i) {
        const bool air = i < 2;
        const std::size_t m = i % 2;
        fields().add({.control = numbered("HPLoadInletText", i),
                      .stored = air ? &inletLoadAirTemp[m] : &inletLoadWaterTemp[m],
                      .quantity = &quantities::temperature,
                      .lowest = coldestWater,
                      .highest = hottestWater,
                      .fallback = air ? defaultAirTemp[m] : defaultWaterTemp[m]});
    }
}

void ZoneWindow::SetFluidsTabbedPaneSwitchVariables() {
    showUnitCaptions();
    for (const char* prefix : {"LOInletTemp", "FLFlowRate", "HPLoadInlet"})
        fields().showAll(prefix);
}

/// A 0 that is still shown as 0 means the freezing point, which is 0 degC.
void ZoneWindow::takeFreezingPoint(std::size_t mode) {
    const std::string name = numbered("LOInletTempText", mode);
    if (inletTemp[mode] != 0 || leadingNumber(control(name).text()) != 0) return;
    inletTemp[mode] = freezing;
    fields().show(name);
    markChanged();
}

void ZoneWindow::hookTexts() {
    const auto text = [this](const std::string& name, const std::function<void(Zone&)>& take) {
        onChange(name, [this, take] {
            Zone* zone = shownZone();
            if (settingUnits || zone == nullptr) return;
            take(*zone);
            markChanged();
        });
    };
    text("LOZoneReferenceText",
         [this](Zone& zone) { zone.title = control("LOZoneReferenceText").text(); });
    text("LOPumpNameText",
         [this](Zone& zone) { zone.pump.name = control("LOPumpNameText").text(); });
    for (const Mode m : modes) {
        const std::string name = numbered("LOInletTempText", m);
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
