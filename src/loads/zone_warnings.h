// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "basis/mode.h"
#include "catalogue/pump.h"
#include "catalogue/pump_catalogue.h"
#include "loads/zone.h"

namespace varnholt {

/// What an engineer would look at in a zone. It is advice: nothing is refused for it.
struct ZoneWarning {
    enum class Concern {
        missingPump,  ///< there are loads, and nothing that meets them
        capacity,     ///< the largest load is more than the pump's capacity
        inlet,        ///< the design's inlet temperature lies beyond the pump's measured points
    };

    Concern concern;
    Mode mode = cooling;
    double figure = 0;   ///< the load, MBtu/hr, or the inlet temperature, degF
    double lowest = 0;   ///< of the measured points, degF
    double highest = 0;  ///< the capacity, MBtu/hr, or the end of the measured points, degF

    friend bool operator==(const ZoneWarning&, const ZoneWarning&) = default;
};

/// The zone's warnings, cooling before heating. A mode without a load has none.
/// @param inletTemp  of the design, degF
/// @param model      the zone's pump in the catalogue; null where it is not at hand, and then
///                   nothing is said of its points
std::vector<ZoneWarning> warningsOf(const Zone& zone, const ByMode<double>& inletTemp,
                                    const pump* model);

/// The zone's pump in the catalogue; null for one that was typed in by hand, or that the catalogue
/// does not have.
const pump* modelOf(const Zone& zone, const PumpCatalogue& catalogue);

}  // namespace varnholt
