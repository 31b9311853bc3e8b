// SPDX-License-Identifier: GPL-3.0-or-later
// Opening and saving zone files, and the questions about unsaved changes.
#include <utility>

#include "basis/file_kind.h"
#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/patient_reading.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

constexpr int zoneFilesFilter = 3;

/// Of a file that could not even be opened the path matters.
std::string textOfNothingRead(const Texts& texts, const std::string& path,
                              const FileDamage& damage) {
    constexpr int inputPastEnd = 62;
    const ReadingReport& report = damage.report;
    const bool wasOpened =
        damage.other != FileKind::unknown || report.line > 0 || report.error == inputPastEnd;
    return wasOpened ? damageText(texts, damage) : unreadableText(texts, path, report.error);
}

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

/// Reads into `data` what the file holds. Nothing where the file is not to be opened.
std::optional<ZoneWindow::ReadZones> ZoneWindow::readZonesFor(const std::string& path,
                                                              LoadsData& data) {
    ReadZones read{{fileNameOf(path), {}}, {}};
    try {
        FileSource::Content content = readFor(platform(), path, largestZoneFile);
        const FileKind kind = fileKind(content.bytes);
        if (isCertainlyOther(kind, FileKind::zones)) {
            read.damage.other = kind;
            return read;
        }
        read.as = varnholt::takeFile(main(), path, largestZoneFile, content, read.file);
        if (read.as == OpenAs::notAtAll) return std::nullopt;
        readZones(content.bytes, {text(Text::zone), catalogue.firstSeries()}, data,
                  &read.damage.report);
    } catch (const RunTimeError& error) {
        // Only a missing file and a file that ends too early are worth a message.
        if (error.number() == RunTimeError::fileNotFound || error.number() == 62)
            show(MessageIcon::exclamation, error.message());
        read.damage.report.error = error.number();
    }
    return read;
}

bool ZoneWindow::LOOpenZoneFile(const std::string& path) {
    const LoadsData& before = document_.data;
    LoadsData data = before;
    main().setNotice({});
    std::optional<ReadZones> read = readZonesFor(path, data);
    zoneOpenCancelled = !read;
    if (!read) return false;
    const int error = read->damage.report.error;
    const bool toItsEnd = error == 0 && read->damage.other == FileKind::unknown;
    if (!toItsEnd && data == before) {
        // Of a file that is not there this window holds nothing.
        if (error == RunTimeError::fileNotFound)
            main().setNotice(unreadableText(texts(), path, error));
        else
            damage_ = textOfNothingRead(texts(), path, read->damage);
        refreshNotice();
        return false;
    }
    takeLoads(std::move(data));
    forgetZoneFile();
    openFile_ = std::move(read->file);
    if (toItsEnd && read->as == OpenAs::itself) takeFile(path);
    if (read->damage.isTold()) damage_ = damageText(texts(), read->damage);
    if (!read->damage.isNone()) damage_ += " " + text(Text::noticeSaveAsksForName);
    startHistory(toItsEnd);
    // What is left of a damaged file must not take the file's place without a question.
    setChanged(!toItsEnd && !ZoneList().empty());
    refreshNotice();
    refreshLinkedNotices();
    return toItsEnd;
}

void ZoneWindow::takeRecovered(std::string_view bytes, const std::string& path,
                               const std::optional<KnownFile>& known) {
    LoadsData data = document_.data;
    try {
        readZones(bytes, {text(Text::zone), catalogue.firstSeries()}, data);
    } catch (const RunTimeError&) {
        // What could be read of them is all that there is.
    }
    takeLoads(std::move(data));
    forgetZoneFile();
    if (!path.empty()) {
        LockAttempt attempt = lockFile(path);
        openFile_ = {known, std::move(attempt.lock), attempt.holder.has_value(), false};
        takeFile(path);
    }
    startHistory(false);
    setChanged(true);
    refreshNotice();
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
    damage_.clear();
    openFile_.readOnly = false;
    showFile();
}

void ZoneWindow::LOSaveCommand_Click() {
    SavedAs saved = SavedAs::elsewhere;
    while (saved == SavedAs::elsewhere) {
        const std::optional<std::string> path = platform().chooseFile(zoneDialog(true));
        if (!path) return;
        main().TempDirectory = folderOf(*path);
        saved = saveZonesTo(*path);
        if (saved == SavedAs::itself) savedUnder(*path);
    }
}

void ZoneWindow::savedUnder(const std::string& path) {
    takeFile(path);
    damage_.clear();
    openFile_.readOnly = false;
    keepFileInHistory();
    markSaved();
    setChanged(false);
    main().fileUsed(path);
    platform().tell(filledIn(text(Text::savedAs), {path}));
}

SavedAs ZoneWindow::saveZonesTo(const std::string& path) {
    const bool own = file().exists && samePath(path, joinPath(file().folder, file().name));
    OpenFile fresh;
    SavedAs saved = SavedAs::nothing;
    try {
        saved = saveFile(main(), path, zonesText(document_.data), own ? openFile_ : fresh);
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, text(Text::zonesNotSaved) + "\n\n" + path + "\n\n" +
                                           RunTimeError(error.number()).message());
        return SavedAs::nothing;
    }
    if (own || saved != SavedAs::itself) return saved;
    if (main().guardsFiles) fresh.lock = lockFile(path).lock;
    openFile_ = std::move(fresh);
    return saved;
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
