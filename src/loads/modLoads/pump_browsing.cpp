// SPDX-License-Identifier: GPL-3.0-or-later
// Browsing the catalogue: in the selection panel for one zone, on the heat pump tab for all.
#include <algorithm>

#include "basis/raised_flag.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {

/// In the catalogue's order, each once.
std::vector<std::string> ZoneWindow::manufacturerNames() const {
    std::vector<std::string> names;
    for (const PumpList& manufacturer : catalogue.vhtPumpNames())
        if (std::find(names.begin(), names.end(), manufacturer.mfgInfo.mfgName) == names.end())
            names.push_back(manufacturer.mfgInfo.mfgName);
    return names;
}

std::vector<std::string> ZoneWindow::seriesNames(const std::string& mfgName) const {
    std::vector<std::string> names;
    for (const PumpSeriesInfo* series : catalogue.seriesOf(mfgName))
        names.push_back(series->seriesName);
    return names;
}

ZoneWindow::SeriesPlace ZoneWindow::placeOf(const std::string& joinedName) const {
    for (const std::string& mfgName : manufacturerNames()) {
        const std::vector<std::string> series = seriesNames(mfgName);
        for (std::size_t i = 0; i < series.size(); ++i)
            if (mfgName + series[i] == joinedName) return {mfgName, static_cast<int>(i)};
    }
    return {};
}

void ZoneWindow::showPlace(const char* makerCombo, const char* seriesCombo,
                           const SeriesPlace& place) {
    const RaisedFlag refilling(settingItems);
    const std::vector<std::string> names = manufacturerNames();
    Control& makers = control(makerCombo).setItems(names).setText({});
    Control& series = control(seriesCombo).setItems({}).setText({});
    if (place.series < 0) return;
    const auto maker = std::find(names.begin(), names.end(), place.mfgName);
    makers.setIndex(static_cast<int>(maker - names.begin()));
    series.setItems(seriesNames(place.mfgName)).setIndex(place.series);
}

const PumpSeriesInfo* ZoneWindow::chosenSeries(const char* makerCombo,
                                               const char* seriesCombo) const {
    const auto listed = catalogue.seriesOf(control(makerCombo).text());
    const int chosen = control(seriesCombo).index();
    const bool exists = chosen >= 0 && static_cast<std::size_t>(chosen) < listed.size();
    return exists ? listed[static_cast<std::size_t>(chosen)] : nullptr;
}

bool ZoneWindow::pumpsAreBeingSelected() const { return control("LOSelectFrame").visible(); }

/// Starts with the zone's own series once a pump has been selected by hand, and else with the
/// active one.
void ZoneWindow::LOSelectCommand_Click() {
    const Zone* zone = shownZone();
    if (zone == nullptr) return;
    control("LODetailsFrame").setVisible(false);
    freeFields(zone->pump);
    control("LOSelectFrame").setVisible(true);
    SeriesPlace place;
    if (beenHere && zone->pump.customPump != 1)
        place = placeOf(zone->pump.mfgName + zone->pump.seriesName);
    if (place.series < 0) place = placeOf(activeSeries());
    showPlace("LOMfgCombo", "LOSeriesCombo", place);
    browseSeries();
}

void ZoneWindow::SetUpLoadsSeriesList(int manufacturerIndex) {
    const RaisedFlag refilling(settingItems);
    const Control& makers = control("LOMfgCombo");
    Control& combo = control("LOSeriesCombo").setItems({}).setText({});
    if (manufacturerIndex < 0) return;
    combo.setItems(seriesNames(makers.items().at(static_cast<std::size_t>(manufacturerIndex))));
    if (!combo.items().empty()) combo.setIndex(0);
}

void ZoneWindow::LOMfgCombo_Click() {
    if (settingItems) return;
    SetUpLoadsSeriesList(control("LOMfgCombo").index());
    browseSeries();
}

void ZoneWindow::LOSeriesCombo_Click() {
    if (!settingItems) browseSeries();
}

/// Loads the chosen series into slot 1. A series that cannot be read has no models to choose from.
void ZoneWindow::browseSeries() {
    const PumpSeriesInfo* series = chosenSeries("LOMfgCombo", "LOSeriesCombo");
    if (series != nullptr && catalogue.readPumps(series->FileName, browsedSlot))
        showLoadsPumps(browsedSlot);
    else
        control("LOPumpNameCombo").setItems({}).setText({});
}

void ZoneWindow::showLoadsPumps(std::size_t slot) {
    std::vector<std::string> names;
    for (const pump& model : catalogue.models(slot)) names.push_back(model.name);
    const Zone* zone = shownZone();
    const auto own =
        zone == nullptr ? names.end() : std::find(names.begin(), names.end(), zone->pump.name);
    const auto chosen = own == names.end() ? 0 : static_cast<int>(own - names.begin());
    Control& combo = control("LOPumpNameCombo").setItems(names).setText({});
    if (!names.empty()) combo.setIndex(chosen);
}

