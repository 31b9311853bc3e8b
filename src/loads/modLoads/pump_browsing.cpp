// SPDX-License-Identifier: GPL-3.0-or-later
// Browsing the catalogue: in the selection panel for one zone, on the heat pump tab for all.
#include <algorithm>

#include "loads/modLoads/raised_flag.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {

ZoneWindow::SeriesPlace ZoneWindow::placeOf(const std::string& joinedName) const {
    const auto& manufacturers = catalogue.vhtPumpNames();
    for (std::size_t i = 0; i < manufacturers.size(); ++i) {
        const auto& series = manufacturers[i].seriesInfo;
        for (std::size_t j = 0; j < series.size(); ++j)
            if (manufacturers[i].mfgInfo.mfgName + series[j].seriesName == joinedName)
                return {static_cast<int>(i), static_cast<int>(j)};
    }
    return {};
}

int ZoneWindow::manufacturerNamed(const std::string& mfgName) const {
    const auto& manufacturers = catalogue.vhtPumpNames();
    for (std::size_t i = 0; i < manufacturers.size(); ++i)
        if (manufacturers[i].mfgInfo.mfgName == mfgName) return static_cast<int>(i);
    return -1;
}

/// In the catalogue's order, each once.
std::vector<std::string> ZoneWindow::manufacturerNames() const {
    std::vector<std::string> names;
    for (const PumpList& manufacturer : catalogue.vhtPumpNames())
        if (std::find(names.begin(), names.end(), manufacturer.mfgInfo.mfgName) == names.end())
            names.push_back(manufacturer.mfgInfo.mfgName);
    return names;
}

std::vector<std::string> ZoneWindow::seriesNames(int manufacturerIndex) const {
    std::vector<std::string> names;
    if (manufacturerIndex < 0) return names;
    for (const PumpSeriesInfo& series :
         catalogue.vhtPumpNames().at(static_cast<std::size_t>(manufacturerIndex)).seriesInfo)
        names.push_back(series.seriesName);
    return names;
}

const PumpSeriesInfo* ZoneWindow::seriesAt(SeriesPlace place) const {
    const auto& manufacturers = catalogue.vhtPumpNames();
    if (place.manufacturer < 0 || place.series < 0) return nullptr;
    const auto& series = manufacturers.at(static_cast<std::size_t>(place.manufacturer)).seriesInfo;
    const auto index = static_cast<std::size_t>(place.series);
    return index < series.size() ? &series[index] : nullptr;
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
    if (place.series < 0) place = placeOf(activeSeries);
    {
        const RaisedFlag refilling(settingItems);
        const std::vector<std::string> names = manufacturerNames();
        Control& combo = control("LOMfgCombo").setItems(names);
        if (place.manufacturer >= 0) {
            const auto& chosen =
                catalogue.vhtPumpNames()[static_cast<std::size_t>(place.manufacturer)];
            const auto at = std::find(names.begin(), names.end(), chosen.mfgInfo.mfgName);
            combo.setIndex(static_cast<int>(at - names.begin()));
        }
        SetUpLoadsSeriesList(place.manufacturer);
        control("LOSeriesCombo").setIndex(place.series);
    }
    browseSeries();
}

void ZoneWindow::SetUpLoadsSeriesList(int manufacturerIndex) {
    const RaisedFlag refilling(settingItems);
    Control& combo = control("LOSeriesCombo").setItems(seriesNames(manufacturerIndex));
    if (!combo.items().empty()) combo.setIndex(0);
}

void ZoneWindow::LOMfgCombo_Click() {
    if (settingItems) return;
    SetUpLoadsSeriesList(manufacturerNamed(control("LOMfgCombo").text()));
    browseSeries();
}

void ZoneWindow::LOSeriesCombo_Click() {
    if (!settingItems) browseSeries();
}

/// Loads the chosen series into slot 1. A series that cannot be read has no models to choose from.
void ZoneWindow::browseSeries() {
    const PumpSeriesInfo* series = seriesAt(
        {manufacturerNamed(control("LOMfgCombo").text()), control("LOSeriesCombo").index()});
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
    const auto j = modelNamed(control("LOPumpNameCombo").text(), browsedSlot);
    if (zone != nullptr && j && control("LOPumpNameCombo").index() >= 0) {
        const pump& model = catalogue.PumpList(browsedSlot, *j);
        const RaisedFlag selecting(selectingPump);
        temporaryInletTemp = zone->pump.pumpType == model.pumpType
                                 ? zone->pump.elt
                                 : designLoadTemps(designConditions(), model.pumpType);
        attempt(
            [&] { SetPumpValues(model, typedUnits(), static_cast<std::size_t>(selectedZone())); });
    }
    restoreActiveSeries(browsedSlot);
}

void ZoneWindow::LOCancelCommand_Click() {
    control("LOSelectFrame").setVisible(false);
    restoreActiveSeries(browsedSlot);
}

void ZoneWindow::InitializeHeatPumpLists() {
    catalogue.InitializeHeatPumpLists();
    showActiveSeries();
}

void ZoneWindow::showActiveSeries() {
    const RaisedFlag refilling(settingItems);
    const SeriesPlace place = placeOf(activeSeries);
    const std::vector<std::string> names = manufacturerNames();
    Control& makers = control("HPManufacturerCombo").setItems(names).setText({});
    Control& series =
        control("HPSeriesCombo").setItems(seriesNames(place.manufacturer)).setText({});
    if (place.manufacturer >= 0) {
        const auto& active = catalogue.vhtPumpNames()[static_cast<std::size_t>(place.manufacturer)];
        const auto at = std::find(names.begin(), names.end(), active.mfgInfo.mfgName);
        makers.setIndex(static_cast<int>(at - names.begin()));
        series.setIndex(place.series);
    }
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
    const int manufacturer = manufacturerNamed(control("HPManufacturerCombo").text());
    Control& series = control("HPSeriesCombo").setItems(seriesNames(manufacturer)).setText({});
    if (series.items().empty()) return;
    series.setIndex(0);
    HPSeriesCombo_Click();
}

void ZoneWindow::HPSeriesCombo_Click() {
    if (settingItems) return;
    const int manufacturer = manufacturerNamed(control("HPManufacturerCombo").text());
    const PumpSeriesInfo* series = seriesAt({manufacturer, control("HPSeriesCombo").index()});
    if (series == nullptr) return;
    const PumpList& maker = catalogue.vhtPumpNames()[static_cast<std::size_t>(manufacturer)];
    if (!catalogue.activate(maker, *series)) return showActiveSeries();
    showActiveModels();
    markChanged();
}

}  // namespace varnholt
