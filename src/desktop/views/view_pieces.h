// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "desktop/binding/binder.h"
#include "desktop/widgets/layout.h"

namespace varnholt {

// Pieces that several views are made of.

/// Gives a page, or the bar above the pages, its margins.
QWidget* page(QWidget* content);
QWidget* bar(QWidget* content);

/// A control whose caption has a name of its own: it is called so to screen readers.
QWidget* named(Binder& bind, const std::string& control, const std::string& caption);

/// Room between two columns of a page.
QWidget* gap();

/// A view that opens no smaller than so much, though it may be made smaller: what it shows later
/// finds its place.
QWidget* roomy(QWidget* view, const QSize& least);

/// Scrolls a panel into sight when it opens.
void revealWhenOpened(QWidget* panel);

/// A hairline between parts of a table.
QWidget* rule();

/// A line that tells what to do first, shown while the condition holds.
QWidget* hint(Binder& bind, int text, std::function<bool()> condition);

/// The lights of a window's link, side by side; the form shows those that matter.
QWidget* linkLights(Binder& bind);

}  // namespace varnholt
