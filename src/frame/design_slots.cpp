// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/design_slots.h"

#include <algorithm>

namespace varnholt {

std::size_t DesignSlots::highestUsed() const {
    for (std::size_t slot = slotsPerKind; slot > 0; --slot)
        if (exists[slot]) return slot;
    return 0;
}

std::size_t DesignSlots::count() const {
    return static_cast<std::size_t>(std::count(exists.begin(), exists.end(), true));
}

}  // namespace varnholt
