// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/form.h"
#include "script/transcript.h"

class QAction;
class QWidget;

namespace varnholt {

class FormWindow;

/// The windows that are open, the main window among them, as hands and eyes find them.
class OpenWindows {
 public:
    virtual ~OpenWindows() = default;

    /// The widgets of an open form; null when it has none of its own.
    virtual FormWindow* windowOf(const Form& form) const = 0;
    /// The whole window of a form, as a picture shows it; null for none.
    virtual QWidget* frameOf(const Form& form) const = 0;
    virtual void bringToFront(Form& form) = 0;
    virtual void pressCloseBox(Form& form) = 0;

    /// An entry of the main window's menus or a button of its toolbar; null for neither.
    virtual QAction* command(const std::string& control) const = 0;
    /// What is seen of a control of the main window.
    virtual Shown shownOfMain(const Control& control, Property property) const = 0;
};

}  // namespace varnholt
