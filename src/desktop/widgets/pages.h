// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace varnholt {

// The margins, gaps and lines of a window's pages.

/// Gives a page, or the bar above the pages, its margins.
QWidget* page(QWidget* content);
QWidget* bar(QWidget* content);

/// The bar below the pages, which a hairline parts from them.
QWidget* foot(QWidget* content);

/// Room between two columns of a page.
QWidget* gap();

/// A hairline between parts of a table.
QWidget* rule();

/// A view that opens no smaller than so much in the usual size of type, and larger with larger
/// type, though it may be made smaller: what it shows later finds its place.
QWidget* roomy(QWidget* view, const QSize& least);

/// Brings the pages of tabs around a widget to the front and scrolls it into sight.
void bringToSight(QWidget* widget);

/// Scrolls a panel into sight, its beginning where not all of it fits.
void reveal(const QWidget* panel);

/// Scrolls a panel into sight when it opens.
void revealWhenOpened(QWidget* panel);

/// Scrolls to another part of the page when a panel closes, which leaves the page anywhere.
void revealWhenClosed(QWidget* panel, QWidget* instead);

}  // namespace varnholt
