// SPDX-License-Identifier: GPL-3.0-or-later
// What the binder learns from the widgets' own events: keys, the focus, the colour scheme.
#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "desktop/binding/binder.h"
#include "desktop/binding/pasted_places.h"
#include "desktop/binding/typing.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/feedback.h"

namespace varnholt {
namespace {

/// The focus comes back by itself: the person has not left the field.
bool comesBack(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

bool takesText(const Control& control) {
    return control.kind() == ControlKind::text || control.editable();
}

/// Whether what is pasted replaces the whole text.
bool replacesAll(const QWidget* widget) {
    const auto* edit = qobject_cast<const QLineEdit*>(widget);
    if (edit == nullptr) edit = widget->findChild<const QLineEdit*>();
    return edit != nullptr && edit->selectedText() == edit->text();
}

}  // namespace

void Binder::watchKeys(BoundControl& bound, QWidget* keyboard) {
    keyboards_[keyboard] = &bound;
    keyboard->installEventFilter(this);
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    if (form_ == nullptr) return false;
    if (watched == window_ && event->type() == QEvent::PaletteChange) {
        // Once the window has been dressed in the new colours too.
        QMetaObject::invokeMethod(
            this, [this] { recolour(); }, Qt::QueuedConnection);
        return false;
    }
    if (event->type() == QEvent::Show) {
        if (form_->isBehind()) fellBehind(*form_);
        for (Drawing* drawing : drawings_) {
            if (drawing != watched) continue;
            drawing->refresh();
            drawing->setAccessibleDescription(drawing->description());
        }
        return false;
    }
    const auto found = keyboards_.find(watched);
    if (found == keyboards_.end()) return false;
    BoundControl& bound = *found->second;
    if (event->type() == QEvent::FocusOut && leavesByFocus_ &&
        bound.control().kind() != ControlKind::list &&
        !comesBack(static_cast<QFocusEvent*>(event)->reason())) {
        leave(bound);
    } else if (event->type() == QEvent::ShortcutOverride) {
        // The menu has the key where there is no typing to take back.
        auto* key = static_cast<QKeyEvent*>(event);
        if (!isUndoKey(*key) || undoesTyping(*bound.widget(), *key)) return false;
        event->ignore();
        return true;
    } else if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!takesKey(bound, *key, watched)) return true;
        return keyPressed(bound, key->key(), key->modifiers());
    }
    return false;
}

void Binder::endVisit(const QWidget* focused) {
    const auto found = keyboards_.find(focused);
    if (found == keyboards_.end() || form_ == nullptr || scripted_) return;
    // A field in which nothing has been typed since it was left last is left already.
    if (found->second->control().name() == form_->visitedField()) leave(*found->second);
}

/// Shows the controls' own colours in the scheme that has come.
void Binder::recolour() {
    if (form_ == nullptr) return;
    for (const auto& [name, bound] : bound_) {
        bound->show(Property::forecolor);
        bound->show(Property::backcolor);
    }
}

/// Whether the key has done all that it does.
bool Binder::keyPressed(BoundControl& bound, int key, Qt::KeyboardModifiers modifiers) {
    const Control& control = bound.control();
    const bool mine = form_->takesKeys(control.name());
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
    if (enter && held == Qt::NoModifier && control.kind() != ControlKind::richText) {
        // An editable combo would take the text for a choice of its own.
        const bool done = mine || control.editable();
        if (mine) act(bound, [](Form& f, const std::string& name) { f.key(name, "Enter"); });
        return done;
    }
    if (key == Qt::Key_V && held == Qt::ControlModifier && !mine && control.enabled() &&
        !control.locked() && pasteBlock(control.name()))
        return true;
    if (key == Qt::Key_V && held == Qt::ControlModifier && control.enabled() && !control.locked() &&
        (mine || (takesText(control) && replacesAll(bound.widget())))) {
        act(bound, [](Form& f, const std::string& name) { f.key(name, "Ctrl+V"); });
        return true;
    }
    if ((key == Qt::Key_Up || key == Qt::Key_Down) && control.kind() == ControlKind::text &&
        !control.locked() && held == Qt::NoModifier) {
        stepCompanion(bound, key == Qt::Key_Up ? 1 : -1);
        return true;
    }
    return false;
}

/// Whether a pressed key may be typed into the field. What can be no part of a number goes nowhere,
/// and a comma is the point where the user's locale has it for one.
bool Binder::takesKey(const BoundControl& bound, const QKeyEvent& key, QObject* keyboard) {
    const std::string& name = bound.control().name();
    constexpr Qt::KeyboardModifiers command = Qt::ControlModifier | Qt::MetaModifier;
    const QString typed = key.text();
    if (scripted_ || !form_->fields().has(name) || bound.control().locked() || typed.isEmpty() ||
        (key.modifiers() & command) != 0 || !typed.front().isPrint())
        return true;
    // The key of a button that is not there: the toolkit would type the letter.
    if ((key.modifiers() & Qt::AltModifier) != 0) return false;
    if (typed == u"," && form_->platform().decimalMark() == ',') {
        QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, Qt::NoModifier, QStringLiteral("."));
        QCoreApplication::sendEvent(keyboard, &point);
        return false;
    }
    const bool part = std::all_of(typed.begin(), typed.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || QStringView(u"+-.eE").contains(c);
    });
    if (!part) form_->platform().tell(form_->text(Text::numberWanted));
    return part;
}

/// The field's own cell of a block of fields takes the first cell of what is pasted.
bool Binder::pasteBlock(const std::string& field) {
    if (scripted_) return false;
    Platform& platform = form_->platform();
    const std::string text = platform.clipboard();
    if (!isBlock(text)) return false;
    for (const auto& rows : blocks_) {
        const std::optional<PastedPlaces> places =
            placesOf(rows, field, readBlock(text, platform.decimalMark()));
        if (!places) continue;
        Form::FilledCells filled;
        act(*find(field),
            [&](Form& form, const std::string&) { filled = form.fill(places->cells); });
        if (form_ != nullptr) platform.tell(toldOf(*form_, filled, places->beyond));
        return true;
    }
    return false;
}

/// Why the field that has just refused a value holds another one, beside it.
void Binder::showRefusal() {
    if (scripted_ || form_ == nullptr) return;
    const std::optional<RefusedValue> refused = form_->fields().refused();
    BoundControl* field = refused ? find(refused->control) : nullptr;
    if (field == nullptr || !field->widget()->isVisible()) return;
    // A field that refuses one value after another stays marked, and says why of the last.
    field->show(Property::refused);
    const std::string why = form_->whyRefused(*refused);
    if (refusal_ == nullptr) refusal_ = std::make_unique<RefusalHint>();
    if (refusal_->isShownFor(field->widget(), why)) return;
    refusal_->show(field->widget(), why);
    if (onRefused) onRefused(why);
}

void Binder::stepCompanion(const BoundControl& bound, int steps) {
    const BoundControl* buttons = find(bound.control().upDown());
    if (buttons == nullptr) return;
    if (buttons->widget()->isEnabled()) static_cast<UpDownButtons*>(buttons->widget())->step(steps);
}

}  // namespace varnholt
