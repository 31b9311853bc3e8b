// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

#include "forms/form.h"
#include "script/transcript.h"

namespace varnholt {

/// The property of that name in scripts: "text", "caption", "backcolor", ...
std::optional<Property> propertyNamed(std::string_view name);
const char* nameOf(Property property);

/// What `print` writes of a control when no property is named: the text of fields, the caption of
/// labels, buttons, frames and menu entries, the mark of check boxes, the position of sliders, the
/// entries of list boxes.
Property defaultProperty(ControlKind kind);

/// Whether controls of the kind have the property at all.
bool hasProperty(ControlKind kind, Property property);

/// The property as the form knows it.
Shown propertyOf(const Form& form, const Control& control, Property property);

}  // namespace varnholt
