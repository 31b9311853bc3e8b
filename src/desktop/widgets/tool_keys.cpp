// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/tool_keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QToolBar>

namespace varnholt {
namespace {

class EnterPresses : public QObject {
 public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto* key = static_cast<const QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (!enter || (key->modifiers() & ~Qt::KeypadModifier) != 0) return false;
        static_cast<QAbstractButton*>(watched)->click();
        return true;
    }
};

}  // namespace

void workByKeyboard(const QToolBar& bar, QAction* action) {
    auto* button = qobject_cast<QAbstractButton*>(bar.widgetForAction(action));
    if (button == nullptr) return;
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(new EnterPresses(button));
}

}  // namespace varnholt
