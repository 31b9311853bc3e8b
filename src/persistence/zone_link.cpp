// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/zone_link.h"

#include <optional>
#include <string>

#include "basis/file_system.h"
#include "design/ground_design.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/files.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "persistence/design_files.h"
#include "persistence/dialogs.h"
#include "persistence/saving.h"

namespace varnholt {
namespace {

/// The zone file in the project's own zone folder, or else in the program's; empty for neither.
std::string placeOfZoneFile(const LinkedDesign& design) {
    const std::string programZones = joinPath(design.main().MainDirectory, "zones");
    for (const std::string& folder : {design.loads().file.folder, programZones}) {
        std::string path = joinPath(folder, design.loads().file.name);
        if (!folder.empty() && fileExists(path)) return path;
    }
    return {};
}

bool holdsFile(const LoadsWindow& loads, const std::string& path) {
    return loads.file().exists && samePath(joinPath(loads.file().folder, loads.file().name), path);
}

bool isEmpty(const LoadsWindow& loads) {
    return loads.zoneNumber() == 0 && !loads.file().exists && !loads.hasUnsavedChanges();
}

/// Whatever else the file names, the Zone Manager is meant.
const char* wantedWindow(const LinkedDesign& design) {
    return design.loads().linkType == "frmAvgBlock" ? "frmAvgBlock" : "frmZoneManage";
}

/// What becomes of zones that stand in the wanted window without a link.
enum class OtherZones { stay, giveWay };

/// The loads window that the project wants, which holds the zone file or can take it; null when it
/// is in use.
LoadsWindow* loadsWindowFor(LinkedDesign& design, const std::string& path, OtherZones others) {
    Varnmain& main = design.main();
    auto* loads = dynamic_cast<LoadsWindow*>(main.find(wantedWindow(design)));
    if (loads == nullptr) return openLoadsWindow(main, wantedWindow(design));
    if (!loads->links().all().empty()) return nullptr;
    if (holdsFile(*loads, path) || isEmpty(*loads)) return loads;
    return others == OtherZones::giveWay ? loads : nullptr;
}

/// The loads window that a design was linked to when its program ended, where that has come back
/// too: it holds the design's zone file, or zones that were never saved. Null where there is none.
LoadsWindow* loadsThatCameBack(const LinkedDesign& design, const std::string& path) {
    auto* loads = dynamic_cast<LoadsWindow*>(design.main().find(wantedWindow(design)));
    if (loads == nullptr || design.loads().linkType.empty() || isEmpty(*loads)) return nullptr;
    const ZoneFile& file = design.loads().file;
    const bool same = loads->file().exists ? holdsFile(*loads, path) ||
                                                 holdsFile(*loads, joinPath(file.folder, file.name))
                                           : path.empty();
    return same ? loads : nullptr;
}

/// Zones without a link give way to the file that the person has chosen, after the question about
/// unsaved changes. False when that was cancelled.
bool mayReplaceZones(LinkedDesign& design, const std::string& path) {
    auto* loads = dynamic_cast<LoadsWindow*>(design.main().find(wantedWindow(design)));
    if (loads == nullptr || !loads->links().all().empty() || holdsFile(*loads, path)) return true;
    return loads->CheckForSave();
}

Answer askAboutZones(LinkedDesign& design) {
    Varnmain& main = design.main();
    const Answer answer = main.platform().question(
        Buttons::yesNoCancel, main.text(Text::saveChangesTitle), main.text(Text::saveLoadsToo));
    if (answer == Answer::cancel) {
        warn(main, main.text(Text::saveCancelled));
        main.saveCancelled = true;
    }
    return answer;
}

void saveZones(LinkedDesign& design, LoadsWindow& loads) {
    loads.zoneSaveCancelled = design.zoneSaveCancelled = false;
    loads.LOSaveCommand_Click();
    if (!loads.hasUnsavedChanges()) return;
    warn(design.main(), design.text(Text::saveCancelled));
    loads.zoneSaveCancelled = design.zoneSaveCancelled = true;
    design.main().saveCancelled = true;
}

void join(LinkedDesign& design, LoadsWindow& loads) {
    // The design is about to be shown in the main window's units.
    loads.switchUnits(design.main().units());
    design.takeZonesOf(loads);
}

/// Opens the file in the loads window and takes its zones. False, after a message, where that
/// cannot be.
bool linkWithFile(LinkedDesign& design, const std::string& path, OtherZones others) {
    LoadsWindow* loads = loadsWindowFor(design, path, others);
    if (loads == nullptr) {
        warn(design.main(), design.text(Text::loadsWindowInUse));
        return false;
    }
    if (!holdsFile(*loads, path) && !loads->LOOpenZoneFile(path)) {
        const int why = loads->zoneOpenCancelled ? Text::zoneFileNotOpened : Text::zoneFileDamaged;
        warn(design.main(), design.text(why) + "\n\n" + path);
        return false;
    }
    join(design, *loads);
    return true;
}

FileDialog zoneFileDialog(const LinkedDesign& design) {
    constexpr int zoneFilesInFilter = 3;
    FileDialog dialog;
    dialog.title = design.text(Text::openZoneFileTitle);
    dialog.folder = joinPath(design.main().MainDirectory, "zones");
    dialog.proposedName = design.missingZoneFile();
    dialog.filter = design.text(Text::zoneFileFilter);
    dialog.filterIndex = zoneFilesInFilter;
    return dialog;
}

}  // namespace

void resolveZoneLink(LinkedDesign& design, bool linkIsStored, bool isRecovered) {
    // The zone file makes the link. A project that was saved when its loads window had been closed
    // names a file and no window: it would be without loads if it were not linked again.
    const std::string file = design.loads().file.name;
    if (file.empty()) design.forgetLink();
    design.showLinkLight();
    if (file.empty() || !linkIsStored) return;
    const std::string path = placeOfZoneFile(design);
    if (LoadsWindow* loads = isRecovered ? loadsThatCameBack(design, path) : nullptr) {
        join(design, *loads);
    } else if (path.empty()) {
        warn(design.main(), design.text(Text::zoneFileNotFound) + "\n\n" + file);
        design.forgetZoneFile();
        design.setMissingZoneFile(file);
    } else if (!linkWithFile(design, path, OtherZones::stay)) {
        design.forgetZoneFile();
    }
}

void findZoneFile(GroundDesign& design) {
    Varnmain& main = design.main();
    const std::optional<std::string> chosen = main.platform().chooseFile(zoneFileDialog(design));
    if (!chosen) return;
    const std::string path = absolutePath(main, *chosen);
    main.TempDirectory = folderOf(path);
    if (!mayReplaceZones(design, path)) return;
    // The saved results were computed with the project's own file, wherever it is found.
    const bool ownFile = fileNameOf(path) == design.missingZoneFile();
    const bool stale = design.isStale();
    bool linked = false;
    const auto link = [&] { linked = linkWithFile(design, path, OtherZones::giveWay); };
    if (ownFile)
        fileKindOf(design).linkKeepingResults(design, link);
    else
        link();
    if (!linked) return design.refreshNotice();
    if (ownFile) design.loadsFound(stale);
    design.setUnitLabels();
    // The loads window that may open comes to the front; the design is what the person works with.
    main.activate(design);
    design.refreshNotice();
}

Answer checkZoneFile(LinkedDesign& design) {
    LoadsWindow* loads = design.LoadsHome();
    if (loads == nullptr) return Answer::no;
    const Answer answer = loads->hasUnsavedChanges() ? askAboutZones(design) : Answer::no;
    if (answer == Answer::yes && design.LoadsHome() == loads) saveZones(design, *loads);
    // The project must name the file that its loads are in, also when that was saved or opened in
    // the loads window since the last transfer.
    if (design.LoadsHome() == loads && loads->file().exists) design.takeZoneFile(loads->file());
    return answer;
}

}  // namespace varnholt
