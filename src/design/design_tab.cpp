// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/design_tab.h"

#include <utility>

#include "design/ground_design.h"

namespace varnholt {

int entryOf(double index, int count) {
    for (int entry = 0; entry < count; ++entry)
        if (index == entry) return entry;
    return -1;
}

void DesignTab::setLabels() {
    for (const auto& [name, number] : captions_) control(name).setCaption(text(number));
}

void DesignTab::setUnitLabels() {
    for (const auto& [name, caption] : unitCaptions_)
        control(name).setCaption(text(caption.in(design_.units())));
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

Control& DesignTab::addUnitLabel(const std::string& name, const std::string& frame,
                                 UnitTexts caption) {
    unitCaptions_.push_back({name, caption});
    return design_.add(name, ControlKind::label, caption.english).in(frame);
}

Control& DesignTab::addField(NumericFieldRow row) {
    fields_.push_back(row.control);
    return design_.addField(std::move(row));
}

Control& DesignTab::addCombo(const std::string& name, const std::string& frame,
                             const std::string& label, int caption, int first, int last) {
    add(label, ControlKind::label, frame, caption);
    std::vector<std::string> entries;
    for (int number = first; number <= last; ++number) entries.push_back(text(number));
    return add(name, ControlKind::combo, frame).captionedBy(label).setItems(std::move(entries));
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
