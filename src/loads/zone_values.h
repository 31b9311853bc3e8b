// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/values.h"
#include "loads/shared_zones.h"

namespace varnholt {

/// Registers a window's zones as its public values: "ZoneList(2).gains(0,1)" is block 0, heating,
/// of the third zone, "ZoneList(2).pump.plf(0)" its pump's part load factor in cooling. The list
/// must outlive the values.
void addZoneValues(Values& values, const SharedZones& zones);
void addZoneValues(Values& values, SharedZones&& zones) = delete;

}  // namespace varnholt
