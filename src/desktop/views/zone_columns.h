// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace varnholt {

class Binder;

/// The list of the Zone Manager's zones to look at: number and sign of what is to be checked,
/// label, loads as bars, pump; a box to find zones by, and the command that edits those selected.
QWidget* zoneColumns(Binder& bind);

}  // namespace varnholt
