// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/design_tab.h"

#include <utility>

#include "design/ground_design.h"

namespace varnholt {

std::string withSuffix(const std::string& field, const std::string& suffix) {
    const std::size_t index = field.find('(');
    std::string stem = field.substr(0, index);
    for (const std::string kind : {"Text", "Combo", "Slider"})
        if (stem.ends_with(kind)) {
            stem.resize(stem.size() - kind.size());
            break;
        }
    return stem + suffix + (index == std::string::npos ? std::string() : field.substr(index));
}

int entryOf(double index, int count) {
    for (int entry = 0; entry < count; ++entry)
        if (index == entry) return entry;
    return -1;
}

void DesignTab::setLabels() {
    for (const auto& [name, number] : captions_) control(name).setCaption(text(number));
}

void DesignTab::setUnitLabels() {
    for (const auto& [name, inMetric, inEnglish] : unitCaptions_)
        control(name).setCaption(text(metric() ? inMetric : inEnglish));
    for (const std::string& field : fields_) design_.fields().show(field);
}

Control& DesignTab::control(const std::string& name) const { return design_.control(name); }
std::string DesignTab::text(int number) const { return design_.text(number); }
bool DesignTab::metric() const { return design_.units() == UnitSystem::metric; }
void DesignTab::tell(MessageIcon icon, const std::string& message) const {
    design_.show(icon, message);
}

Control& DesignTab::add(const std::string& name, ControlKind kind, const std::string& frame) {
    return design_.add(name, kind).in(frame);
}

Control& DesignTab::add(const std::string& name, ControlKind kind, const std::string& frame,
                        int caption) {
    captions_.push_back({name, caption});
    return design_.add(name, kind, caption).in(frame);
}

Control& DesignTab::addFrame(const std::string& name, int caption, const std::string& frame) {
    return add(name, ControlKind::frame, frame, caption);
}

Control& DesignTab::addUnitLabel(const std::string& name, const std::string& frame, int metric,
                                 int english) {
    unitCaptions_.push_back({name, metric, english});
    return design_.add(name, ControlKind::label, english).in(frame);
}

Control& DesignTab::addField(NumericFieldRow row, const FieldCaptions& captions) {
    const std::string name = row.control;
    if (captions.caption != 0)
        add(withSuffix(name, "Label"), ControlKind::label, captions.frame, captions.caption);
    Control& field = add(name, ControlKind::text, captions.frame);
    if (captions.englishUnit != 0)
        addUnitLabel(
            captions.unitLabel.empty() ? withSuffix(name, "UnitLabel") : captions.unitLabel,
            captions.frame, captions.metricUnit, captions.englishUnit);
    design_.fields().add(std::move(row));
    fields_.push_back(name);
    return field;
}

Control& DesignTab::addCombo(const std::string& name, const std::string& frame,
                             const std::string& label, int caption, int first, int last) {
    add(label, ControlKind::label, frame, caption);
    std::vector<std::string> entries;
    for (int number = first; number <= last; ++number) entries.push_back(text(number));
    return add(name, ControlKind::combo, frame).setItems(std::move(entries));
}

void DesignTab::onChange(const std::string& name, Handler handler) {
    design_.onChange(name, std::move(handler));
}
void DesignTab::onLeave(const std::string& name, Handler handler) {
    design_.onLeave(name, std::move(handler));
}
void DesignTab::onClick(const std::string& name, Handler handler) {
    design_.onClick(name, std::move(handler));
}
void DesignTab::onSlide(const std::string& name, Handler handler) {
    design_.onSlide(name, std::move(handler));
}

void DesignTab::addMenuButton(const std::string& name, const std::string& frame, int caption,
                              const std::string& entry) {
    add(name, ControlKind::button, frame, caption);
    design_.menuButtons_.emplace_back(name, entry);
    onClick(name, [this, entry] { design_.main().click(entry); });
}

}  // namespace varnholt
