// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/platform.h"

class QKeyEvent;
class QWidget;

namespace varnholt {

// What a text widget itself remembers of what is being typed into it. Undo takes this back first;
// what has been typed in earlier visits is the document's.

/// Whether the key undoes or redoes, and the widget has typing of its own to do that with.
bool undoesTyping(const QWidget& field, QKeyEvent& key);
/// Whether the key is one that undoes or redoes.
bool isUndoKey(QKeyEvent& key);
/// The visit of the field has ended.
void forgetTyping(QWidget& field);
/// Works a command of the Edit menu on the field that has the focus.
void editFocusedField(EditCommand command);

}  // namespace varnholt
