// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/told_role.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace varnholt {
namespace {

constexpr const char* roleProperty = "toldRole";

/// The toolkit asks for the interface of an object once, when somebody listens.
QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(roleProperty);
    if (!role.isValid()) return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void tellAs(QWidget& widget, QAccessible::Role role) {
    // Installing it again changes nothing.
    QAccessible::installFactory(&interfaceOf);
    widget.setProperty(roleProperty, static_cast<int>(role));
}

}  // namespace varnholt
