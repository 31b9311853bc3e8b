// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/zone_link.h"

#include <string>

#include "basis/file_system.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "persistence/dialogs.h"

namespace varnholt {
namespace {

void forgetZoneFile(LinkedDesign& design) {
    design.workingZoneFile.clear();
    design.workingZoneDirectory.clear();
    design.workingFileCheck = false;
    design.linkType.clear();
    design.showLinkLight();
}

/// The zone file in the project's own zone folder, or else in the program's; empty for neither.
std::string findZoneFile(const LinkedDesign& design) {
    const std::string programZones = joinPath(design.main().MainDirectory, "zones");
    for (const std::string& folder : {design.workingZoneDirectory, programZones}) {
        std::string path = joinPath(folder, design.workingZoneFile);
        if (!folder.empty() && fileExists(path)) return path;
    }
    return {};
}

bool holdsFile(const LoadsWindow& loads, const std::string& path) {
    return loads.workingFileCheck &&
           samePath(joinPath(loads.workingZoneDirectory, loads.workingZoneFile), path);
}

bool isEmpty(const LoadsWindow& loads) {
    return loads.zoneNumber == 0 && !loads.workingFileCheck && !loads.hasUnsavedChanges();
}

/// The loads window that the project wants, which holds the zone file or can take it; null when it
/// is in use.
LoadsWindow* loadsWindowFor(LinkedDesign& design, const std::string& path) {
    Varnmain& main = design.main();
    // Whatever else the file names, the Zone Manager is meant.
    const char* formName = design.linkType == "frmAvgBlock" ? "frmAvgBlock" : "frmZoneManage";
    auto* loads = dynamic_cast<LoadsWindow*>(main.find(formName));
    if (loads != nullptr && loads->designLinkID != 0) return nullptr;
    if (loads != nullptr && holdsFile(*loads, path)) return loads;
    if (loads != nullptr && !isEmpty(*loads)) return nullptr;
    return loads != nullptr ? loads : openLoadsWindow(main, formName);
}

/// What the project stored of its own.
struct DesignConditionsOfProject {
    explicit DesignConditionsOfProject(const LinkedDesign& design)
        : inletTemp(design.inletTemp),
          flowRate(design.flowRate),
          activeSeries(design.activeSeries) {}
    bool areIn(const LoadsWindow& loads) const {
        return loads.inletTemp == inletTemp && loads.flowRate == flowRate;
    }

    ByMode<double> inletTemp;
    double flowRate;
    std::string activeSeries;
};

/// The zones come from the file; temperatures, flow and series are the project's, with which its
/// results were computed.
void takeZones(LinkedDesign& design, LoadsWindow& loads) {
    const DesignConditionsOfProject stored(design);
    // The design is about to be shown in the main window's units.
    loads.switchUnits(design.main().units());
    if (!stored.activeSeries.empty()) loads.activeSeries = stored.activeSeries;
    joinLoads(design, loads);
    loads.InitializeHeatPumpLists();
    design.TransferLoadsVariablesIn();
    if (design.LoadsHome == nullptr) return;
    design.showLinkLight();
    loads.setLight(true);
    // Also a series that the catalogue at hand does not have.
    if (!stored.activeSeries.empty()) design.activeSeries = stored.activeSeries;
    if (stored.areIn(loads)) return;
    design.inletTemp = stored.inletTemp;
    design.flowRate = stored.flowRate;
    design.TransferLoadsVariablesOut();
}

Answer askAboutZones(LinkedDesign& design) {
    Varnmain& main = design.main();
    const Answer answer =
        main.platform().question(Buttons::yesNoCancel, main.text(1205), main.text(1206));
    if (answer == Answer::cancel) {
        warn(main, main.text(1207));
        main.saveCancelled = true;
    }
    return answer;
}

void saveZones(LinkedDesign& design, LoadsWindow& loads) {
    loads.zoneSaveCancelled = design.zoneSaveCancelled = false;
    loads.LOSaveCommand_Click();
    if (!loads.hasUnsavedChanges()) return;
    warn(design.main(), design.text(1207));
    loads.zoneSaveCancelled = design.zoneSaveCancelled = true;
    design.main().saveCancelled = true;
}

void takeZoneFile(LinkedDesign& design, const LoadsWindow& loads) {
    design.workingZoneFile = loads.workingZoneFile;
    design.workingZoneDirectory = loads.workingZoneDirectory;
    design.workingFileCheck = loads.workingFileCheck;
}

}  // namespace

void resolveZoneLink(LinkedDesign& design) {
    // The zone file makes the link. A project that was saved when its loads window had been closed
    // names a file and no window: it would be without loads if it were not linked again.
    if (design.workingZoneFile.empty()) design.linkType.clear();
    design.showLinkLight();
    if (design.workingZoneFile.empty() || !design.linkIsStored) return;
    const std::string path = findZoneFile(design);
    if (path.empty()) {
        warn(design.main(), design.text(8540) + "\n\n" + design.workingZoneFile);
        forgetZoneFile(design);
        return;
    }
    LoadsWindow* loads = loadsWindowFor(design, path);
    if (loads == nullptr)
        warn(design.main(), design.text(8539));
    else if (!holdsFile(*loads, path) && !loads->LOOpenZoneFile(path))
        warn(design.main(), design.text(8543) + "\n\n" + path);
    else
        return takeZones(design, *loads);
    forgetZoneFile(design);
}

Answer checkZoneFile(LinkedDesign& design) {
    LoadsWindow* loads = design.LoadsHome;
    if (loads == nullptr) return Answer::no;
    const Answer answer = loads->hasUnsavedChanges() ? askAboutZones(design) : Answer::no;
    if (answer == Answer::yes && design.LoadsHome == loads) saveZones(design, *loads);
    // The project must name the file that its loads are in, also when that was saved or opened in
    // the loads window since the last transfer.
    if (design.LoadsHome == loads && loads->workingFileCheck) takeZoneFile(design, *loads);
    return answer;
}

}  // namespace varnholt
