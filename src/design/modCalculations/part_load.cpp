// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/part_load.h"

namespace varnholt::modCalculations {

namespace {

double factorOf(double dailyLoad, double peakLoad) {
    return peakLoad == 0 ? 0 : dailyLoad / (24 * peakLoad);
}

}  // namespace

PartLoadFactors calcPartLoadFactors(Zones zones, const ByMode<double>& peakLoad,
                                    const Hybrid& hybrid) {
    PartLoadFactors result;
    for (const Zone& zone : zones) {
        const double weight = zone.days / 7;
        for (Mode m : modes)
            for (std::size_t block = 0; block < timeBlocks; ++block)
                result.weightedBlockLoad[m][block] += zone.gains[block][m] * weight;
    }
    for (Mode m : modes) {
        for (std::size_t block = 0; block < timeBlocks; ++block)
            result.dailyLoad[m] += blockHours[block] * result.weightedBlockLoad[m][block];
        result.partLoadFactor[m] = factorOf(result.dailyLoad[m], peakLoad[m]);
    }
    if (hybrid.on && hybrid.coolingPeakBeforeHybrid != 0)
        result.partLoadFactor[cooling] =
            factorOf(result.dailyLoad[cooling], hybrid.coolingPeakBeforeHybrid);
    return result;
}

}  // namespace varnholt::modCalculations
