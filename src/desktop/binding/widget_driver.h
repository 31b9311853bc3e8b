// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "desktop/binding/form_window.h"
#include "desktop/binding/open_windows.h"
#include "script/driver.h"

namespace varnholt {

class Varnmain;

/// Works the real widgets of the real windows: brings the page that holds the control to the
/// front, gives keys and presses to the widgets, and reads what they show.
///
/// The page that was in front comes back afterwards: the script alone chooses pages.
class WidgetDriver : public Driver {
 public:
    WidgetDriver(Varnmain& main, OpenWindows& windows);

    /// Takes a failure of a handler; it leaves once the toolkit's call has returned.
    FaultTaker faultTaker();

    void type(Form& form, const Control& control, const std::string& text) override;
    void leave(Form& form, const Control& control) override;
    void key(Form& form, const Control& control, const std::string& key) override;
    void click(Form& form, const Control& control) override;
    void choose(Form& form, const Control& control, int index) override;
    void select(Form& form, const Control& control, const std::vector<int>& rows) override;
    void slide(Form& form, const Control& control, double value) override;
    void pickDate(Form& form, const Control& control, const Date& date) override;
    void activate(Form& form) override;
    void close(Form& form) override;
    std::string caption(const Form& form) override;
    Shown read(Form& form, const Control& control, Property property) override;
    bool picture(Form& form, const std::string& path) override;

 private:
    using Verb = std::function<void(Form&, const std::string& name)>;

    bool isMain(const Form& form) const;
    BoundControl& boundOf(const Form& form, const Control& control) const;
    /// Works the widget with its page in front. When the widget saw no change in what was done
    /// (the same text again), the person has acted all the same, and the verb is passed on.
    void work(Form& form, const Control& control, const std::function<void(QWidget*)>& hand,
              const Verb& verb);
    /// The end of a line: a failure leaves, and what has been closed goes.
    void finish();

    Varnmain& main_;
    OpenWindows& windows_;
    std::exception_ptr fault_;
};

}  // namespace varnholt
