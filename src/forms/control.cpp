// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/control.h"

#include <array>
#include <utility>

namespace varnholt {

const char* nameOf(ControlKind kind) {
    static constexpr std::array<const char*, 15> names{
        "label",  "button", "text", "richText", "combo", "list", "check", "option",
        "slider", "upDown", "date", "frame",    "image", "menu", "tabs"};
    return names[static_cast<std::size_t>(kind)];
}

Control::Control(std::string name, ControlKind kind) : name_(std::move(name)), kind_(kind) {
    const bool field = kind == ControlKind::text || kind == ControlKind::richText ||
                       kind == ControlKind::combo || kind == ControlKind::list ||
                       kind == ControlKind::date;
    backcolor_ = field ? colours::window : colours::buttonFace;
}

void Control::notify(Property property) {
    if (observer_ != nullptr) observer_->propertyChanged(*this, property);
}

template <class T>
Control& Control::set(Property property, T& member, T value) {
    if (member == value) return *this;
    member = std::move(value);
    notify(property);
    return *this;
}

Control& Control::setText(SharedText text) { return set(Property::text, text_, std::move(text)); }
Control& Control::setCaption(std::string caption) {
    return set(Property::caption, caption_, std::move(caption));
}
Control& Control::setEnabled(bool enabled) { return set(Property::enabled, enabled_, enabled); }
Control& Control::setVisible(bool visible) { return set(Property::visible, visible_, visible); }
Control& Control::setLocked(bool locked) { return set(Property::locked, locked_, locked); }
Control& Control::setChecked(bool checked) { return set(Property::checked, checked_, checked); }

Control& Control::setIndex(int index) {
    const bool known = index >= 0 && index < static_cast<int>(items_.size());
    if (kind_ == ControlKind::combo)
        set(Property::text, text_,
            known ? SharedText(items_[static_cast<std::size_t>(index)]) : text_);
    if (kind_ == ControlKind::list)
        set(Property::selected, selected_, known ? std::vector<int>{index} : std::vector<int>{});
    return set(Property::index, index_, index);
}

Control& Control::setValue(double value) { return set(Property::value, value_, value); }

Control& Control::setRange(double min, double max) {
    set(Property::min, min_, min);
    return set(Property::max, max_, max);
}

Control& Control::setStep(double step) { return set(Property::step, step_, step); }

Control& Control::setItems(std::vector<std::string> items) {
    set(Property::items, items_, std::move(items));
    set(Property::selected, selected_, {});
    return set(Property::index, index_, -1);
}

Control& Control::setItem(std::size_t row, std::string text) {
    if (row >= items_.size() || items_[row] == text) return *this;
    items_[row] = std::move(text);
    notify(Property::items);
    return *this;
}

Control& Control::setSelected(std::vector<int> rows) {
    set(Property::selected, selected_, std::move(rows));
    return set(Property::index, index_, selected_.empty() ? -1 : selected_.front());
}

Control& Control::setBackcolor(int colour) { return set(Property::backcolor, backcolor_, colour); }
Control& Control::setForecolor(int colour) { return set(Property::forecolor, forecolor_, colour); }
Control& Control::setBold(bool bold) { return set(Property::bold, bold_, bold); }
Control& Control::setTooltip(std::string tooltip) {
    return set(Property::tooltip, tooltip_, std::move(tooltip));
}
Control& Control::setDate(const Date& date) { return set(Property::date, date_, Date(date)); }
Control& Control::setRefused(bool refused) { return set(Property::refused, refused_, refused); }

Control& Control::setAccessibleName(std::string name) {
    return set(Property::accessibleName, accessibleName_, std::move(name));
}

Control& Control::setSpokenName(std::string name) {
    return set(Property::accessibleName, spokenName_, std::move(name));
}

Control& Control::in(std::string container) {
    container_ = std::move(container);
    return *this;
}
Control& Control::grouped(std::string group) {
    group_ = std::move(group);
    return *this;
}
Control& Control::editableText() {
    editable_ = true;
    return *this;
}
Control& Control::multipleRows() {
    multiple_ = true;
    return *this;
}
Control& Control::repeatingClicks() {
    repeating_ = true;
    return *this;
}
Control& Control::captionedBy(std::string label) {
    label_ = std::move(label);
    return *this;
}
Control& Control::unitsIn(std::string unitLabel) {
    unitLabel_ = std::move(unitLabel);
    return *this;
}
Control& Control::steppedBy(std::string upDown) {
    upDown_ = std::move(upDown);
    return *this;
}
Control& Control::helpedBy(std::string topic) {
    helpTopic_ = std::move(topic);
    return *this;
}

Control& Control::foundLate() {
    late_ = true;
    return *this;
}

std::string elementName(const std::string& array, std::size_t index) {
    return array + "(" + std::to_string(index) + ")";
}

}  // namespace varnholt
