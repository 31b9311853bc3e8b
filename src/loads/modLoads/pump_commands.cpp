// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pump of the zone on display: its figures, its details, its evaluation.
#include <algorithm>
#include <utility>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/loads.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr const char* figures[] = {"LOCapacityText", "LOPowerText", "LOCOPText", "LOFlowRateText",
                                   "LOPLFText"};
constexpr const char* detailFields[] = {"LOInletLoadsTempText", "LOInletLoadsFlowText"};

/// A pump that was made a custom one, which a zone that only waits for its pump is not: it has
/// figures that were typed in, or a name without a series.
bool isCustom(const MiniPump& pump) {
    const auto any = [](const ByMode<double>& values) { return values[0] != 0 || values[1] != 0; };
    const bool hasFigures = any(pump.capacity) || any(pump.watts) || any(pump.efficiency) ||
                            any(pump.flowRate) || any(pump.plf);
    const bool named = !pump.name.empty() && pump.mfgName.empty() && pump.seriesName.empty();
    return pump.customPump == 1 && (hasFigures || named);
}

}  // namespace

void ZoneWindow::hookPumpCommands() {
    onClick("LOSelectCommand", [this] { LOSelectCommand_Click(); });
    onClick("LOMfgCombo", [this] { LOMfgCombo_Click(); });
    onClick("LOSeriesCombo", [this] { LOSeriesCombo_Click(); });
    onClick("LOSelectPumpCommand", [this] { LOSelectPumpCommand_Click(); });
    onClick("LOCancelCommand", [this] { LOCancelCommand_Click(); });
    onClick("LODetailsCommand", [this] { LODetailsCommand_Click(); });
    onClick("LOReturnCommand", [this] { LOReturnCommand_Click(); });
    onClick("LOClearPumpsCommand", [this] { LOClearPumpsCommand_Click(); });
    onClick("LOCustomPumpCheck", [this] { LOCustomPumpCheck_Click(); });
    onClick("LOUpdatePumpsCommand", [this] { LOUpdatePumpsCommand_Click(); });
    onClick("HPManufacturerCombo", [this] { HPManufacturerCombo_Click(); });
    onClick("HPSeriesCombo", [this] { HPSeriesCombo_Click(); });
}

void ZoneWindow::SetPumpValues(const pump& model, std::int16_t units, std::size_t zoneIndex) {
    const Zone& zone = at(ZoneList(), static_cast<std::ptrdiff_t>(zoneIndex));
    MiniPump pump = evaluated(model, units, zone);
    zones().edit(zoneIndex).pump = std::move(pump);
    insideChange = false;
    markChanged();
    if (selectedZone() == static_cast<int>(zoneIndex)) displayZone();
}

void ZoneWindow::displayPump() {
    const MiniPump& shown = shownZone()->pump;
    control("LOPumpNameText").setText(shown.name);
    for (const char* prefix : {"LONumber", "LOCapacity", "LOPower", "LOCOP", "LOFlow", "LOPLF"})
        fields().showAll(prefix);
    showUnitsToSelect();
    control("LOCustomPumpCheck").setChecked(isCustom(shown));
    showDetails(shown);
    freeFields(shown);
}

/// The figures are typed for a custom pump only, the load side for a pump of the catalogue.
void ZoneWindow::freeFields(const MiniPump& shown) {
    const bool figuresLocked = !control("LOCustomPumpCheck").checked();
    for (const char* figure : figures)
        for (int m = 0; m < 2; ++m) element(figure, m).setLocked(figuresLocked);
    const bool loadSide = shown.customPump != 1 || !control("LODetailsFrame").visible();
    for (const char* field : detailFields)
        for (int i = 0; i < 4; ++i) element(field, i).setEnabled(loadSide);
}

/// A figure that was typed makes the pump a custom one.
void ZoneWindow::figureTyped() {
    Zone* zone = editShownZone();
    if (zone == nullptr) return;
    zone->pump.customPump = 1;
    control("LOCustomPumpCheck").setChecked(true);
    showDetails(zone->pump);
}

void ZoneWindow::showUnitsToSelect() {
    control("LONumberOfUnitsText(0)").setText(control("LONumberOfUnitsText(1)").text());
}

std::int16_t ZoneWindow::typedUnits() const {
    const double typed = leadingNumber(control("LONumberOfUnitsText(0)").text());
    return std::max<std::int16_t>(1, toInteger(typed));
}

