// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/links.h"

#include <algorithm>

#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/main.h"
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

/// Shows the design's link on both windows and, for the first time, brings its loads over.
void linkWithTransfer(LinkedDesign& design, LoadsWindow& loads) {
    design.joinLoads(loads);
    design.TransferLoadsVariablesIn();
}

/// A design without a series takes the loads window's: no series is no choice.
void shareSeries(LinkedDesign& design, LoadsWindow& loads) {
    if (design.loads().activeSeries.empty()) design.takeSeries(loads.activeSeries());
    loads.takeSeries(design.loads().activeSeries);
}

bool isLoadsWindowOpen(const Varnmain& main) {
    return main.find("frmZoneManage") != nullptr || main.find("frmAvgBlock") != nullptr;
}

void tell(const Varnmain& main, int sentence) { main.platform().tell(main.text(sentence)); }

void tellLinked(const LinkedDesign& design) {
    const Varnmain& main = design.main();
    main.platform().tell(filledIn(main.text(Text::linkMade), {design.caption()}));
}

void linkDesign(LinkedDesign& design) {
    Varnmain& main = design.main();
    if (design.link() != nullptr) return tell(main, Text::linkedAlready);
    if (!isLoadsWindowOpen(main)) return tell(main, Text::linkNeedsLoads);
    LoadsWindow* loads = chooseLoadsWindow(main);
    if (loads == nullptr || !main.isOpen(&design)) return;
    const DocumentStep step({&design, loads}, design.text(Text::linkLoads));
    loads->switchUnits(design.units());
    linkWithTransfer(design, *loads);
    shareSeries(design, *loads);
    tellLinked(design);
}

/// Only one free design is an unmistakable partner.
void linkLoadsWindow(LoadsWindow& loads) {
    LinkedDesign* partner = nullptr;
    int freeDesigns = 0;
    const std::vector<LinkedDesign*> designs = linkableDesigns(loads.main());
    for (LinkedDesign* design : designs) {
        if (design->link() != nullptr) continue;
        ++freeDesigns;
        partner = design;
    }
    if (designs.empty()) return tell(loads.main(), Text::linkNeedsDesign);
    if (freeDesigns == 0) return tell(loads.main(), Text::linkNeedsFreeDesign);
    if (freeDesigns > 1) return tell(loads.main(), Text::linkIsNotClear);
    const DocumentStep step({&loads, partner}, loads.text(Text::linkLoads));
    partner->switchUnits(loads.units());
    linkWithTransfer(*partner, loads);
    partner->takeSeries(loads.activeSeries());
    tellLinked(*partner);
}

/// The links that name the window, on either side.
std::vector<LinkedDesign*> designsLinkedBy(const ChildWindow& window) {
    std::vector<LinkedDesign*> found = linkableDesigns(window.main());
    const auto others = [&](const LinkedDesign* design) {
        return design->link() == nullptr || (design != &window && design->LoadsHome() != &window);
    };
    found.erase(std::remove_if(found.begin(), found.end(), others), found.end());
    return found;
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

void mnuLink_Click(Varnmain& main) {
    ChildWindow* active = main.activeWindow();
    if (auto* design = dynamic_cast<LinkedDesign*>(active))
        linkDesign(*design);
    else if (auto* loads = dynamic_cast<LoadsWindow*>(active))
        linkLoadsWindow(*loads);
}

void mnuUnlink_Click(Varnmain& main) {
    ChildWindow* active = main.activeWindow();
    if (active == nullptr) return;
    std::vector<ChildWindow*> changed{active};
    const std::vector<LinkedDesign*> linked = designsLinkedBy(*active);
    if (linked.empty()) tell(main, Text::noLinkToEnd);
    for (LinkedDesign* design : linked) {
        changed.push_back(design);
        changed.push_back(design->LoadsHome());
    }
    std::sort(changed.begin(), changed.end());
    changed.erase(std::unique(changed.begin(), changed.end()), changed.end());
    const DocumentStep step(changed, main.text(Text::unlinkLoads));
    cleanupLinks(*active);
    if (!linked.empty()) tell(main, Text::linkEnded);
}

void cleanupLinks(ChildWindow& closing) {
    for (LinkedDesign* design : designsLinkedBy(closing)) {
        design->leaveLoads();
        design->refreshNotice();
    }
}

void linkedSetMetric(LinkedDesign& design, LoadsWindow& loads) {
    loads.switchUnits(design.units());
    loads.setCaption(linkedCaption(loads, design));
}

void renameDesign(LinkedDesign& design, const std::string& path) {
    design.setFile(path);
    const Link* link = design.link();
    if (link != nullptr && link->isNamed())
        link->loads().setCaption(linkedCaption(link->loads(), design));
}

LoadsWindow* openLoadsWindow(Varnmain& main, const std::string& formName) {
    main.click(formName == "frmAvgBlock" ? "mnuAvgBlock" : "mnuZoneManage");
    return dynamic_cast<LoadsWindow*>(main.find(formName));
}

void TransferCall(Varnmain& main, std::int16_t designLinkID) {
    for (LinkedDesign* design : linkableDesigns(main)) {
        if (design->myID != designLinkID || design->link() == nullptr) continue;
        design->TransferLoadsVariablesIn();
        return;
    }
}

std::string linkedCaption(const LoadsWindow& loads, const LinkedDesign& design) {
    const int relation =
        loads.formName() == "frmAvgBlock" ? Text::averageBlockOf : Text::zoneManagerOf;
    return loads.plainTitle() + " - " + loads.text(relation) + " " + design.projectCaption();
}

}  // namespace varnholt
