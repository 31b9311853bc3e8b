// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QAbstractButton;
class QWidget;

namespace varnholt {

/// Marks a key in the words of every button on show in the window, first of the one that the window
/// is about and then in reading order: a letter that is the key of no menu and of no other of these
/// buttons, at the start of a word where one is left. Once the letters are used up, buttons share
/// one, which goes from one of them to the next. A button without a name, or of a notice, that has
/// the words of another enabled one leaves the key to that.
/// Words that mark a key of their own keep it. Marks follow what is on show, so it is called again
/// when that has changed.
void giveKeys(QWidget& window);

/// Set on the button that its window is about.
inline constexpr const char* mainButtonProperty = "mainButton";

/// The words of a button without the mark that giveKeys has put into them.
QString wordsOfButton(const QAbstractButton& button);

}  // namespace varnholt
