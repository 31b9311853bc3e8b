// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/undo_proof.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"
#include "loads/loads_window.h"

namespace varnholt {

namespace {

/// The project of a design without its link and the file of its zones.
template <class Design>
auto unlinked(const Design& design) {
    auto project = design.project();
    project.loads.linkType.clear();
    project.loads.file = {};
    return project;
}

}  // namespace

UndoProof::Document UndoProof::documentOf(const ChildWindow& window) {
    if (const auto* bores = dynamic_cast<const frmBHDesign*>(&window)) return unlinked(*bores);
    if (const auto* trenches = dynamic_cast<const frmHZDesign*>(&window))
        return unlinked(*trenches);
    if (const auto* pond = dynamic_cast<const frmSWDesign*>(&window)) return unlinked(*pond);
    if (const auto* loads = dynamic_cast<const LoadsWindow*>(&window)) {
        LoadsDocument document = loads->document();
        document.file = {};
        document.information = {};  // the linked design's
        return document;
    }
    return {};
}

void UndoProof::require(bool holds, const ChildWindow& window, const char* what) const {
    if (!holds) throw std::runtime_error(window.caption() + ": " + what);
}

void UndoProof::follow() {
    for (const ChildWindow* window : main_.windows())
        if (window->history().hasStarted() && !window->history().canUndo())
            beginnings_[window->serial()] = documentOf(*window);
}

std::vector<UndoProof::Document> UndoProof::walk(const ChildWindow& window, const char* entry,
                                                 const Press& press) {
    std::vector<Document> way{documentOf(window)};
    while (main_.control(entry).enabled()) {
        press(entry);
        require(main_.activeWindow() == &window, window, "another has come to the front");
        way.push_back(documentOf(window));
    }
    steps_ += way.size() - 1;
    return way;
}

void UndoProof::prove(const Press& press) {
    const ChildWindow* window = main_.activeWindow();
    if (window == nullptr || !window->history().hasStarted()) return;
    // What was undone before is done again first: the proof begins at the end.
    walk(*window, "mnuRedo", press);
    const StatePointer end = window->state();
    std::vector<Document> back = walk(*window, "mnuUndo", press);
    // Of more steps the oldest are forgotten, and the beginning with them.
    const bool forgotten = back.size() > DocumentHistory::mostSteps;
    require(forgotten || back.back() == beginnings_.at(window->serial()), *window,
            "undone to its beginning does not equal its beginning");
    const std::vector<Document> on = walk(*window, "mnuRedo", press);
    std::reverse(back.begin(), back.end());
    require(on.size() == back.size(), *window, "has not as many steps to redo");
    require(on.back() == back.back(), *window, "redone to its end does not equal its end");
    require(on == back, *window, "is redone by another way than it was undone");
    require(window->state()->equals(*end), *window, "redone to its end is in another state");
}

}  // namespace varnholt
