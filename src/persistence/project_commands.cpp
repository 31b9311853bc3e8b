// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/project_commands.h"

#include <memory>
#include <optional>
#include <utility>

#include "basis/file_kind.h"
#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "forms/patient_reading.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/main.h"
#include "frame/file_damage.h"
#include "frame/open_file.h"
#include "frame/varnmain.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "persistence/design_files.h"
#include "persistence/dialogs.h"
#include "persistence/recovery/recovery_record.h"
#include "persistence/saving.h"
#include "persistence/zone_link.h"

namespace varnholt {
namespace {

/// Whether some open design has the file; says so.
bool isOpenAlready(Varnmain& main, const std::string& path) {
    if (!isFileInUse(main, path, nullptr)) return false;
    warn(main, main.text(Text::fileInUse));
    return true;
}

void readDefaults(GroundDesign& design) {
    try {
        readINIFile(design);
    } catch (const RunTimeError& error) {
        warnOfReading(design.main(), error);
    }
}

/// A project file that is being opened.
struct ProjectSource {
    std::string path;
    FileSource::Content content;
    OpenFile file;
    OpenAs as = OpenAs::itself;
    bool isRecovered = false;
};

/// Whatever goes wrong, the window keeps the values read so far.
void readProject(GroundDesign& design, ProjectSource& source) {
    if (source.path.empty())
        design.forgetFile();
    else
        design.setFile(source.path);
    FileDamage damage{design.FileName, {}};
    bool linkIsStored = true;
    try {
        linkIsStored = tellsOfLink(source.content.bytes);
        readProjectText(source.content.bytes, design, &damage.report);
    } catch (const RunTimeError& error) {
        warnOfReading(design.main(), error);
        damage.report.error = error.number();
    }
    design.setDamage(damage);
    if (source.as == OpenAs::copy) design.forgetFile();
    if (source.as == OpenAs::itself) design.openFile = std::move(source.file);
    source.content = {};
    ZoneFile zones = design.loads().file;
    zones.exists = !zones.name.empty();
    design.takeZoneFile(zones);
    fileKindOf(design).linkKeepingResults(
        design, [&design, linkIsStored, isRecovered = source.isRecovered] {
            resolveZoneLink(design, linkIsStored, isRecovered);
        });
}

/// Opens a window of the kind in the next free slot; its set-up reads the project, or the defaults
/// where there is none. Null when all slots are taken.
GroundDesign* openDesign(Varnmain& main, const DesignFileKind& kind,
                         ProjectSource* source = nullptr) {
    const std::int16_t slot = main.takeSlot(kind.kind);
    if (slot == 0) return nullptr;
    std::unique_ptr<GroundDesign> made = kind.make(main, slot);
    GroundDesign& design = *made;
    design.files.readINIFile = [&design] { readDefaults(design); };
    design.files.readProject = [&design, source] { readProject(design, *source); };
    design.files.queryClose = [&design] { return saveBeforeClosing(design); };
    design.files.findZoneFile = [&design] { findZoneFile(design); };
    main.open(std::move(made));
    design.files.readProject = nullptr;
    return &design;
}

/// The kind of design that the file holds, by its second line. Throws RunTimeError 62 where there
/// is none.
const DesignFileKind& kindOfProject(std::string_view bytes) {
    LineFileReader file(bytes);
    file.line();
    return fileKindOfTitle(file.line());
}

/// Reads the file, and asks what has to be asked before it is shown. Null, after whatever there is
/// to tell, when it is not to be opened.
const DesignFileKind* prepareToOpen(Varnmain& main, ProjectSource& source) {
    try {
        source.content = readFor(main.platform(), source.path);
        const FileKind kind = fileKind(source.content.bytes);
        if (isCertainlyOther(kind, FileKind::project)) {
            main.setNotice(damageText(main.texts(), {fileNameOf(source.path), {}, kind}));
            return nullptr;
        }
        const std::size_t most = ReadingLimits{}.mostBytes;
        source.as = takeFile(main, source.path, most, source.content, source.file);
        return source.as == OpenAs::notAtAll ? nullptr : &kindOfProject(source.content.bytes);
    } catch (const RunTimeError& error) {
        warnOfReading(main, error);
        main.setNotice(unreadableText(main.texts(), source.path, error.number()));
    }
    return nullptr;
}

FileDialog openDialog(const Varnmain& main) {
    FileDialog dialog = projectDialog(main, Text::open);
    if (const auto* design = dynamic_cast<DesignDocument*>(main.activeWindow())) {
        if (!design->directoryName.empty()) dialog.folder = design->directoryName;
        dialog.proposedName = design->FileName;
    }
    return dialog;
}

std::string extensionOf(const std::string& path) {
    const std::string name = fileNameOf(path);
    const std::size_t point = name.rfind('.');
    std::string extension = point == std::string::npos ? "" : name.substr(point);
    for (char& letter : extension)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return extension;
}

}  // namespace

void installPersistence(Varnmain& main) {
    for (const DesignFileKind& row : designFileKinds())
        main.setCommand(row.newCommand, CommandNeeds::nothing,
                        [&main, kind = row.kind] { newDesign(main, kind); });
    for (const char* entry : {"mnuFileOpen", "OpenProject"})
        main.setCommand(entry, CommandNeeds::nothing, [&main] { mnuFileOpen_Click(main); });
    for (const char* entry : {"mnuFileSave", "SaveProject"})
        main.setCommand(entry, CommandNeeds::designOrLoads, [&main] { mnuFileSave_Click(main); });
    main.setCommand("mnuFileSaveAs", CommandNeeds::design, [&main] { mnuFileSaveAs_Click(main); });
}

void newDesign(Varnmain& main, DesignKind kind) {
    for (const DesignFileKind& row : designFileKinds())
        if (row.kind == kind) openDesign(main, row);
}

void mnuFileOpen_Click(Varnmain& main) {
    const std::optional<std::string> chosen = main.platform().chooseFile(openDialog(main));
    if (chosen) openProjectFile(main, *chosen);
}

void openProjectFile(Varnmain& main, const std::string& path) {
    const std::string whole = absolutePath(main, path);
    if (isOpenAlready(main, whole)) return;
    main.setNotice({});
    ProjectSource source{whole, {}, {}};
    const DesignFileKind* kind = prepareToOpen(main, source);
    if (kind == nullptr) return;
    main.commonDialogFile = whole;
    main.TempDirectory = folderOf(whole);
    const GroundDesign* design = nullptr;
    {
        const RaisedFlag opening(main.openCall);
        design = openDesign(main, *kind, &source);
    }
    if (design == nullptr || !design->currentFileCheck) return;
    main.openWindowFiles(kind->kind, design->counter) = whole;
    main.fileUsed(whole);
}

void openTemplate(Varnmain& main, const std::string& path) {
    main.hideSplash();
    main.setNotice({});
    ProjectSource source{absolutePath(main, path), {}, {}};
    const DesignFileKind* kind = prepareToOpen(main, source);
    if (kind == nullptr) return;
    source.as = OpenAs::copy;
    source.file = {};
    {
        const RaisedFlag opening(main.openCall);
        openDesign(main, *kind, &source);
    }
    main.refreshCommands();
}

GroundDesign* openRecoveredDesign(Varnmain& main, const DesignFileKind& kind,
                                  const RecoveryRecord& record) {
    ProjectSource source{record.path, {record.document, {}}, {}};
    source.isRecovered = true;
    if (isFileInUse(main, record.path, nullptr)) source.path.clear();
    if (!source.path.empty()) {
        LockAttempt attempt = lockFile(source.path);
        source.file = {record.known, std::move(attempt.lock), attempt.holder.has_value(),
                       record.savesUnderNewName};
    }
    GroundDesign* design = nullptr;
    {
        const RaisedFlag opening(main.openCall);
        design = openDesign(main, kind, &source);
    }
    if (design == nullptr) return nullptr;
    main.openWindowFiles(kind.kind, design->counter) = source.path;
    if (source.path.empty() && !record.name.empty()) design->setCaption(record.name);
    if (record.isStale) design->calculationNeeded();
    design->countAsChanged();
    design->refreshNotice();
    return design;
}

void openZoneFile(Varnmain& main, const std::string& path) {
    const std::string whole = absolutePath(main, path);
    LoadsWindow* loads = openLoadsWindow(main, "frmZoneManage");
    if (loads == nullptr || !loads->CheckForSave()) return;
    const bool read = loads->LOOpenZoneFile(whole);
    main.activate(*loads);
    if (read) main.fileUsed(whole);
}

void openFile(Varnmain& main, const std::string& path) {
    main.hideSplash();
    if (extensionOf(path) == ".zon")
        openZoneFile(main, path);
    else
        openProjectFile(main, path);
    main.refreshCommands();
}

void mnuFileSave_Click(Varnmain& main) {
    ChildWindow* active = main.ownerInFront();
    if (auto* design = dynamic_cast<GroundDesign*>(active))
        saveDesign(*design);
    else if (auto* loads = dynamic_cast<LoadsWindow*>(active))
        loads->LOSaveCommand_Click();
    else if (active != nullptr && active->canSave())
        active->save();
}

void mnuFileSaveAs_Click(Varnmain& main) {
    if (auto* design = dynamic_cast<GroundDesign*>(main.ownerInFront())) saveDesignAs(*design);
}

}  // namespace varnholt
