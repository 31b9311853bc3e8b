// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

class Varnmain;

/// Registers the commands that open the two loads windows, one window each.
void installLoads(Varnmain& main);

/// Every open loads window offers the catalogue as its files hold it now.
void refreshPumpLists(Varnmain& main);

}  // namespace varnholt
