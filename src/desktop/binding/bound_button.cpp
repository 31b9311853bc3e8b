// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/bound_button.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "desktop/binding/binder.h"
#include "desktop/binding/button_keys.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/desktop.h"

namespace varnholt {
namespace {

/// Enter presses it as the space bar does.
class PressButton : public QPushButton {
 protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && (event->modifiers() & ~Qt::KeypadModifier) == 0)
            click();
        else
            QPushButton::keyPressEvent(event);
    }
};

}  // namespace

BoundButton::BoundButton(Binder& binder, Control& control)
    : BoundControl(binder, control, new PressButton), button_(static_cast<QPushButton*>(widget())) {
    button_->setAutoDefault(false);
    button_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    QObject::connect(button_, &QPushButton::clicked, &binder, [this] {
        // By its key the button is pressed without taking the focus.
        this->binder().endVisit(QApplication::focusWidget());
        this->binder().act(*this, [](Form& form, const std::string& name) { form.click(name); });
    });
    showAll();
}

void BoundButton::makePrimary() {
    tone_ = QStringLiteral("primary");
    button_->setProperty(mainButtonProperty, true);
    showBackcolor();
}

void BoundButton::setOlder(bool older) {
    if (older == older_) return;
    older_ = older;
    showBackcolor();
}

void BoundButton::setIcon(const QString& icon) {
    icon_ = icon;
    showBackcolor();
}

void BoundButton::show(Property property) {
    switch (property) {
        case Property::caption:
            // The words that stand there keep the key that is marked in them.
            if (shown(property) != Shown(control().caption()))
                button_->setText(buttonCaption(control().caption()));
            if (!control().caption().empty()) button_->setAccessibleName(qt(control().caption()));
            break;
        case Property::tooltip:
            BoundControl::show(property);
            if (control().caption().empty()) button_->setAccessibleName(qt(control().tooltip()));
            break;
        case Property::checked:
            button_->setCheckable(button_->isCheckable() || control().checked());
            button_->setChecked(control().checked());
            break;
        default:
            BoundControl::show(property);
    }
}

Shown BoundButton::shown(Property property) const {
    if (property == Property::caption) return plain(wordsOfButton(*button_));
    if (property == Property::checked) return button_->isChecked();
    return BoundControl::shown(property);
}

void BoundButton::showBackcolor() {
    const bool alarm = control().backcolor() == colours::alarm;
    const bool marked = alarm || older_ || control().backcolor() == colours::stale;
    const QString tone = alarm ? QStringLiteral("alarm") : QStringLiteral("stale");
    setStyleProperty("tone", marked ? tone : tone_);
    const QString icon = marked ? QStringLiteral("stale") : icon_;
    button_->setIcon(icon.isEmpty() ? QIcon() : houseIcon(icon));
    button_->setAccessibleDescription(marked ? qt(binder().text(Text::staleResults)) : QString());
}

std::unique_ptr<BoundControl> bindButton(Binder& binder, Control& control) {
    return std::make_unique<BoundButton>(binder, control);
}

}  // namespace varnholt
