// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace varnholt {

class Binder;

// What a design comes to, as its window shows it on every page and as the page of the results does.

/// Both modes' lengths and whether they are up to date.
QWidget* lengthStrip(Binder& bind);
/// The figure that the design is made for, large, and what governs it.
QWidget* lengthHeadline(Binder& bind);
/// Where the lengths come from.
QWidget* lengthPanel(Binder& bind);

}  // namespace varnholt