void ZoneWindow::LOSelectPumpCommand_Click() {
    control("LOSelectFrame").setVisible(false);
    beenHere = true;
    const Zone* zone = shownZone();
    const PumpSeriesInfo* series = chosenSeries("LOMfgCombo", "LOSeriesCombo");
    // A new zone or another one's details may have taken the slot meanwhile.
    if (zone != nullptr && series != nullptr && control("LOPumpNameCombo").index() >= 0 &&
        loadSeries(control("LOMfgCombo").text(), *series, browsedSlot))
        selectPump(*zone);
    restoreActiveSeries(browsedSlot);
}

/// Puts the chosen model into the zone; between pumps of one type the load temperatures stay.
void ZoneWindow::selectPump(const Zone& zone) {
    const auto j = modelNamed(control("LOPumpNameCombo").text(), browsedSlot);
    if (!j) return;
    const pump& model = catalogue.PumpList(browsedSlot, *j);
    const RaisedFlag selecting(selectingPump);
    temporaryInletTemp = zone.pump.pumpType == model.pumpType
                             ? zone.pump.elt
                             : designLoadTemps(conditions(), model.pumpType);
    attempt([&] { SetPumpValues(model, typedUnits(), static_cast<std::size_t>(selectedZone())); });
}

void ZoneWindow::LOCancelCommand_Click() {
    control("LOSelectFrame").setVisible(false);
    restoreActiveSeries(browsedSlot);
}

void ZoneWindow::InitializeHeatPumpLists() {
    catalogue.InitializeHeatPumpLists();
    showActiveSeries();
}

void ZoneWindow::refreshPumpLists() {
    PumpManufacturerInfo maker;
    PumpSeriesInfo series;
    if (!catalogue.models(browsedSlot).empty()) {
        maker = catalogue.models(browsedSlot).front().mfgInfo;
        series = catalogue.models(browsedSlot).front().seriesInfo;
    }
    const Control& list = control("HPPumpList");
    const std::string chosen =
        list.index() < 0 ? std::string() : list.items()[static_cast<std::size_t>(list.index())];
    InitializeHeatPumpLists();
    if (const auto model = modelNamed(chosen, activeSlot))
        control("HPPumpList").setIndex(static_cast<int>(*model));
    refreshBrowsedSeries(maker.mfgName, series.seriesName);
}

/// The series that slot 1 held, and the lists of an open selection panel, from the new catalogue.
void ZoneWindow::refreshBrowsedSeries(const std::string& mfgName, const std::string& seriesName) {
    if (const PumpSeriesInfo* series = catalogue.find(mfgName, seriesName))
        catalogue.readPumps(series->FileName, browsedSlot);
    if (!pumpsAreBeingSelected()) return;
    const std::string model = control("LOPumpNameCombo").text();
    SeriesPlace place = placeOf(control("LOMfgCombo").text() + control("LOSeriesCombo").text());
    if (place.series < 0) place = placeOf(activeSeries());
    showPlace("LOMfgCombo", "LOSeriesCombo", place);
    browseSeries();
    if (const auto found = modelNamed(model, browsedSlot))
        control("LOPumpNameCombo").setIndex(static_cast<int>(*found));
}

void ZoneWindow::showActiveSeries() {
    showPlace("HPManufacturerCombo", "HPSeriesCombo", placeOf(activeSeries()));
    showActiveModels();
}

void ZoneWindow::showActiveModels() {
    std::vector<std::string> names;
    for (const pump& model : catalogue.models(activeSlot)) names.push_back(model.name);
    Control& list = control("HPPumpList").setItems(names);
    if (!names.empty()) list.setIndex(0);
}

void ZoneWindow::HPManufacturerCombo_Click() {
    if (settingItems) return;
    const std::string& maker = control("HPManufacturerCombo").text();
    Control& series = control("HPSeriesCombo").setItems(seriesNames(maker)).setText({});
    if (series.items().empty()) return;
    series.setIndex(0);
    HPSeriesCombo_Click();
}

void ZoneWindow::HPSeriesCombo_Click() {
    if (settingItems) return;
    const PumpSeriesInfo* series = chosenSeries("HPManufacturerCombo", "HPSeriesCombo");
    if (series == nullptr) return;
    if (!catalogue.activate(control("HPManufacturerCombo").text(), *series))
        return showActiveSeries();
    showActiveModels();
    markChanged();
}

}  // namespace varnholt
