// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/binding/binder.h"
#include "desktop/drawings/loads_picture.h"

class QWidget;

namespace varnholt {

// What the views of the two loads windows are made of. A control that only one of them has is
// left out of the other's view.

/// The commands, the units, the zone file and the lights of the link.
QWidget* loadsBar(Binder& bind);
/// The zones by their names.
QWidget* zoneList(Binder& bind);
/// Loads and heat pump of the zone on display.
QWidget* zonePanel(Binder& bind);
/// Design conditions, and the catalogue with the curves of its pumps.
QWidget* heatPumpPage(Binder& bind);

/// Words at the pictures of loads, in the units shown.
LoadsCaptions loadsCaptions(const Binder& bind);

}  // namespace varnholt
