// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/bound_control.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

#include "desktop/binding/binder.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "script/properties.h"

namespace varnholt {
namespace {

/// Whether the widget would be seen if the pages of tabs around it were in front.
bool isShownIn(const QWidget* widget) {
    for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
        const QWidget* parent = widget->parentWidget();
        const bool isPage = parent != nullptr && parent->inherits("QStackedWidget");
        if (widget->isHidden() && !isPage) return false;
        if (parent != nullptr && parent->inherits("QMdiSubWindow")) return true;
    }
    return true;
}

}  // namespace

BoundControl::BoundControl(Binder& binder, Control& control, QWidget* widget)
    : binder_(binder), control_(control), widget_(widget) {
    widget_->setObjectName(qt(control.name()));
}

const Look& BoundControl::look() const { return binder_.look(); }

void BoundControl::setStyleProperty(const char* name, const QVariant& value) {
    const QVariant before = widget_->property(name);
    if (before == value || (!before.isValid() && value.toString().isEmpty())) return;
    widget_->setProperty(name, value);
    if (!widget_->testAttribute(Qt::WA_WState_Polished)) return;
    widget_->style()->unpolish(widget_);
    widget_->style()->polish(widget_);
    widget_->update();
}

void BoundControl::colourText() {
    coloured_ = true;
    showForecolor();
}

void BoundControl::mark(Mode mode) {
    setStyleProperty("mode",
                     mode == cooling ? QStringLiteral("cooling") : QStringLiteral("heating"));
}

void BoundControl::show(Property property) {
    switch (property) {
        case Property::enabled:
            widget_->setEnabled(control_.enabled());
            break;
        case Property::visible:
            // A widget without a parent would open as a window of its own.
            if (!control_.visible() || widget_->parentWidget() != nullptr)
                widget_->setVisible(control_.visible());
            break;
        case Property::tooltip:
            if (asked_.tooltip == control_.tooltip()) break;
            asked_.tooltip = control_.tooltip();
            widget_->setToolTip(qt(control_.tooltip()));
            break;
        case Property::accessibleName:
            if (const std::string name = binder_.spokenName(control_); !name.empty())
                call(qt(name));
            break;
        case Property::backcolor:
            asked_.backcolor = control_.backcolor();
            showBackcolor();
            break;
        case Property::forecolor:
            asked_.forecolor = control_.forecolor();
            coloured_ = coloured_ || asked_.forecolor != colours::black;
            if (coloured_) showForecolor();
            break;
        case Property::bold:
            if (asked_.bold == control_.bold()) break;
            asked_.bold = control_.bold();
            showBold();
            break;
        case Property::focus:
            takeFocus();
            break;
        default:
            break;
    }
}

void BoundControl::showAll() {
    static constexpr Property all[] = {
        Property::items,     Property::text,    Property::caption,       Property::enabled,
        Property::locked,    Property::max,     Property::step,          Property::value,
        Property::index,     Property::checked, Property::selected,      Property::date,
        Property::backcolor, Property::bold,    Property::forecolor,     Property::tooltip,
        Property::refused,   Property::visible, Property::accessibleName};
    for (const Property property : all) show(property);
}

void BoundControl::call(const QString& name) { widget_->setAccessibleName(name); }

void BoundControl::takeFocus() { widget_->setFocus(Qt::OtherFocusReason); }

void BoundControl::showBackcolor() {
    const bool plain =
        control_.backcolor() == colours::buttonFace || control_.backcolor() == colours::window;
    if (plain && !widget_->autoFillBackground()) return;
    QPalette palette = widget_->palette();
    palette.setColor(widget_->backgroundRole(), backColour(control_.backcolor(), look()));
    widget_->setPalette(palette);
    widget_->setAutoFillBackground(!plain);
}

void BoundControl::showForecolor() {
    QPalette palette = widget_->palette();
    const QColor colour = textColour(control_.forecolor(), look());
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        if (palette.color(QPalette::Active, role) == colour) continue;
        palette.setColor(QPalette::Active, role, colour);
        palette.setColor(QPalette::Inactive, role, colour);
    }
    widget_->setPalette(palette);
}

void BoundControl::showBold() {
    QFont font = widget_->font();
    font.setBold(control_.bold());
    widget_->setFont(font);
}

Shown BoundControl::shown(Property property) const {
    switch (property) {
        case Property::enabled:
            return widget_->isEnabledTo(widget_->parentWidget());
        case Property::visible:
            return isShownIn(widget_);
        case Property::tooltip:
            return asked_.tooltip;
        case Property::backcolor:
            return asked_.backcolor;
        case Property::forecolor:
            return asked_.forecolor;
        case Property::bold:
            return asked_.bold;
        case Property::locked:
        case Property::checked:
            return false;
        default:
            return std::string();
    }
}

std::unique_ptr<BoundControl> bindControl(Binder& binder, Control& control) {
    switch (control.kind()) {
        case ControlKind::label:
            return bindLabel(binder, control);
        case ControlKind::button:
        case ControlKind::menu:
            return bindButton(binder, control);
        case ControlKind::text:
            return bindText(binder, control);
        case ControlKind::richText:
            return bindRichText(binder, control);
        case ControlKind::combo:
            return bindCombo(binder, control);
        case ControlKind::list:
            return bindList(binder, control);
        case ControlKind::check:
            return bindCheck(binder, control);
        case ControlKind::option:
            return bindOption(binder, control);
        case ControlKind::slider:
            return bindSlider(binder, control);
        case ControlKind::upDown:
            return bindUpDown(binder, control);
        case ControlKind::date:
            return bindDate(binder, control);
        case ControlKind::frame:
            return bindFrame(binder, control);
        case ControlKind::tabs:
            return bindTabs(binder, control);
        case ControlKind::image:
            break;
    }
    return bindImage(binder, control, nullptr);
}

}  // namespace varnholt
