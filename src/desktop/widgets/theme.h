// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace varnholt {

enum class Scheme { followDesktop, light, dark };

/// Dresses the whole program: style, palette and fonts. With Scheme::followDesktop
/// the desktop's palette decides between light and dark, now and whenever it changes.
/// @param fontFace the language's font; empty for the house's own
void applyTheme(QApplication& application, Scheme scheme, const QString& fontFace = {});

/// Puts the house's style sheet on a window and on whatever it will hold, now and whenever the
/// scheme changes.
///
/// The sheet stands on windows and not on the application, because then each piece that a view is
/// built of would be dressed again with every layer around it.
void dress(QWidget& window);

}  // namespace varnholt
