// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

class Varnmain;

/// Registers the commands that open the three calculators, one window each.
void installTools(Varnmain& main);

}  // namespace varnholt
