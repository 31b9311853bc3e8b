// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/form.h"

namespace varnholt {

/// The controls with which a person changes something and that nothing names: no caption, no label
/// before them, no tool tip, no name for a screen reader.
inline std::string namelessControls(const Form& form) {
    std::string nameless;
    for (const auto& control : form.controls()) {
        switch (control->kind()) {
            case ControlKind::label:
            case ControlKind::frame:
            case ControlKind::image:
            case ControlKind::menu:
            case ControlKind::tabs:
            case ControlKind::list:
                continue;
            default:
                break;
        }
        const std::string label =
            control->label().empty() ? std::string() : form.control(control->label()).caption();
        if ((control->accessibleName() + control->caption() + label + control->tooltip()).empty())
            nameless += control->name() + "\n";
    }
    return nameless;
}

}  // namespace varnholt
