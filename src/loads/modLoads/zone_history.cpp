// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo in the loads windows, and what their notice tells.
#include <algorithm>
#include <string>
#include <vector>

#include "forms/text_numbers/files.h"
#include "loads/linked_design.h"
#include "loads/links.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

/// What undo brings back of a loads window. Which zone was on display, and whether the one block
/// has had its import, come along and make no difference. Whose building it is belongs to the
/// linked design.
struct LoadsState {
    LoadsDocument document;
    std::vector<int> linkedDesigns;  ///< numbers of their windows, ascending
    std::string damage;
    int shownZone = -1;
    bool importRests = false;

    friend bool operator==(const LoadsState& a, const LoadsState& b) {
        return a.document == b.document && a.damage == b.damage &&
               a.linkedDesigns == b.linkedDesigns;
    }
};

class LoadsMoment : public StateOf<LoadsState> {
 public:
    using StateOf::StateOf;
    std::size_t weightBeside(const DocumentState& earlier) const override {
        constexpr std::size_t zoneInList = 32, wholeZone = 560;  // bytes, with what allocates them
        const SharedZones& own = value.document.data.zones;
        const SharedZones& others =
            static_cast<const LoadsMoment&>(earlier).value.document.data.zones;
        if (own.isSameAs(others)) return 0;
        std::size_t bytes = own.size() * zoneInList;
        for (std::size_t i = 0; i < own.size(); ++i)
            if (i >= others.size() || !own.sharesZone(i, others)) bytes += wholeZone;
        return bytes;
    }
};

const LoadsState& valueOf(const DocumentState& state) {
    return static_cast<const LoadsMoment&>(state).value;
}

std::vector<int> designsLinkedTo(const LoadsWindow& loads) {
    std::vector<int> numbers;
    for (const Link* link : loads.links().all()) numbers.push_back(link->design().serial());
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

/// Ends and makes links until they are the wanted ones. The designs keep the zones that they have.
void restoreLinks(LoadsWindow& loads, const std::vector<int>& wanted) {
    for (LinkedDesign* design : linkableDesigns(loads.main())) {
        const bool linked = design->LoadsHome() == &loads;
        const bool toLink = std::count(wanted.begin(), wanted.end(), design->serial()) > 0;
        if (linked && !toLink) design->leaveLoads();
        if (toLink && design->link() == nullptr) {
            design->switchUnits(loads.units());
            design->joinLoads(loads);
        }
        design->refreshNotice();
    }
}

/// Whether there are zones, and the command that fills one from a file is off all the same.
bool importRests(const ZoneWindow& window) {
    return !window.ZoneList().empty() && !window.control("LOImportCommand").enabled();
}

}  // namespace

StatePointer ZoneWindow::state() const {
    LoadsState now{document_, designsLinkedTo(*this), damage_, selectedZone(), importRests(*this)};
    now.document.information = {};
    return std::make_shared<LoadsMoment>(std::move(now));
}

/// A link that the other side has made or ended is there, or gone, whatever is undone here.
void ZoneWindow::takeForeignChanges() {
    const std::vector<int> linked = designsLinkedTo(*this);
    if (valueOf(history().present()).linkedDesigns == linked) return;
    rewriteHistory([&](const DocumentState& state) {
        LoadsState rewritten = valueOf(state);
        rewritten.linkedDesigns = linked;
        return std::make_shared<LoadsMoment>(std::move(rewritten));
    });
}

/// The zones have another file from now on, also those that undo brings back.
void ZoneWindow::keepFileInHistory() {
    rewriteHistory([&](const DocumentState& state) {
        LoadsState rewritten = valueOf(state);
        if (!rewritten.document.data.zones.empty()) rewritten.document.file = document_.file;
        rewritten.damage.clear();
        return std::make_shared<LoadsMoment>(std::move(rewritten));
    });
}

void ZoneWindow::restore(const DocumentState& earlier) {
    const LoadsState& wanted = valueOf(earlier);
    replaceDocument(
        [&](LoadsDocument& document) {
            ProjectInformation information = std::move(document.information);
            document = wanted.document;
            document.information = std::move(information);
        },
        wanted.shownZone);
    control("LOImportCommand").setEnabled(!ZoneList().empty() && !wanted.importRests);
    damage_ = wanted.damage;
    restoreLinks(*this, wanted.linkedDesigns);
}

/// Puts other values into the document and shows all of it.
void ZoneWindow::replaceDocument(const std::function<void(LoadsDocument&)>& replace, int shown) {
    const std::string series = activeSeries();
    const Control* selectAll =
        has("LOAutoSelectAllCommand") ? &control("LOAutoSelectAllCommand") : nullptr;
    const bool selectable = selectAll == nullptr || selectAll->enabled();
    const bool imported = importRests(*this);
    replace(document_);
    if (activeSeries() != series) InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    showZones(std::min(std::max(shown, 0), static_cast<int>(ZoneList().size()) - 1));
    showFile();
    // An import that the one block has had, and a selection for all zones, go on resting.
    if (imported) control("LOImportCommand").setEnabled(false);
    if (!selectable && control("LOSummaryPicture").visible())
        control("LOAutoSelectAllCommand").setEnabled(false);
    rebuildSummary();
}

void ZoneWindow::change(const std::function<void(LoadsDocument&)>& change) {
    touch();
    replaceDocument(change, selectedZone());
    markChanged();
    refreshLinkedNotices();
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

std::vector<Notice> ZoneWindow::notices() {
    std::vector<Notice> holding;
    if (!damage_.empty()) holding.push_back({damage_});
    if (openFile_.readOnly)
        holding.push_back({filledIn(text(Text::noticeOpenElsewhere), {fileOnShow()})});
    for (const FileDamage& damage : catalogue.damage())
        holding.push_back({damageText(texts(), damage)});
    if (const auto refused = fields().refused()) holding.push_back(refusedNotice(*refused));
    return holding;
}

}  // namespace varnholt
