// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/saving.h"

#include <optional>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/main.h"
#include "frame/open_file.h"
#include "frame/varnmain.h"
#include "loads/links.h"
#include "persistence/design_files.h"
#include "persistence/dialogs.h"
#include "persistence/zone_link.h"

namespace varnholt {
namespace {

/// Whether the loads have been seen to and the save may go on.
bool zonesAreSettled(GroundDesign& design) {
    design.main().saveCancelled = false;
    if (!design.loads().linkType.empty()) checkZoneFile(design);
    return !design.main().saveCancelled;
}

/// That the defaults file could not be written is told, and the project is saved all the same.
void writeDefaults(const GroundDesign& design) {
    try {
        saveINIFile(design);
    } catch (const RunTimeError& error) {
        warn(design.main(), error.message());
    }
}

/// What has become of the file. A failure is told, and counts as a save that was cancelled.
SavedAs writeFile(GroundDesign& design, const std::string& path, OpenFile& file) {
    try {
        return saveFile(design.main(), path, projectText(design), file);
    } catch (const RunTimeError& error) {
        warn(design.main(), error.message());
        return SavedAs::nothing;
    }
}

/// Writes the project, as the file that it has or under a new name.
SavedAs write(GroundDesign& design, const std::string& path) {
    Varnmain& main = design.main();
    const bool own = design.currentFileCheck && samePath(path, design.filePath());
    OpenFile fresh;
    OpenFile& file = own ? design.openFile : fresh;
    const SavedAs saved = writeFile(design, path, file);
    if (saved == SavedAs::nothing) main.saveCancelled = true;
    if (saved != SavedAs::itself) return saved;
    if (!own) {
        if (main.guardsFiles) fresh.lock = lockFile(path).lock;
        design.openFile = std::move(fresh);
    }
    design.openFile.readOnly = design.openFile.asksForName = false;
    writeDefaults(design);
    design.setDamage({});
    design.noteSaved();
    design.refreshNotice();
    main.fileUsed(path);
    main.platform().tell(filledIn(main.text(Text::savedAs), {path}));
    return saved;
}

/// The caption behind the words that all captions of the kind begin with.
std::string captionLessPrefix(const GroundDesign& design) {
    const std::string& caption = design.caption();
    const std::string prefix = design.baseCaption();
    if (!caption.starts_with(prefix)) return caption;
    const std::size_t name = caption.find_first_not_of(' ', prefix.size());
    return name == std::string::npos ? std::string() : caption.substr(name);
}

FileDialog saveDialog(const GroundDesign& design) {
    const Varnmain& main = design.main();
    FileDialog dialog = projectDialog(main, Text::saveAs);
    dialog.saving = true;
    dialog.overwritePrompt = true;
    if (design.currentFileCheck) dialog.folder = design.directoryName;
    dialog.proposedName = design.FileName.empty() ? captionLessPrefix(design) : design.FileName;
    return dialog;
}

/// A name that no other window has open; nothing when the user cancels.
std::optional<std::string> chooseName(GroundDesign& design) {
    Varnmain& main = design.main();
    for (;;) {
        const std::optional<std::string> chosen = main.platform().chooseFile(saveDialog(design));
        if (!chosen) return std::nullopt;
        const std::string path = absolutePath(main, *chosen);
        main.TempDirectory = folderOf(path);
        if (!isFileInUse(main, path, &design)) return path;
        warn(main, main.text(Text::fileInUse));
    }
}

void saveUnderChosenName(GroundDesign& design) {
    Varnmain& main = design.main();
    SavedAs saved = SavedAs::elsewhere;
    while (saved == SavedAs::elsewhere) {
        const std::optional<std::string> path = chooseName(design);
        if (!path) {
            main.saveCancelled = true;
            return;
        }
        // The design takes the new name only when the file is there.
        saved = write(design, *path);
        if (saved != SavedAs::itself) continue;
        renameDesign(design, *path);
        main.openWindowFiles(design.kind(), design.counter) = *path;
    }
}

}  // namespace

void saveDesign(GroundDesign& design) {
    if (!design.currentFileCheck || design.savesUnderNewName()) return saveDesignAs(design);
    if (!zonesAreSettled(design)) return;
    if (write(design, design.filePath()) == SavedAs::elsewhere) saveUnderChosenName(design);
}

void saveDesignAs(GroundDesign& design) {
    if (zonesAreSettled(design)) saveUnderChosenName(design);
}

bool saveBeforeClosing(GroundDesign& design) {
    Varnmain& main = design.main();
    const std::string& name = design.FileName.empty() ? design.caption() : design.FileName;
    const std::string text =
        main.text(Text::aboutToClose) + "\n\n" + name + "\n\n" + main.text(Text::saveFileNow);
    const Answer answer =
        main.platform().question(Buttons::yesNoCancel, main.text(Text::saveChangesTitle), text);
    if (answer == Answer::cancel) return false;
    if (answer == Answer::no) return true;
    main.saveCancelled = false;
    saveDesign(design);
    return !main.saveCancelled;
}

bool isFileInUse(Varnmain& main, const std::string& path, const GroundDesign* except) {
    for (const DesignDocument* design : main.designs()) {
        if (design == except) continue;
        const std::string& file = main.openWindowFiles(design->kind(), design->counter);
        if (!file.empty() && samePath(file, path)) return true;
    }
    return false;
}

std::string absolutePath(const Varnmain& main, const std::string& path) {
    return path.starts_with('/') ? path : joinPath(main.MainDirectory, path);
}

}  // namespace varnholt
