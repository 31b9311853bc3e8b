// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/platform.h"

namespace varnholt {

class GroundDesign;
class LinkedDesign;

/// Finds the zone file of a project just read and links the design with a loads window that holds
/// it, opening that window if need be. Where that cannot be, says why and leaves the design
/// without a link and without a zone file.
/// @param linkIsStored  the project's file can tell of a link at all
/// @param isRecovered   the project is the unsaved work of a program that has ended: the loads that
///                      it had may be open again beside it, with or without a file
void resolveZoneLink(LinkedDesign& design, bool linkIsStored, bool isRecovered);

/// Asks where the zone file is that was missing, and links the design with it.
void findZoneFile(GroundDesign& design);

/// Before a linked design is saved: asks about the unsaved changes of its loads, and saves them on
/// Yes. No without a question when there are none. Cancel, and a zone save that did not come
/// about, set the main window's `saveCancelled`.
Answer checkZoneFile(LinkedDesign& design);

}  // namespace varnholt
