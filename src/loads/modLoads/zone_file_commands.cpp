// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving zone files, and the questions about unsaved changes.
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr int zoneFilesFilter = 3;

}  // namespace

/// The project's name serves a new list of zones.
std::string ZoneWindow::proposedFile() const {
    if (file().exists) return file().name;
    for (const LinkedDesign* design : linkableDesigns(main()))
        if (design->myID == links().designLinkID() && !design->FileName.empty())
            return baseNameOf(design->FileName) + ".zon";
    return newFile();
}

std::string ZoneWindow::newFile() const { return text(Text::zoneLoads) + ".zon"; }

std::string ZoneWindow::fileOnShow() const { return file().name.empty() ? newFile() : file().name; }

void ZoneWindow::showFile() { control("LOWorkingZoneLabel").setCaption(fileOnShow()); }

FileDialog ZoneWindow::zoneDialog(bool saving) const {
    return {.saving = saving,
            .title = text(saving ? Text::saveZoneFileTitle : Text::openZoneFileTitle),
            .folder = file().exists ? file().folder : joinPath(main().MainDirectory, "zones"),
            .proposedName = proposedFile(),
            .filter = text(Text::zoneFileFilter),
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
    const LoadsData& before = document_.data;
    LoadsData data = before;
    bool whole = true;
    try {
        readZoneFile(path, {text(Text::zone), catalogue.firstSeries()}, data);
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
    if (whole)
        takeFile(path);
    else
        halfReadFile_ = fileNameOf(path);
    startHistory(whole);
    // What is left of a damaged file must not take the file's place without a question.
    setChanged(!whole && !ZoneList().empty());
    refreshNotice();
    refreshLinkedNotices();
    return whole;
}

void ZoneWindow::takeLoads(LoadsData data) {
    takeZones(data.zones);
    designConditions() = data.conditions;
    document_.data.activeSeries = std::move(data.activeSeries);
    InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(0);
    rebuildSummary();
}

void ZoneWindow::takeFile(const std::string& path) {
    document_.file = {fileNameOf(path), folderOf(path), true};
    showFile();
}

void ZoneWindow::forgetZoneFile() {
    document_.file.exists = false;
    document_.file.name.clear();
    halfReadFile_.clear();
    showFile();
}

void ZoneWindow::LOSaveCommand_Click() {
    const std::optional<std::string> path = platform().chooseFile(zoneDialog(true));
    if (!path) return;
    main().TempDirectory = folderOf(*path);
    if (!saveZonesTo(*path)) return;
    takeFile(*path);
    halfReadFile_.clear();
    keepFileInHistory();
    markSaved();
    setChanged(false);
    main().fileUsed(*path);
}

bool ZoneWindow::saveZonesTo(const std::string& path) {
    try {
        saveZoneFile(path, document_.data);
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, text(Text::zonesNotSaved) + "\n\n" + path + "\n\n" +
                                           RunTimeError(error.number()).message());
        return false;
    }
    return true;
}

/// The frame asks more briefly when it closes all of its windows.
Answer ZoneWindow::askForSave() {
    return platform().question(Buttons::yesNoCancel, text(Text::saveChangesTitle),
                               main().closing ? text(Text::saveLoadsToo)
                                              : text(Text::zoneLoads) + "\n\n" + fileOnShow() +
                                                    "\n\n" + text(Text::saveFileNow));
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
    show(MessageIcon::exclamation, text(Text::saveCancelled));
    main().saveCancelled = true;
    return false;
}

}  // namespace varnholt
