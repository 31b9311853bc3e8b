// SPDX-License-Identifier: GPL-3.0-or-later
// The list of zones: adding and clearing, and the display of the selected zone.
#include <utility>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

/// Commands that need a zone.
constexpr const char* zoneCommands[] = {
    "LOCopyCommand",          "LORemoveCommand",      "LORenumberCommand",
    "LOAutoSelectAllCommand", "LOUpdatePumpsCommand", "LOSummaryCommand",
    "LOClearCommand",         "LOPrintCommand",       "LOImportCommand"};

/// Those of them, and the one for a new zone, that the summary suspends.
constexpr const char* suspendedCommands[] = {"LONewCommand", "LOCopyCommand", "LORemoveCommand",
                                             "LOClearCommand", "LORenumberCommand"};

}  // namespace

void ZoneWindow::hookCommands() {
    onClick("LONewCommand", [this] { LONewCommand_Click(); });
    onClick("LOClearCommand", [this] { LOClearCommand_Click(); });
    onClick("LOOpenCommand", [this] { LOOpenCommand_Click(); });
    onClick("LOSaveCommand", [this] { LOSaveCommand_Click(); });
    onClick("LOPrintCommand", [this] { LOPrintCommand_Click(); });
    onClick("LOImportCommand", [this] { LOImportCommand_Click(); });
    onClick("LOEqvHoursCommand", [this] { LOEqvHoursCommand_Click(); });
    onClick("LOZoneList", [this] { displayZone(); });
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
}

int ZoneWindow::selectedZone() const {
    const std::vector<int>& rows = control("LOZoneList").selected();
    return rows.empty() ? -1 : rows.front();
}

const Zone* ZoneWindow::shownZone() const {
    const int position = selectedZone();
    const bool exists = position >= 0 && static_cast<std::size_t>(position) < ZoneList().size();
    return exists ? &ZoneList()[static_cast<std::size_t>(position)] : nullptr;
}

Zone* ZoneWindow::editShownZone() {
    if (shownZone() == nullptr) return nullptr;
    return &zones().edit(static_cast<std::size_t>(selectedZone()));
}

std::string ZoneWindow::nameOfZone(std::size_t number) const {
    return text(Text::zone) + " " + std::to_string(number);
}

std::string ZoneWindow::numberOfZone(const Zone& zone) const {
    const std::string word = text(Text::zone) + " ";
    return zone.name.starts_with(word) ? zone.name.substr(word.size()) : zone.name;
}

void ZoneWindow::LONewCommand_Click() { addZone(newZone()); }

Zone ZoneWindow::newZone() {
    Zone zone;
    zone.pump.name = text(Text::noPumpSelected);
    // The slot may still hold another series that was browsed.
    const bool read = catalogue.readActiveSeries(browsedSlot) || holdsActiveSeries(browsedSlot);
    if (read && catalogue.size(browsedSlot) > 0) {
        const pump& first = catalogue.PumpList(browsedSlot, 0);
        zone.pump.mfgName = first.mfgInfo.mfgName;
        zone.pump.seriesName = first.seriesInfo.seriesName;
        zone.pump.pumpType = first.pumpType;
    }
    zone.pump.elt = designLoadTemps(conditions(), zone.pump.pumpType);
    zone.name = nameOfZone(static_cast<std::size_t>(document_.zoneCount) + 1);
    return zone;
}

void ZoneWindow::addZone(Zone zone) {
    if (ZoneList().size() >= mostZones ||
        static_cast<std::size_t>(document_.zoneCount) >= mostZones)
        throw RunTimeError(6);
    if (ZoneList().empty() && !file().exists) {
        document_.file.name = newFile();
        showFile();
    }
    zones().push_back(std::move(zone));
    ++document_.zoneCount;
    showZones(static_cast<int>(ZoneList().size()) - 1);
    markChanged();
}

void ZoneWindow::LOClearCommand_Click() {
    if (!CheckForSave()) return;
    zones().clear();
    document_.zoneCount = 0;
    forgetZoneFile();
    showZones(-1);
    SetFluidsTabbedPaneSwitchVariables();
}

void ZoneWindow::replaceLoads(const DesignProject& project) {
    const bool wasChanged = changed_;
    takeZones(project.loads.zones);
    for (std::size_t i = 0; i < ZoneList().size(); ++i)
        if (ZoneList()[i].name != nameOfZone(i + 1)) zones().edit(i).name = nameOfZone(i + 1);
    document_.data.activeSeries = project.loads.activeSeries;
    document_.file = project.loads.file;
    designConditions().flowRate = project.conditions.flowRate;
    designConditions().inletTemp = project.conditions.inletTemp;
    InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(0);
    setChanged(wasChanged);
    showFile();
    rebuildSummary();
}

/// Zones are counted in 16 bits.
void ZoneWindow::takeZones(const SharedZones& taken) {
    zones() = taken;
    zones().cutTo(mostZones);
    document_.zoneCount = zoneNumber();
}

void ZoneWindow::showZones(int selected) {
    std::vector<std::string> names;
    for (const Zone& zone : ZoneList()) names.push_back(zone.name);
    // One block needs no list; a file with several zones does.
    control("LOZoneList")
        .setItems(std::move(names))
        .setVisible(kind_.listsZones || zoneNumber() > 1);
    enableZoneCommands();
    selectZone(selected);
}

void ZoneWindow::enableZoneCommands() {
    const bool any = !ZoneList().empty();
    for (const char* name : zoneCommands)
        if (has(name)) control(name).setEnabled(any);
    control("LOEqvHoursCommand").setEnabled(any && main().hasCommand("mnuEqvHours"));
    if (!any) setChanged(false);
    control("LONewCommand").setEnabled(kind_.listsZones || !any);
    if (has("LOSummaryPicture") && control("LOSummaryPicture").visible())
        for (const char* name : suspendedCommands) control(name).setEnabled(false);
}

void ZoneWindow::selectZone(int position) {
    const bool exists = position >= 0 && static_cast<std::size_t>(position) < ZoneList().size();
    control("LOZoneList").setSelected(exists ? std::vector<int>{position} : std::vector<int>{});
    displayZone();
}

void ZoneWindow::displayZone() {
    const Zone* zone = shownZone();
    control("LOZoneFrame").setVisible(zone != nullptr);
    if (zone == nullptr) {
        // The next zone does not begin in the midst of another's selection.
        control("LOSelectFrame").setVisible(false);
        control("LODetailsFrame").setVisible(false);
        return;
    }
    const RaisedFlag writing(settingUnits);
    zoneTemp = *zone;
    control("LOZoneFrame").setCaption(zoneFrameCaption(*zone));
    control("LOZoneReferenceText").setText(zone->title);
    for (const char* prefix : {"LOGains", "LOHours", "LODays"}) fields().showAll(prefix);
    displayPump();
}

void ZoneWindow::LOPrintCommand_Click() { main().click("mnuFilePrint"); }

}  // namespace varnholt
