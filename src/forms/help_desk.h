// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

class Form;

/// Whoever explains the controls of the forms.
class HelpDesk {
 public:
    virtual ~HelpDesk() = default;

    /// Opens the page of the help about a control; an empty name asks for the window's own page.
    virtual void explain(const Form& form, const std::string& control) = 0;
    /// What the help says of a control, in a few sentences; empty when it says nothing.
    virtual std::string whatsThis(const Form& form, const std::string& control) const = 0;
};

}  // namespace varnholt
