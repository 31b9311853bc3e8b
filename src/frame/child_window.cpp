// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/child_window.h"

#include <utility>

#include "frame/varnmain.h"

namespace varnholt {
ChildWindow::ChildWindow(std::string formName, Varnmain& main)
    : Form(std::move(formName), main.platform(), main.texts()),
      main_(main),
      serial_(main.nextSerial()) {}

UnitSystem ChildWindow::units() const {
    return hasUnitSwitch() && control("MetricCheck").checked() ? UnitSystem::metric
                                                               : UnitSystem::english;
}

void ChildWindow::switchUnits(UnitSystem wanted) {
    if (!hasUnitSwitch() || units() == wanted) return;
    control("MetricCheck").setChecked(wanted == UnitSystem::metric);
    MetricCheck_Click();
}

void ChildWindow::startInUnitsOfMenu() {
    // The Units menu switches no window before one has been counted.
    if (main_.windowCounter == 0) main_.windowCounter = 1;
    control("MetricCheck").setChecked(main_.units() == UnitSystem::metric);
}

void ChildWindow::startHistory(bool saved) {
    if (StatePointer now = state()) history_.start(std::move(now), saved);
}

void ChildWindow::actionBegins() {
    main_.beginAction();
    stepName_.clear();
    beginStep();
}

void ChildWindow::actionEnds(const UserAction& action) {
    const bool open = main_.isOpen(this);
    const std::string name = open ? stepName(action) : std::string();
    const std::string visit = open ? visitOf(action) : std::string();
    const std::string visitOfAll = visit.empty() ? visit : std::to_string(serial_) + "." + visit;
    const int number = main_.actionNumber(visitOfAll);
    if (open) {
        endStep(name, visit, number);
        if (action.verb == Verb::leave) history_.endVisit();
        refreshNotice();
    }
    main_.endAction(name, visitOfAll, action.verb == Verb::leave, number);
}

/// Typing in a field up to its leaving is one change, and so is a slider's drag.
std::string ChildWindow::visitOf(const UserAction& action) const {
    const Control& acted = control(action.control);
    if (action.verb == Verb::leave || visitedField() == action.control || acted.editable())
        return action.control;
    return gesture().empty() ? gesture() : gesture() + " " + std::to_string(gestureNumber());
}

std::string ChildWindow::stepName(const UserAction& action) const {
    if (!stepName_.empty()) return stepName_;
    const Control& acted = control(action.control);
    if (!acted.accessibleName().empty()) return acted.accessibleName();
    if (!acted.caption().empty()) return captionWords(acted.caption());
    if (!acted.label().empty()) return captionWords(control(acted.label()).caption());
    return acted.tooltip();
}

void ChildWindow::beginStep() {
    if (!history_.hasStarted()) return;
    takeForeignChanges();
    history_.absorb(state(), staysSaved());
}

void ChildWindow::endStep(const std::string& name, const std::string& visit, int action) {
    if (!history_.hasStarted()) return;
    history_.record(state(), name, visit, action, staysSaved());
    stepRecorded();
}

void ChildWindow::touch() { main_.touch(*this); }

void ChildWindow::changedByAnother(const std::string& step, const std::string& visit,
                                   bool visitEnds, int action) {
    if (step.empty())
        beginStep();
    else
        endStep(step, visit, action);
    if (visitEnds) history_.endVisit();
    refreshNotice();
}

void ChildWindow::markSaved() {
    if (history_.hasStarted()) history_.markSaved(state());
}

/// This window last, since it is the one that the user looks at.
std::vector<ChildWindow*> ChildWindow::withStep(int action, int (DocumentHistory::*of)() const) {
    std::vector<ChildWindow*> found;
    for (ChildWindow* other : main_.windows())
        if (other != this && action != 0 && (other->history_.*of)() == action)
            found.push_back(other);
    found.push_back(this);
    for (ChildWindow* window : found) window->beginStep();
    return found;
}

void ChildWindow::undo() {
    if (!history_.canUndo()) return;
    for (ChildWindow* window : withStep(history_.undoAction(), &DocumentHistory::undoAction))
        window->goTo(window->history_.undo());
}

void ChildWindow::redo() {
    if (!history_.canRedo()) return;
    for (ChildWindow* window : withStep(history_.redoAction(), &DocumentHistory::redoAction))
        window->goTo(window->history_.redo());
}

void ChildWindow::goTo(const DocumentState& wanted) {
    endVisit();
    fields().forgetRefused();
    restore(wanted);
    history_.settle(state());
    savedStateReached(history_.isAtSaved());
    refreshNotice();
}

void ChildWindow::endVisitOfField() {
    endVisit();
    history_.endVisit();
}

Notice ChildWindow::refusedNotice(const RefusedValue& refused) const {
    return {whyRefused(refused)};
}

void ChildWindow::addNotice() {
    add("NoticeLabel", ControlKind::label).setVisible(false);
    add("NoticeCommand", ControlKind::button).setVisible(false);
    onClick("NoticeCommand", [this] {
        // The action may change what the notice says, and with it the action.
        const std::function<void()> action = noticeAction_;
        nameStep(control("NoticeCommand").caption());
        if (action) action();
    });
}

void ChildWindow::refreshNotice() {
    if (!has("NoticeLabel")) return;
    const std::vector<Notice> holding = notices();
    std::string text;
    for (const Notice& notice : holding) text += (text.empty() ? "" : " ") + notice.text;
    const bool acts = !holding.empty() && !holding.front().action.empty();
    noticeAction_ = acts ? holding.front().act : nullptr;
    control("NoticeLabel").setCaption(text).setVisible(!text.empty());
    control("NoticeCommand")
        .setCaption(acts ? holding.front().action : std::string())
        .setVisible(acts);
}

DocumentStep::DocumentStep(std::vector<ChildWindow*> windows, std::string name)
    : windows_(std::move(windows)), main_(windows_.front()->main()), name_(std::move(name)) {
    for (ChildWindow* window : windows_) window->beginStep();
}

DocumentStep::~DocumentStep() {
    const int number = main_.actionNumber({});
    for (ChildWindow* window : windows_) {
        if (!main_.isOpen(window)) continue;
        window->endStep(name_, {}, number);
        window->refreshNotice();
    }
}

}  // namespace varnholt
