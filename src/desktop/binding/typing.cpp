// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/typing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <map>

namespace varnholt {
namespace {

/// The line that is typed into: the field itself, or that of a combo or a date.
QLineEdit* lineOf(QWidget& field) {
    auto* line = qobject_cast<QLineEdit*>(&field);
    return line != nullptr ? line : field.findChild<QLineEdit*>();
}

/// Takes the keys of its widget for itself before they are looked up among the menus' shortcuts.
class NoShortcuts : public QObject {
 public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) return false;
        event->accept();
        return true;
    }
};

}  // namespace

bool isUndoKey(QKeyEvent& key) {
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

bool undoesTyping(const QWidget& field, QKeyEvent& key) {
    const bool undo = key.matches(QKeySequence::Undo);
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(&field))
        return undo ? text->document()->isUndoAvailable() : text->document()->isRedoAvailable();
    const auto* line = qobject_cast<const QLineEdit*>(&field);
    if (line == nullptr) line = field.findChild<const QLineEdit*>();
    return line != nullptr && (undo ? line->isUndoAvailable() : line->isRedoAvailable());
}

void forgetTyping(QWidget& field) {
    if (auto* text = qobject_cast<QPlainTextEdit*>(&field))
        return text->document()->clearUndoRedoStacks();
    QLineEdit* line = lineOf(field);
    if (line == nullptr || !(line->isUndoAvailable() || line->isRedoAvailable())) return;
    const int place = line->cursorPosition();
    line->setText(line->text());
    line->setCursorPosition(place);
}

/// By the key of the command, so that a field does the same for both.
void editFocusedField(EditCommand command) {
    static const std::map<EditCommand, Qt::Key> keys{{EditCommand::cut, Qt::Key_X},
                                                     {EditCommand::copy, Qt::Key_C},
                                                     {EditCommand::paste, Qt::Key_V},
                                                     {EditCommand::selectAll, Qt::Key_A}};
    QWidget* focused = QApplication::focusWidget();
    if (focused == nullptr) return;
    // What has no text would leave the key to the menu, whose command this is.
    NoShortcuts guard;
    focused->installEventFilter(&guard);
    QKeyEvent press(QEvent::KeyPress, keys.at(command), Qt::ControlModifier);
    QApplication::sendEvent(focused, &press);
}

}  // namespace varnholt
