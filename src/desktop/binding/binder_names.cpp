// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader calls the controls of a window.
#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

#include "desktop/binding/binder.h"
#include "desktop/binding/bound_frame.h"
#include "desktop/widgets/qt_text.h"
#include "forms/texts.h"

namespace varnholt {
void Binder::nameBy(const std::string& name, const std::string& label, int distinction) {
    named_.emplace(label, name);
    called_.insert_or_assign(name, CalledAfter{label, distinction});
    showName(name);
}

std::string Binder::spokenName(const Control& control) const {
    if (form_ == nullptr) return {};
    const auto called = called_.find(control.name());
    const std::string& label = called == called_.end() ? control.label() : called->second.label;
    std::string words = control.spokenName();
    if (words.empty() && has(label)) words = captionWords(form_->control(label).caption());
    if (words.empty()) return {};
    if (has(control.unitLabel())) {
        const std::string unit = form_->unitOf(control.name());
        const bool told = words.find("(" + unit + ")") != std::string::npos;
        if (!unit.empty() && !told) words += ", " + unit;
    }
    if (control.kind() != ControlKind::label) return words;
    // A label has no other value to read than its name: there the figure goes behind the words.
    if (called != called_.end() && called->second.distinction != 0)
        words += ", " + text(called->second.distinction);
    return words + ", " + control.caption();
}

void Binder::showName(const std::string& name) {
    const std::string words = spokenName(form_->control(name));
    if (words.empty()) return;
    find(name)->call(qt(words));
    labelCombo(*find(name));
}

/// The label's words have changed: so have the names of those that are called by it.
void Binder::renameAround(const std::string& label) {
    const auto [first, last] = named_.equal_range(label);
    for (auto it = first; it != last; ++it) showName(it->second);
}

/// Of a combo a screen reader is told what is chosen for its name, and what it is by its label.
void Binder::labelCombo(const BoundControl& bound) const {
    auto* combo = qobject_cast<QComboBox*>(bound.widget());
    const BoundControl* caption = find(bound.control().label());
    if (combo == nullptr || caption == nullptr) return;
    auto* label = qobject_cast<QLabel*>(caption->widget());
    if (label == nullptr) return;
    label->setBuddy(combo);
    label->setAccessibleName(combo->accessibleName());
}

void Binder::nameTheNameless() {
    for (const auto& [name, bound] : bound_) {
        QWidget* widget = bound->widget();
        QString found = widget->accessibleName();
        const bool picture = bound->control().kind() == ControlKind::image;
        if (widget->focusPolicy() == Qt::NoFocus && !picture) continue;
        if (found.isEmpty()) found = widget->toolTip();
        for (QWidget* around = widget; found.isEmpty() && around != nullptr;
             around = around->parentWidget()) {
            if (const auto* group = dynamic_cast<const GroupBox*>(around)) found = group->title();
            const auto* tabs = qobject_cast<const QTabWidget*>(around);
            for (int page = 0; tabs != nullptr && page < tabs->count(); ++page)
                if (tabs->widget(page)->isAncestorOf(widget)) found = tabs->tabText(page);
        }
        if (found.isEmpty() && form_ != nullptr) found = qt(form_->caption());
        widget->setAccessibleName(found);
        labelCombo(*bound);
    }
}

}  // namespace varnholt
