// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/saving.h"

#include <optional>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "forms/text_numbers.h"
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

/// True when the project is on the disk. The defaults file is a convenience: that it could not be
/// written is told, and the project is saved all the same.
bool write(GroundDesign& design, const std::string& path) {
    Varnmain& main = design.main();
    try {
        saveVHTFile(design, path);
    } catch (const RunTimeError& error) {
        warn(main, error.message());
        main.saveCancelled = true;
        return false;
    }
    try {
        saveINIFile(design);
    } catch (const RunTimeError& error) {
        warn(main, error.message());
    }
    design.setHalfReadFile({});
    design.noteSaved();
    design.refreshNotice();
    main.fileUsed(path);
    return true;
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

}  // namespace

void saveDesign(GroundDesign& design) {
    if (!design.currentFileCheck) return saveDesignAs(design);
    if (zonesAreSettled(design)) write(design, design.filePath());
}

void saveDesignAs(GroundDesign& design) {
    if (!zonesAreSettled(design)) return;
    Varnmain& main = design.main();
    const std::optional<std::string> path = chooseName(design);
    if (!path) {
        main.saveCancelled = true;
        return;
    }
    // The design takes the new name only when the file is there.
    if (!write(design, *path)) return;
    renameDesign(design, *path);
    main.openWindowFiles(design.kind(), design.counter) = *path;
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
