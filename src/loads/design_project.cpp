// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/design_project.h"

#include <algorithm>

namespace varnholt {

SharedZones zonesInUse(const ProjectLoads& loads) {
    SharedZones zones = loads.zones;
    zones.cutTo(static_cast<std::size_t>(std::max<std::int16_t>(loads.zoneNumber, 0)));
    return zones;
}

}  // namespace varnholt