void ZoneWindow::showDetails(const MiniPump& shown) {
    const bool custom = control("LOCustomPumpCheck").checked();
    const bool air = shown.pumpType == 0;
    const bool metric = units() == UnitSystem::metric;
    element("LODetailsTextLabel", 0).setCaption(shown.mfgName);
    element("LODetailsTextLabel", 1).setCaption(shown.seriesName);
    element("LODetailsTextLabel", 2)
        .setCaption(text(custom ? Text::customPump
                         : air  ? Text::waterToAir
                                : Text::waterToWater));
    control("LOInletAirFrame").setVisible(air);
    control("LOInletWaterFrame").setVisible(!air);
    for (const char* field : detailFields) fields().showAll(field);
    const Quantity& flow = air ? quantities::airFlow : quantities::waterFlow;
    control("LONominalFlowText")
        .setText(formatNumber(flow.shown(shown.nominalFlow, units()), air ? "###0" : "###0.0"));
    const int unitText = air ? (metric ? Text::airFlowUnitsMetric : Text::airFlowUnitsEnglish)
                             : (metric ? Text::waterFlowUnitsMetric : Text::waterFlowUnitsEnglish);
    control("LONominalFlowUnitLabel").setCaption(text(unitText));
}

void ZoneWindow::LODetailsCommand_Click() {
    const Zone* zone = shownZone();
    if (zone == nullptr) return;
    control("LOSelectFrame").setVisible(false);
    control("LODetailsFrame").setVisible(true);
    freeFields(zone->pump);
    if (zone->pump.customPump != 1) loadSeriesOf(zone->pump, browsedSlot);
}

/// Load conditions typed in the details enter the evaluation here.
void ZoneWindow::LOReturnCommand_Click() {
    control("LODetailsFrame").setVisible(false);
    const Zone* zone = shownZone();
    if (zone == nullptr) return;
    freeFields(zone->pump);
    if (zone->pump.customPump != 1 && loadSeriesOf(zone->pump, browsedSlot) == ZoneSeries::loaded) {
        if (const auto k = modelNamed(zone->pump.name, browsedSlot)) {
            const RaisedFlag returning(returningFromDetails), same(samePumpUpdated);
            carryLoadSide(zone->pump);
            attempt([&] {
                SetPumpValues(catalogue.PumpList(browsedSlot, *k), typedUnits(),
                              static_cast<std::size_t>(selectedZone()));
            });
        }
    }
    restoreActiveSeries(browsedSlot);
}

void ZoneWindow::carryLoadSide(const MiniPump& zonePump) {
    temporaryInletTemp = zonePump.elt;
    temporaryInletFlow = zonePump.elf;
}

std::optional<std::size_t> ZoneWindow::modelNamed(const std::string& name, SeriesSlot slot) const {
    const auto models = catalogue.models(slot);
    const auto found = std::find_if(models.begin(), models.end(),
                                    [&](const pump& model) { return model.name == name; });
    if (found == models.end()) return std::nullopt;
    return static_cast<std::size_t>(found - models.begin());
}

void ZoneWindow::LOClearPumpsCommand_Click() {
    Zone* zone = editShownZone();
    if (zone == nullptr) return;
    // The nominal flow belonged to the model that goes.
    zone->pump = MiniPump{};
    zone->pump.elt = DesignConditions{}.inletLoadAirTemp;
    markChanged();
    displayZone();
}

void ZoneWindow::LOCustomPumpCheck_Click() {
    if (settingUnits || shownZone() == nullptr) return;
    if (!control("LOCustomPumpCheck").checked()) return freeFields(shownZone()->pump);
    Zone* zone = editShownZone();
    zone->pump.customPump = 1;
    zone->pump.mfgName.clear();
    zone->pump.seriesName.clear();
    showDetails(zone->pump);
    freeFields(zone->pump);
    markChanged();
}

ZoneWindow::ZoneSeries ZoneWindow::loadSeriesOf(const MiniPump& zonePump, SeriesSlot slot) {
    const PumpSeriesInfo* series = catalogue.find(zonePump.mfgName, zonePump.seriesName);
    if (series == nullptr) return ZoneSeries::unlisted;
    return loadSeries(zonePump.mfgName, *series, slot) ? ZoneSeries::loaded
                                                       : ZoneSeries::unreadable;
}

bool ZoneWindow::loadSeries(const std::string& mfgName, const PumpSeriesInfo& series,
                            SeriesSlot slot) {
    return catalogue.holds(slot, mfgName, series.seriesName) ||
           catalogue.readPumps(series.FileName, slot);
}

bool ZoneWindow::holdsActiveSeries(SeriesSlot slot) const {
    const auto models = catalogue.models(slot);
    return !models.empty() &&
           models[0].mfgInfo.mfgName + models[0].seriesInfo.seriesName == activeSeries();
}

void ZoneWindow::restoreActiveSeries(SeriesSlot slot) {
    if (!holdsActiveSeries(slot)) catalogue.readActiveSeries(slot);
}

void ZoneWindow::tellSeriesMissing(const Zone& zone) {
    show(MessageIcon::exclamation,
         text(Text::zone) + " " + numberOfZone(zone) + " " + text(Text::pumpNoLongerListed));
}

}  // namespace varnholt
