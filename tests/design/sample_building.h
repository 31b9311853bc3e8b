// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "loads/zone.h"

namespace varnholt {

/// A zone with the same gains in both modes; the tests change what matters to them.
inline Zone zoneOf(const std::array<ByMode<double>, timeBlocks>& gains) {
    Zone zone;
    zone.gains = gains;
    return zone;
}

/// Two zones whose cooling peaks in the second block at 96 MBtu/hr and whose heating peaks in the
/// evening block at 84. One pump is smaller than its zone's heating load.
inline std::vector<Zone> sampleBuilding() {
    Zone offices = zoneOf({{{40, 36}, {60, 24}, {48, 30}, {12, 54}}});
    offices.hours = {900, 1100};
    offices.days = 5;
    offices.pump.capacity = {62, 50};
    offices.pump.watts = {4.6, 4.0};
    Zone shop = zoneOf({{{20, 18}, {36, 12}, {30, 16}, {6, 30}}});
    shop.hours = {1000, 800};
    shop.days = 7;
    shop.pump.capacity = {34, 40};
    shop.pump.watts = {2.5, 2.8};
    return {offices, shop};
}

}  // namespace varnholt
