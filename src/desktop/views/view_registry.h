// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "desktop/binding/form_window.h"

class QWidget;

namespace varnholt {

/// The views of the program's forms by the forms' names. A form without a view of its own is laid
/// out by the generic one.
class ViewRegistry {
 public:
    /// With the views of this program.
    ViewRegistry();

    void registerView(const std::string& formName, ViewMaker maker);
    bool has(const std::string& formName) const { return makers_.count(formName) > 0; }
    /// Builds the view of the binder's form.
    QWidget* make(Binder& bind) const;
    /// The same as a function, which must not outlive the registry.
    ViewMaker maker() const;

 private:
    std::map<std::string, ViewMaker> makers_;
};

/// Registers every view of the program: the one list of them.
void registerViews(ViewRegistry& views);

/// Registers the views of the main window's own forms: the start picture and the About window.
void registerFrameViews(ViewRegistry& views);

/// Lays out any form by what its controls tell: frames as groups, fields as rows with the label,
/// the unit and the spin buttons that they name. An array of three labels is a row of results, and
/// a tabbed pane has a page for each prefix of its controls' names.
QWidget* makeGenericView(Binder& bind);

}  // namespace varnholt
