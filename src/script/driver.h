// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/date.h"
#include "forms/form.h"
#include "script/transcript.h"

namespace varnholt {

/// The hands and eyes of a script: works a window's controls as a person does and reads what they
/// show. One driver works the forms themselves, the other the real widgets of the real windows.
///
/// The runner has made sure that the control exists, is shown, is enabled and is of a kind that
/// takes the verb. A failure of the program inside a handler leaves as the exception that it is.
class Driver {
 public:
    virtual ~Driver() = default;

    virtual void type(Form& form, const Control& control, const std::string& text) = 0;
    virtual void leave(Form& form, const Control& control) = 0;
    /// @param key "Enter" or "Ctrl+V"
    virtual void key(Form& form, const Control& control, const std::string& key) = 0;
    virtual void click(Form& form, const Control& control) = 0;
    virtual void choose(Form& form, const Control& control, int index) = 0;
    virtual void select(Form& form, const Control& control, const std::vector<int>& rows) = 0;
    virtual void slide(Form& form, const Control& control, double value) = 0;
    virtual void pickDate(Form& form, const Control& control, const Date& date) = 0;

    /// Brings a window to the front.
    virtual void activate(Form& form) = 0;
    /// Presses the window's close box.
    virtual void close(Form& form) = 0;

    virtual std::string caption(const Form& form) = 0;
    /// What the control shows of the property; one that a control of its kind has.
    virtual Shown read(Form& form, const Control& control, Property property) = 0;
    /// Writes a picture of the window. False where there are no windows to take one of.
    virtual bool picture(Form& form, const std::string& path) = 0;
};

}  // namespace varnholt
