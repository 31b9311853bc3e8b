// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/properties.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "basis/date.h"

namespace varnholt {
namespace {

using Kind = ControlKind;

struct PropertyRow {
    const char* name;
    Property property;
    /// Kinds that have it; none stands for all.
    std::initializer_list<Kind> kinds;
};

// clang-format off
const std::array<PropertyRow, 17> rows{{
    {"text",      Property::text,      {Kind::text, Kind::richText, Kind::combo, Kind::list,
                                        Kind::date, Kind::tabs}},
    {"caption",   Property::caption,   {Kind::label, Kind::button, Kind::frame, Kind::check,
                                        Kind::option, Kind::menu, Kind::image}},
    {"enabled",   Property::enabled,   {}},
    {"visible",   Property::visible,   {}},
    {"locked",    Property::locked,    {Kind::text, Kind::richText, Kind::combo, Kind::list,
                                        Kind::date, Kind::slider, Kind::upDown}},
    {"checked",   Property::checked,   {Kind::check, Kind::option, Kind::menu, Kind::button}},
    {"index",     Property::index,     {Kind::combo, Kind::list, Kind::tabs}},
    {"value",     Property::value,     {Kind::slider, Kind::upDown, Kind::date}},
    {"min",       Property::min,       {Kind::slider, Kind::upDown}},
    {"max",       Property::max,       {Kind::slider, Kind::upDown}},
    {"items",     Property::items,     {Kind::combo, Kind::list, Kind::tabs}},
    {"selected",  Property::selected,  {Kind::list}},
    {"backcolor", Property::backcolor, {}},
    {"forecolor", Property::forecolor, {}},
    {"bold",      Property::bold,      {}},
    {"tooltip",   Property::tooltip,   {}},
    {"description", Property::description, {Kind::image}},
}};
// clang-format on

const PropertyRow* rowOf(Property property) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [=](const PropertyRow& r) { return r.property == property; });
    return row == rows.end() ? nullptr : &*row;
}

/// The text of a list or of tabs is that of the chosen entry.
std::string textOf(const Control& control) {
    if (control.kind() == Kind::date) return isoText(control.date());
    if (control.kind() != Kind::list && control.kind() != Kind::tabs) return control.text();
    const auto index = static_cast<std::size_t>(control.index());
    return index < control.items().size() ? control.items()[index] : std::string();
}

}  // namespace

std::optional<Property> propertyNamed(std::string_view name) {
    for (const PropertyRow& row : rows)
        if (row.name == name) return row.property;
    return std::nullopt;
}

const char* nameOf(Property property) {
    const PropertyRow* row = rowOf(property);
    return row == nullptr ? "" : row->name;
}

Property defaultProperty(ControlKind kind) {
    switch (kind) {
        case Kind::label:
        case Kind::button:
        case Kind::frame:
        case Kind::menu:
            return Property::caption;
        case Kind::check:
        case Kind::option:
            return Property::checked;
        case Kind::slider:
        case Kind::upDown:
        case Kind::date:
            return Property::value;
        case Kind::list:
            return Property::items;
        case Kind::image:
            return Property::visible;
        case Kind::text:
        case Kind::richText:
        case Kind::combo:
        case Kind::tabs:
            break;
    }
    return Property::text;
}

bool hasProperty(ControlKind kind, Property property) {
    const PropertyRow* row = rowOf(property);
    if (row == nullptr) return false;
    return row->kinds.size() == 0 ||
           std::find(row->kinds.begin(), row->kinds.end(), kind) != row->kinds.end();
}

Shown propertyOf(const Form& form, const Control& control, Property property) {
    switch (property) {
        case Property::text:
            return textOf(control);
        case Property::caption:
            return control.caption();
        case Property::enabled:
            return control.enabled();
        case Property::visible:
            return form.isShown(control);
        case Property::locked:
            return control.locked();
        case Property::checked:
            return control.checked();
        case Property::index:
            return control.index();
        case Property::value:
            if (control.kind() == Kind::date) return control.date();
            return control.value();
        case Property::min:
            return control.min();
        case Property::max:
            return control.max();
        case Property::items:
            return control.items();
        case Property::selected:
            return control.selected();
        case Property::backcolor:
            return control.backcolor();
        case Property::forecolor:
            return control.forecolor();
        case Property::bold:
            return control.bold();
        case Property::tooltip:
            return control.tooltip();
        case Property::date:
            return control.date();
        case Property::description:
            return form.descriptionOf(control.name());
        case Property::refused:
        case Property::step:
        case Property::accessibleName:
        case Property::flash:
        case Property::focus:
            break;
    }
    return control.refused();
}

}  // namespace varnholt
