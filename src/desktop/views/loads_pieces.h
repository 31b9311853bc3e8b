// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/binding/binder.h"
#include "desktop/drawings/loads_picture.h"

class QWidget;

namespace varnholt {

class ZoneWindow;

// What the views of the two loads windows are made of. A control that only one of them has is
// left out of the other's view.

/// The commands, the units, the zone file and the lights of the link, around the pages.
QWidget* loadsWindow(Binder& bind, QWidget* pages);
/// The zones by their names.
QWidget* zoneList(Binder& bind);
/// What to do first while there is no zone, with the buttons for it.
QWidget* firstZone(Binder& bind, int text);
/// Loads and heat pump of the zone on display.
QWidget* zonePanel(Binder& bind);
/// Design conditions, and the catalogue with the curves of its pumps.
QWidget* heatPumpPage(Binder& bind);

// What those are made of.

/// The form; null when the window has been taken away.
const ZoneWindow* zoneWindowOf(const Binder& bind);
/// Heads over two columns, and the caption of the rows below; null for none.
FieldRow headRow(Binder& bind, const char* caption, const char* cooling, const char* heating);
/// Words at the pictures of loads, in the units shown.
LoadsCaptions loadsCaptions(const Binder& bind);

}  // namespace varnholt
