// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "forms/form.h"
#include "frame/child_window.h"
#include "frame/design_slots.h"

namespace varnholt {

class DesignDocument;

/// When a menu command can be used.
enum class CommandNeeds { nothing, anyWindow, design, designOrLoads, printable, undo, redo };

/// The main window: menus, toolbar, the common dialog, and the account of all child windows.
///
/// It knows no subsystem. Each subsystem registers its commands with setCommand; an entry for
/// which nothing is registered stands in the menu, disabled.
class Varnmain : public Form {
 public:
    /// @param programFolder the program's folder, without a slash at its end
    Varnmain(Platform& platform, const Texts& texts, std::string programFolder);
    ~Varnmain() override;

    /// The frame's start: captions, units of the language, empty slots, start picture.
    void start();

    void setCommand(const std::string& entry, CommandNeeds needs, std::function<void()> run);
    /// Whether a subsystem has registered the command.
    bool hasCommand(const std::string& entry) const { return commands_.count(entry) > 0; }

    /// Who explains the controls of every window from now on.
    void explainBy(HelpDesk& desk);

    // Child windows.
    /// Runs the window's set-up, shows it and makes it the active one.
    void open(std::unique_ptr<ChildWindow> window);
    void activate(ChildWindow& window);
    /// Asks the window, and takes it away unless it refuses. False when it stays.
    bool close(ChildWindow& window);
    ChildWindow* activeWindow() const { return active_; }
    /// The window whose document the one in front shows; null where none is open.
    ChildWindow* ownerInFront() const { return active_ == nullptr ? nullptr : &active_->owner(); }
    /// Open windows in the order in which they were opened.
    std::vector<ChildWindow*> windows() const;
    std::vector<ChildWindow*> windowsNamed(const std::string& formName) const;
    /// The window of that name which is active, or else the one opened last; null for none.
    ChildWindow* find(const std::string& formName) const;
    /// Of the windows that the condition holds for, the one that was active last; null for none.
    ChildWindow* lastActive(const std::function<bool(const ChildWindow&)>& condition) const;
    /// Number of an open window among those of its name, from 1 in order of opening.
    int numberOf(const Form& window) const;
    bool isOpen(const Form* window) const;

    // Design windows.
    /// Takes the next slot of the kind after compacting the slots, and counts the new window.
    /// 0 with a message when all 50 are in use.
    std::int16_t takeSlot(DesignKind kind);
    void releaseSlot(DesignKind kind, std::int16_t slot);
    std::vector<DesignDocument*> designs() const;
    bool anyDesignOpen() const;
    DesignSlots& slots(DesignKind kind) { return slots_[static_cast<std::size_t>(kind)]; }
    /// openWindowFiles(kind, slot): file name of an open design window, with its folder.
    std::string& openWindowFiles(DesignKind kind, std::int16_t slot);

    // The user's actions in the child windows, and the documents that they change.
    void beginAction() { ++actions_, ++actionsSoFar_; }
    /// A number that grows with every action, and with every window that opens or closes.
    int actionsSoFar() const { return actionsSoFar_; }
    /// @param name, visit how the action calls its step, for the documents of other windows that
    ///                    it has changed too
    /// @param visitEnds   the visit ends with it
    /// @param number      of actionNumber
    void endAction(const std::string& name, const std::string& visit, bool visitEnds, int number);
    /// The number by which all documents call the action at hand; actions of one visit share it.
    int actionNumber(const std::string& visit);
    int nextSerial() { return ++lastSerial_; }
    /// An action is about to change the document of another window.
    void touch(ChildWindow& window);
    void actionBegins() override { beginAction(); }
    void actionEnds(const UserAction& action) override;

    // A dialog of the program: the modal form takes the user's actions until it ends itself.
    void runModal(Form& form);
    /// Modal forms on show, the innermost last.
    const std::vector<Form*>& modalForms() const { return modal_; }

    bool queryClose() override;

    /// Puts the enabled state of every menu entry and button and the unit marks right.
    void refreshCommands();
    /// A project or zone file has been opened or saved: whoever keeps the recent files hears of it.
    std::function<void(const std::string& path)> fileUsed = [](const std::string&) {};

    /// Says in `NoticeLabel` what no window is there to tell, until the next command; an empty text
    /// takes it away.
    void setNotice(const std::string& text);

    /// Called by a window that has switched its units.
    void unitsSwitched(ChildWindow& window);
    UnitSystem units() const;

    void Metric_Click();
    void English_Click();
    void mnuAbout_Click();
    void mnuShowToolbar_Click();
    void mnuFileExit_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    /// Takes the start picture away.
    void hideSplash();
    Form* splash() const { return splash_.get(); }

    std::string MainDirectory;
    std::string TempDirectory;
    std::string FontFaceName;
    std::string helpFile;
    /// The page of the help that was asked for last: "borehole.html#soil".
    std::string HHTopicURL;
    /// File name chosen in the common dialog last.
    std::string commonDialogFile;
    bool openCall = false;
    /// Files that are open are marked for other programs, and theirs asked about; what a save left
    /// that was cut off is offered. Scripts go without unless they ask for it.
    bool guardsFiles = false;
    bool saveCancelled = false;
    /// The main window itself is being closed, and asks its windows one by one.
    bool closing = false;
    std::int16_t windowCounter = 0;
    std::int16_t browserCount = 0;
    std::int16_t PrintOption = 0, LinkOption = 0, TransferOption = 0;
    /// Load factor of the peak month that was handed over last, of a calculation of full-load hours
    /// and of imported monthly loads.
    ByMode<double> transferPLFm{}, import1TransferPLFm{};
    bool frmZoneManageWindowExists = false;
    bool frmAvgBlockWindowExists = false;
    bool HPEditWindowExists = false;
    bool frmDiffusivityCalcExists = false;
    bool frmPumpPowerCalcExists = false;
    bool frmEqvHoursCalcExists = false;
    bool frmImport1Exists = false;

 private:
    struct Command {
        CommandNeeds needs = CommandNeeds::nothing;
        std::function<void()> run;
    };

    void addMenus();
    void addToolbar();
    void registerValues();
    void run(const std::string& entry);
    bool usable(const Command& command) const;
    void compact(DesignKind kind);
    void reassignSlot(DesignKind kind, std::size_t from, std::size_t to);
    void setActive(ChildWindow* window);
    void takeAway(ChildWindow& window);
    void tellWindows();
    void refreshUndo();
    ChildWindow& nextToClose() const;

    HelpDesk* helpDesk_ = nullptr;
    std::map<std::string, Command> commands_;
    std::vector<std::unique_ptr<ChildWindow>> windows_;
    /// Closed in the midst of their own handlers: kept until those have ended and a window opens.
    std::vector<std::unique_ptr<ChildWindow>> closed_;
    std::vector<ChildWindow*> activationOrder_;
    std::vector<Form*> modal_;
    std::vector<ChildWindow*> touched_;
    int actions_ = 0;
    int actionsSoFar_ = 0;
    int lastSerial_ = 0;
    int actionNumber_ = 0;
    std::string lastVisit_;
    ChildWindow* active_ = nullptr;
    std::array<DesignSlots, 3> slots_;
    std::unique_ptr<Form> splash_;
};

}  // namespace varnholt
