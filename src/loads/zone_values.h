// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/values.h"
#include "loads/shared_zones.h"

namespace varnholt {

/// Registers a window's zones as its public values: "ZoneList(2).gains(0,1)" is block 0, heating,
/// of the third zone, "ZoneList(2).pump.plf(0)" its pump's part load factor in cooling. The list
/// must outlive the values.
void addZoneValues(Values& values, const SharedZones& zones);
void addZoneValues(Values& values, SharedZones&& zones) = delete;
/// The same of one zone under a name of its own: "zoneTemp.gains(0,1)".
void addZoneValues(Values& values, const std::string& name, const Zone& zone);
void addZoneValues(Values& values, const std::string& name, Zone&& zone) = delete;

}  // namespace varnholt
