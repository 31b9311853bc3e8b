// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <map>
#include <string>

#include "forms/form.h"

namespace varnholt {

/// Everything that a form shows, by control and property: what a person could tell two moments of
/// it apart by.
using ShownControls = std::map<std::string, std::string>;

inline ShownControls shownBy(const Form& form) {
    ShownControls shown;
    for (const auto& control : form.controls()) {
        const auto put = [&](const char* property, const auto& value) {
            shown[control->name() + "." + property] = fmt::format("{}", value);
        };
        put("visible", form.isShown(*control));
        if (!form.isShown(*control)) continue;
        put("text", control->text());
        put("caption", control->caption());
        put("enabled", control->enabled());
        put("locked", control->locked());
        put("checked", control->checked());
        put("index", control->index());
        put("value", control->value());
        put("min", control->min());
        put("max", control->max());
        put("items", control->items());
        put("selected", control->selected());
        put("backcolor", control->backcolor());
        put("forecolor", control->forecolor());
        put("bold", control->bold());
        put("refused", control->refused());
        put("accessibleName", control->accessibleName());
        put("date", isoText(control->date()));
    }
    return shown;
}

/// A line for each property in which two moments differ; empty for none.
inline std::string differences(const ShownControls& before, const ShownControls& now) {
    std::string lines;
    for (const auto& [name, value] : now) {
        const auto found = before.find(name);
        if (found == before.end() || found->second != value)
            lines += fmt::format("{}: {} became {}\n", name,
                                 found == before.end() ? "nothing" : found->second, value);
    }
    return lines;
}

}  // namespace varnholt
