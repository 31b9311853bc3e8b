// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/shared_zones.h"

namespace varnholt {

bool sameLoads(const Zone& a, const Zone& b) {
    return a.gains == b.gains && a.hours == b.hours && a.days == b.days && a.title == b.title &&
           a.pump == b.pump;
}

bool sameLoads(const SharedZones& a, const SharedZones& b) {
    if (a.isSameAs(b)) return true;
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!a.sharesZone(i, b) && !sameLoads(a[i], b[i])) return false;
    return true;
}

}  // namespace varnholt
