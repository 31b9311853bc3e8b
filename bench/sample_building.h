// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "loads/zone.h"

namespace varnholt {

/// Zones of different sizes, so that no two add the same figures.
inline std::vector<Zone> buildingOf(std::int64_t zoneCount) {
    std::vector<Zone> zones(static_cast<std::size_t>(zoneCount));
    double size = 1;
    for (Zone& zone : zones) {
        zone.gains = {{{20 * size, 18 * size},
                       {36 * size, 12 * size},
                       {30 * size, 16 * size},
                       {6 * size, 26 * size}}};
        zone.hours = {1000, 900};
        zone.days = 5;
        zone.pump.capacity = {38 * size, 30 * size};
        zone.pump.watts = {2.8 * size, 2.5 * size};
        size = size > 2 ? 1 : size + 0.01;
    }
    return zones;
}

}  // namespace varnholt
