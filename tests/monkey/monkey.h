// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "frame/varnmain.h"
#include "monkey/dice.h"
#include "monkey/monkey_log.h"
#include "monkey/monkey_platform.h"
#include "monkey/undo_proof.h"
#include "script/driver.h"

namespace varnholt {

/// A user who presses, types, chooses and slides whatever can be worked, without sense. After
/// every action the windows' invariants are checked; what does not hold, and every exception that
/// a handler lets out, leaves as an exception.
class Monkey : public ScriptHost {
 public:
    Monkey(Varnmain& main, MonkeyPlatform& platform, Driver& driver, Dice& dice, MonkeyLog& log);

    /// One action. Dialogs that it brings up take further actions until they close.
    void press();
    /// Whether the main window is still open.
    bool running() const { return platform_.forms().isOpen(&main_); }
    std::size_t presses() const { return presses_; }
    /// Steps that have been undone and redone to prove that documents come back.
    std::size_t stepsProved() const { return undo_.steps(); }

    void runModal(Form& form) override;
    void fail(const ScriptFault& fault) override;

 private:
    void act();
    Form& anyForm();
    const Control& anyControl(const std::vector<const Control*>& workable);
    void look(Form& form);
    void proveUndo();
    void closeSome();
    void work(Form& form, const Control& control);
    void worked(Form* form);
    void type(Form& form, const Control& control);
    void choose(Form& form, const Control& control);
    void select(Form& form, const Control& control);
    void slide(Form& form, const Control& control);
    std::string anyText(const Control& control);
    void log(const std::string& verb, const Form& form, const Control& control,
             const std::string& rest = {});

    Varnmain& main_;
    MonkeyPlatform& platform_;
    Driver& driver_;
    Dice& dice_;
    MonkeyLog& log_;
    UndoProof undo_;
    std::size_t presses_ = 0;
};

}  // namespace varnholt
