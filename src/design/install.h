// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/ground_design.h"

namespace varnholt {

class frmBHDesign;
class frmHZDesign;
class frmSWDesign;

/// Registers the commands that open new designs of each kind, for designs that know no files.
/// Whoever knows files registers the commands again, and gives each new window what it knows.
void installDesign(Varnmain& main);

/// Takes a slot and opens a borehole design in it, a new one or, while `openCall` is set, the one
/// named in the common dialog. Null, after a message, when all slots are in use.
/// @param filesOf  called before the window is set up
frmBHDesign* newBorehole(Varnmain& main,
                         const std::function<DesignFiles(frmBHDesign&)>& filesOf = {});

/// The same for a horizontal and for a surface water design, a new one.
frmHZDesign* newHorizontal(Varnmain& main);
frmSWDesign* newSurfaceWater(Varnmain& main);

}  // namespace varnholt
