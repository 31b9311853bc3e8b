// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "sample_building.h"

namespace varnholt {

/// The zones of buildingOf(), each with a title.
inline std::vector<Zone> titledBuildingOf(std::int64_t zoneCount) {
    std::vector<Zone> zones = buildingOf(zoneCount);
    for (Zone& zone : zones) zone.title = "A room with a name";
    return zones;
}

}  // namespace varnholt
