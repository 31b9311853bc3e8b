// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/peak_loads.h"

namespace varnholt::modCalculations {

PeakLoads calcPeakLoads(Zones zones) {
    PeakLoads loads;
    for (const Zone& zone : zones)
        for (Mode m : modes)
            for (std::size_t block = 0; block < timeBlocks; ++block)
                loads.blockLoad[m][block] += zone.gains[block][m];

    for (Mode m : modes) {
        for (std::size_t block = 0; block < timeBlocks; ++block) {
            if (loads.blockLoad[m][block] <= loads.peakLoad[m]) continue;
            loads.peakLoad[m] = loads.blockLoad[m][block];
            loads.peakBlock[m] = static_cast<std::int16_t>(block);
        }
    }
    return loads;
}

}  // namespace varnholt::modCalculations
