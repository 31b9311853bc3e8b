// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace varnholt {

/// The table that the widget is or stands in, as lines with tabs between the cells: of a list all
/// entries under their heads, of a group its captions with their units and the figures beside them.
/// Empty where there is none.
QString tableAround(const QWidget* widget);

/// What is selected of a list as such lines; empty for what is no list and where nothing is.
QString selectedLines(const QWidget* widget);

}  // namespace varnholt
