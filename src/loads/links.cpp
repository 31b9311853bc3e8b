// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/links.h"

#include <algorithm>
#include <iterator>

#include "frame/varnmain.h"
#include "loads/frmLinkOptions.h"
#include "loads/linked_design.h"
#include "loads/loads_window.h"

namespace varnholt {
namespace {

LoadsWindow* loadsWindow(const Varnmain& main, const char* formName) {
    return dynamic_cast<LoadsWindow*>(main.find(formName));
}

/// The one loads window that is open, or the user's choice of the two; null for none.
LoadsWindow* chooseLoadsWindow(Varnmain& main) {
    LoadsWindow* zones = loadsWindow(main, "frmZoneManage");
    LoadsWindow* block = loadsWindow(main, "frmAvgBlock");
    if (zones == nullptr || block == nullptr) return zones != nullptr ? zones : block;
    frmLinkOptions question(main);
    main.runModal(question);
    if (main.LinkOption == frmLinkOptions::cancelled) return nullptr;
    LoadsWindow* chosen = main.LinkOption == 0 ? zones : block;
    return main.isOpen(chosen) ? chosen : nullptr;
}

/// Shows the design's link on both windows and, for the first time, brings its loads over. False
/// when one of them was closed on the way.
bool linkWithTransfer(LinkedDesign& design, LoadsWindow& loads) {
    Varnmain& main = design.main();
    joinLoads(design, loads);
    design.element("imgLinkLight", 6).setVisible(false);
    design.TransferLoadsVariablesIn();
    if (!main.isOpen(&design) || design.LoadsHome == nullptr) return false;
    design.showLinkLight();
    loads.setLight(true);
    return true;
}

/// A design without a series takes the loads window's: no series is no choice.
void shareSeries(LinkedDesign& design, LoadsWindow& loads) {
    if (design.activeSeries.empty()) design.activeSeries = loads.activeSeries;
    loads.activeSeries = design.activeSeries;
    loads.InitializeHeatPumpLists();
}

void linkDesign(LinkedDesign& design) {
    if (!design.linkType.empty()) return;
    LoadsWindow* loads = chooseLoadsWindow(design.main());
    if (loads == nullptr) return;
    loads->switchUnits(design.units());
    if (linkWithTransfer(design, *loads)) shareSeries(design, *loads);
}

/// Only one free design is an unmistakable partner.
void linkLoadsWindow(LoadsWindow& loads) {
    LinkedDesign* partner = nullptr;
    int freeDesigns = 0;
    for (LinkedDesign* design : linkableDesigns(loads.main())) {
        if (design->LoadsHome != nullptr) continue;
        ++freeDesigns;
        partner = design;
    }
    if (freeDesigns != 1) return;
    partner->switchUnits(loads.units());
    if (linkWithTransfer(*partner, loads)) partner->activeSeries = loads.activeSeries;
}

/// Every window that is linked to the loads window goes over to its units.
void loadsUnitsSwitched(LoadsWindow& loads) {
    for (LinkedDesign* design : designsLinkedTo(loads)) design->switchUnits(loads.units());
}

}  // namespace

void installLinks(Varnmain& main) {
    main.setCommand("mnuLink", CommandNeeds::anyWindow, [&main] { mnuLink_Click(main); });
    main.setCommand("mnuUnlink", CommandNeeds::anyWindow, [&main] { mnuUnlink_Click(main); });
}

std::vector<LinkedDesign*> linkableDesigns(const Varnmain& main) {
    std::vector<LinkedDesign*> found;
    for (DesignDocument* design : main.designs())
        if (auto* linked = dynamic_cast<LinkedDesign*>(design)) found.push_back(linked);
    std::stable_sort(found.begin(), found.end(), [](const LinkedDesign* a, const LinkedDesign* b) {
        return a->kind() != b->kind() ? a->kind() < b->kind() : a->counter < b->counter;
    });
    return found;
}

std::vector<LinkedDesign*> designsLinkedTo(const LoadsWindow& loads) {
    std::vector<LinkedDesign*> found = linkableDesigns(loads.main());
    const auto others = [&](const LinkedDesign* design) { return design->LoadsHome != &loads; };
    found.erase(std::remove_if(found.begin(), found.end(), others), found.end());
    return found;
}

void mnuLink_Click(Varnmain& main) {
    ChildWindow* active = main.activeWindow();
    if (auto* design = dynamic_cast<LinkedDesign*>(active))
        linkDesign(*design);
    else if (auto* loads = dynamic_cast<LoadsWindow*>(active))
        linkLoadsWindow(*loads);
}

void mnuUnlink_Click(Varnmain& main) {
    const ChildWindow* active = main.activeWindow();
    if (active == nullptr) return;
    for (LinkedDesign* design : linkableDesigns(main))
        if (design->LoadsHome != nullptr && (design == active || design->LoadsHome == active))
            unlinkDesign(*design);
}

void cleanupLinks(ChildWindow& closing) {
    for (LinkedDesign* design : linkableDesigns(closing.main()))
        if (design->LoadsHome != nullptr && (design == &closing || design->LoadsHome == &closing))
            unlinkDesign(*design);
}

void joinLoads(LinkedDesign& design, LoadsWindow& loads) {
    design.linkType = loads.formName();
    design.LoadsHome = &loads;
    loads.designLinkID = design.myID;
    loads.setCaption(linkedCaption(loads, design));
    loads.onUnitsSwitched = [&loads] { loadsUnitsSwitched(loads); };
    loads.onClosed = [&loads] { cleanupLinks(loads); };
}

void unlinkDesign(LinkedDesign& design) {
    LoadsWindow* loads = design.LoadsHome;
    const bool named = loads != nullptr && namesDesign(*loads, design);
    design.linkType.clear();
    design.LoadsHome = nullptr;
    design.showLinkLight();
    if (loads == nullptr) return;
    const std::vector<LinkedDesign*> others = designsLinkedTo(*loads);
    if (others.empty()) {
        loads->designLinkID = 0;
        loads->setCaption(loads->plainTitle());
        loads->setLight(false);
        loads->showHoursAndDays(true);
    } else if (named) {
        // It goes on serving the others: one of them gives it its name now.
        loads->designLinkID = others.back()->myID;
        loads->setCaption(linkedCaption(*loads, *others.back()));
        loads->showHoursAndDays(others.back()->usesHoursAndDays());
    }
}

void linkedSetMetric(LinkedDesign& design, LoadsWindow& loads) {
    loads.switchUnits(design.units());
    loads.setCaption(linkedCaption(loads, design));
}

void renameDesign(LinkedDesign& design, const std::string& path) {
    LoadsWindow* loads = design.LoadsHome;
    const bool named = loads != nullptr && namesDesign(*loads, design);
    design.setFile(path);
    if (named) loads->setCaption(linkedCaption(*loads, design));
}

LoadsWindow* openLoadsWindow(Varnmain& main, const std::string& formName) {
    main.click(formName == "frmAvgBlock" ? "mnuAvgBlock" : "mnuZoneManage");
    return dynamic_cast<LoadsWindow*>(main.find(formName));
}

void TransferCall(Varnmain& main, std::int16_t designLinkID) {
    for (LinkedDesign* design : linkableDesigns(main)) {
        if (design->myID != designLinkID || design->LoadsHome == nullptr) continue;
        design->TransferLoadsVariablesIn();
        return;
    }
}

std::string linkedCaption(const LoadsWindow& loads, const LinkedDesign& design) {
    const int relation = loads.formName() == "frmAvgBlock" ? 1030 : 1031;
    return loads.plainTitle() + " - " + loads.text(relation) + " " + design.projectCaption();
}

bool namesDesign(const LoadsWindow& loads, const LinkedDesign& design) {
    return loads.caption() == linkedCaption(loads, design);
}

}  // namespace varnholt
