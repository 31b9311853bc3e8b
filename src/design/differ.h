// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "loads/shared_zones.h"

namespace varnholt {

/// Whether a run from `now` would find other lengths, loads or powers than one from `then`. The
/// zones' names make no difference, nor that a tower's share was set by the slider and how its
/// figures were trimmed.
/// @tparam Inputs  of one kind of design, with its `loads`; `coolingRange` where it has a tower
template <class Inputs>
bool differ(const Inputs& then, const Inputs& now) {
    if (!sameLoads(then.loads.zones, now.loads.zones)) return true;
    Inputs same = now;
    same.loads.zones = then.loads.zones;
    same.loads.hybridOn = then.loads.hybridOn;
    if constexpr (requires { same.coolingRange; }) same.coolingRange = then.coolingRange;
    return !(same == then);
}

}  // namespace varnholt
