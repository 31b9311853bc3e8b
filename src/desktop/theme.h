// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

namespace varnholt {

enum class Scheme { followDesktop, light, dark };

/// Dresses the whole program: style, palette, style sheet and fonts. With Scheme::followDesktop
/// the desktop's palette decides between light and dark, now and whenever it changes.
/// @param fontFace the language's font; empty for the house's own
void applyTheme(QApplication& application, Scheme scheme, const QString& fontFace = {});

}  // namespace varnholt
