// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "basis/units.h"
#include "forms/form.h"
#include "frame/document_history.h"
#include "frame/notice.h"

namespace varnholt {

class Varnmain;

/// A window that the main window keeps account of.
class ChildWindow : public Form {
 public:
    ChildWindow(std::string formName, Varnmain& main);

    Varnmain& main() const { return main_; }

    /// Form_Load: fills the window before it is first shown.
    virtual void load() {}
    /// A design project: the frame's commands for designs work on it.
    virtual bool isDesign() const { return false; }
    /// One of the two loads windows.
    virtual bool isLoads() const { return false; }
    /// Any other window that the save command knows how to save.
    virtual bool canSave() const { return isDesign() || isLoads(); }
    /// The save command of such a window.
    virtual void save() {}
    /// There are reports of the window.
    bool canPrint() const { return isDesign() || isLoads(); }

    /// The window whose document this one shows a part of. While this one is in front, the commands
    /// that save, undo and switch units work on that one.
    virtual ChildWindow& owner() { return *this; }

    /// Whether the window has a unit switch, the check box `MetricCheck`.
    bool hasUnitSwitch() const { return has("MetricCheck"); }
    /// The units in which the window shows its values.
    virtual UnitSystem units() const;
    /// Puts `MetricCheck` to the value and runs MetricCheck_Click when that changes it.
    void switchUnits(UnitSystem units);
    virtual void MetricCheck_Click() {}
    /// Other windows have been opened or closed, or another one is active.
    virtual void windowsChanged() {}
    /// The user's action in some window has been handled to its end, whatever it changed.
    virtual void actionDone() {}

    /// Fields are being rewritten by code: text changes must not be treated as the user's.
    bool settingUnits = false;

    // The document that the window edits, and its history. A window without a document has none.
    /// Everything that undo brings back, or null.
    virtual StatePointer state() const { return nullptr; }
    const DocumentHistory& history() const { return history_; }
    /// The document is new, or another one has been opened: nothing can be undone.
    /// @param saved  it counts as saved
    void startHistory(bool saved = true);
    /// Takes the last step back, or does it again, here and in the other windows that it has
    /// changed.
    void undo();
    void redo();
    /// No other window of the program has or had this number.
    int serial() const { return serial_; }
    /// Before another window's action changes this document: what it changes is a step here too.
    void touch();
    /// The action that touched this document has ended; without a name it makes no step.
    void changedByAnother(const std::string& step, const std::string& visit, bool visitEnds,
                          int action);
    /// The windows whose last step, or next to be redone, is of the action.
    std::vector<ChildWindow*> withStep(int action, int (DocumentHistory::*of)() const);
    /// What comes is changed from the document as it stands now.
    void beginStep();
    /// Gives every state of the history what is no matter of steps.
    void rewriteHistory(const std::function<StatePointer(const DocumentState&)>& rewritten) {
        history_.rewrite(rewritten);
    }

    /// Shows the notices that hold now.
    void refreshNotice();

    void actionBegins() override;
    void actionEnds(const UserAction& action) override;

 protected:
    friend class DocumentStep;

    /// To be called by load: the window starts in the units of the Units menu, which works it from
    /// now on.
    void startInUnitsOfMenu();

    /// Puts an earlier state back and shows it.
    virtual void restore(const DocumentState&) {}
    /// Whether what other windows have changed leaves a saved document saved.
    virtual bool staysSaved() const { return false; }
    /// After undo and redo: whether the document counts as changed.
    virtual void savedStateReached(bool /*atSaved*/) {}
    /// What holds now, the most pressing first.
    virtual std::vector<Notice> notices() { return {}; }
    /// Before a step begins: what others have changed that is no matter of steps, such as the link,
    /// goes into every state of the history.
    virtual void takeForeignChanges() {}
    /// A step has been recorded, by whatever window's action.
    virtual void stepRecorded() {}
    /// The visit of a field ends though the keyboard stays in it: what is typed next is a step of
    /// its own.
    void endVisitOfField();
    /// Adds `NoticeLabel` and `NoticeCommand`, which show while there is something to tell.
    void addNotice();
    /// The document has been saved as it stands.
    void markSaved();
    /// The command at hand calls its step so; else it is called by the control that was used.
    void nameStep(std::string name) { stepName_ = std::move(name); }
    /// How the step is called that an action has made.
    virtual std::string stepName(const UserAction& action) const;
    /// Explains why a field holds another value than was typed.
    Notice refusedNotice(const RefusedValue& refused) const;

 private:
    void endStep(const std::string& name, const std::string& visit, int action);
    std::string visitOf(const UserAction& action) const;
    void goTo(const DocumentState& wanted);

    Varnmain& main_;
    int serial_;
    DocumentHistory history_;
    std::string stepName_;
    std::function<void()> noticeAction_;
};

/// A command that changes documents from outside their windows' own actions, as one step of their
/// histories from here to the end of the scope.
class DocumentStep {
 public:
    DocumentStep(std::vector<ChildWindow*> windows, std::string name);
    ~DocumentStep();
    DocumentStep(const DocumentStep&) = delete;
    DocumentStep& operator=(const DocumentStep&) = delete;

 private:
    std::vector<ChildWindow*> windows_;
    Varnmain& main_;
    std::string name_;
};

}  // namespace varnholt
