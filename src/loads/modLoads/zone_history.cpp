// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo in the loads windows, and what their notice tells.
#include <algorithm>

#include "forms/text_numbers.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

/// What undo brings back of a loads window. Which zone was on display comes along and makes no
/// difference.
struct LoadsState {
    LoadsDocument document;
    std::vector<std::int16_t> linkedDesigns;  ///< their own numbers
    int shownZone = -1;

    friend bool operator==(const LoadsState& a, const LoadsState& b) {
        return a.document == b.document && a.linkedDesigns == b.linkedDesigns;
    }
};

std::vector<std::int16_t> designsLinkedTo(const LoadsWindow& loads) {
    std::vector<std::int16_t> numbers;
    for (const Link* link : loads.links().all()) numbers.push_back(link->design().myID);
    return numbers;
}

/// Ends and makes links until they are the wanted ones. The designs keep the zones that they have.
void restoreLinks(LoadsWindow& loads, const std::vector<std::int16_t>& wanted) {
    for (LinkedDesign* design : linkableDesigns(loads.main())) {
        const bool linked = design->LoadsHome() == &loads;
        const bool toLink = std::count(wanted.begin(), wanted.end(), design->myID) > 0;
        if (linked && !toLink) design->leaveLoads();
        if (toLink && design->link() == nullptr) {
            design->joinLoads(loads);
            design->showLinkLight();
            loads.setLight(true);
        }
        design->refreshNotice();
    }
}

}  // namespace

StatePointer ZoneWindow::state() const {
    return std::make_shared<StateOf<LoadsState>>(
        LoadsState{document_, designsLinkedTo(*this), selectedZone()});
}

void ZoneWindow::restore(const DocumentState& earlier) {
    const LoadsState& wanted = static_cast<const StateOf<LoadsState>&>(earlier).value;
    const std::string series = activeSeries();
    const int shown = std::max(wanted.shownZone, 0);
    document_ = wanted.document;
    if (activeSeries() != series) InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(std::min(shown, static_cast<int>(ZoneList().size()) - 1));
    showFile();
    rebuildSummary();
    restoreLinks(*this, wanted.linkedDesigns);
}

void ZoneWindow::change(const std::function<void(LoadsDocument&)>& change) {
    touch();
    const std::string series = activeSeries();
    const int shown = std::max(selectedZone(), 0);
    change(document_);
    if (activeSeries() != series) InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(std::min(shown, static_cast<int>(ZoneList().size()) - 1));
    showFile();
    markChanged();
    rebuildSummary();
}

void ZoneWindow::savedStateReached(bool atSaved) {
    setChanged(!atSaved && !ZoneList().empty());
    LoadsWindow::savedStateReached(atSaved);
}

/// Commands tell which zone they are about.
std::string ZoneWindow::stepName(const UserAction& action) const {
    const std::string name = LoadsWindow::stepName(action);
    if (action.control == "LONewCommand" || action.control == "LOCopyCommand")
        return ZoneList().empty() ? name : name + " " + ZoneList().back().name;
    const Zone* shown = shownZone();
    const bool ofZone = control(action.control).kind() == ControlKind::button && shown != nullptr &&
                        !control(action.control).container().empty();
    return ofZone ? name + " " + shown->name : name;
}

std::vector<Notice> ZoneWindow::notices() const {
    std::vector<Notice> holding;
    if (!halfReadFile_.empty())
        holding.push_back({filledIn(text(Text::noticeFileIncomplete), {halfReadFile_})});
    if (const auto refused = fields().refused()) holding.push_back(refusedNotice(*refused));
    return holding;
}

}  // namespace varnholt
