// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving zone files, and the questions about unsaved changes.
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr int zoneFilesFilter = 3;

}  // namespace

LoadsData ZoneWindow::loadsData() const { return {ZoneList, designConditions(), activeSeries}; }

/// The project's name serves a new list of zones.
std::string ZoneWindow::proposedFile() const {
    if (workingFileCheck) return workingZoneFile;
    for (const LinkedDesign* design : linkableDesigns(main()))
        if (design->myID == designLinkID && !design->FileName.empty())
            return baseNameOf(design->FileName) + ".zon";
    return newFile();
}

std::string ZoneWindow::newFile() const { return text(1204) + ".zon"; }

std::string ZoneWindow::fileOnShow() const {
    return workingZoneFile.empty() ? newFile() : workingZoneFile;
}

void ZoneWindow::showFile() { control("LOWorkingZoneLabel").setCaption(fileOnShow()); }

FileDialog ZoneWindow::zoneDialog(bool saving) const {
    return {
        .saving = saving,
        .title = text(saving ? 2964 : 2963),
        .folder = workingFileCheck ? workingZoneDirectory : joinPath(main().MainDirectory, "zones"),
        .proposedName = proposedFile(),
        .filter = text(2962),
        .filterIndex = zoneFilesFilter,
        .overwritePrompt = saving};
}

void ZoneWindow::LOOpenCommand_Click() {
    const std::optional<std::string> path = platform().chooseFile(zoneDialog(false));
    if (!path) return;
    main().TempDirectory = folderOf(*path);
    if (!CheckForSave()) return;
    if (LOOpenZoneFile(*path)) main().fileUsed(*path);
}

bool ZoneWindow::LOOpenZoneFile(const std::string& path) {
    const LoadsData before = loadsData();
    LoadsData data = before;
    bool whole = true;
    try {
        readZoneFile(path, {text(2815), catalogue.firstSeries()}, data);
        if (data.zones.size() > mostZones) throw RunTimeError(6);
    } catch (const RunTimeError& error) {
        // Only a missing file and a file that ends too early are worth a message.
        if (error.number() == 53 || error.number() == 62)
            show(MessageIcon::exclamation, error.message());
        whole = false;
    }
    if (!whole && data == before) return false;
    takeLoads(std::move(data));
    forgetZoneFile();
    if (whole) takeFile(path);
    // What is left of a damaged file must not take the file's place without a question.
    control("LOSaveCommand").setEnabled(!whole && !ZoneList.empty());
    return whole;
}

void ZoneWindow::takeLoads(LoadsData data) {
    ZoneList = std::move(data.zones);
    if (ZoneList.size() > mostZones) ZoneList.resize(mostZones);
    zoneCount = static_cast<std::int16_t>(ZoneList.size());
    flowRate = data.conditions.flowRate;
    inletTemp = data.conditions.inletTemp;
    inletLoadAirTemp = data.conditions.inletLoadAirTemp;
    inletLoadWaterTemp = data.conditions.inletLoadWaterTemp;
    activeSeries = std::move(data.activeSeries);
    InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(0);
    rebuildSummary();
}

void ZoneWindow::takeFile(const std::string& path) {
    workingZoneFile = fileNameOf(path);
    workingZoneDirectory = folderOf(path);
    workingFileCheck = true;
    showFile();
}

void ZoneWindow::forgetZoneFile() {
    workingFileCheck = false;
    workingZoneFile.clear();
    showFile();
}

void ZoneWindow::LOSaveCommand_Click() {
    const std::optional<std::string> path = platform().chooseFile(zoneDialog(true));
    if (!path) return;
    main().TempDirectory = folderOf(*path);
    if (!saveZonesTo(*path)) return;
    takeFile(*path);
    control("LOSaveCommand").setEnabled(false);
    main().fileUsed(*path);
}

bool ZoneWindow::saveZonesTo(const std::string& path) {
    try {
        saveZoneFile(path, loadsData());
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, text(2942) + "\n\n" + path + "\n\n" + error.message());
        return false;
    }
    return true;
}

/// The frame asks more briefly when it closes all of its windows.
Answer ZoneWindow::askForSave() {
    return platform().question(
        Buttons::yesNoCancel, text(1205),
        main().closing ? text(1206) : text(1204) + "\n\n" + fileOnShow() + "\n\n" + text(1203));
}

bool ZoneWindow::CheckForSave() {
    if (!hasUnsavedChanges()) return true;
    const Answer answer = askForSave();
    if (answer == Answer::no) return true;
    zoneSaveCancelled = false;
    if (answer == Answer::yes) {
        LOSaveCommand_Click();
        if (!hasUnsavedChanges()) return true;
        zoneSaveCancelled = true;
    }
    show(MessageIcon::exclamation, text(1207));
    main().saveCancelled = true;
    return false;
}

}  // namespace varnholt
