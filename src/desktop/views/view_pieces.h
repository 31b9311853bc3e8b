// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "desktop/binder.h"
#include "desktop/layout.h"

namespace varnholt {

// Pieces that several views are made of.

/// Gives a page, or the bar above the pages, its margins.
QWidget* page(QWidget* content);
QWidget* bar(QWidget* content);

/// A hairline between parts of a table.
QWidget* rule();

/// A line that tells what to do first, shown while the condition holds.
QWidget* hint(Binder& bind, int text, std::function<bool()> condition);

/// The lights of a window's link, side by side; the form shows those that matter.
QWidget* linkLights(Binder& bind);

}  // namespace varnholt
