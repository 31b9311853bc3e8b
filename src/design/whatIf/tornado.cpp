// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/tornado.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnholt {

Ends<quantityCount> tornado(const Cases& cases, const NeedOfCase& need) {
    Ends<quantityCount> ends;
    for (std::size_t j = 0; j < quantityCount; ++j) {
        const auto quantity = static_cast<DoubtfulQuantity>(j);
        ends.low[j] = need(cases.at(driverAlone(quantity, -oneInTen)));
        ends.high[j] = need(cases.at(driverAlone(quantity, oneInTen)));
    }
    return ends;
}

std::array<std::size_t, quantityCount> tornadoRanks(const Ends<quantityCount>& ends) {
    const auto swing = [&](std::size_t j) {
        const auto [least, most] = std::minmax(ends.low[j], ends.high[j]);
        return least < noLength ? most - least : noLength;
    };
    std::array<std::size_t, quantityCount> ranks{};
    std::iota(ranks.begin(), ranks.end(), std::size_t{0});
    std::stable_sort(ranks.begin(), ranks.end(),
                     [&](std::size_t a, std::size_t b) { return swing(a) > swing(b); });
    return ranks;
}

BoreholeInputs withLever(BoreholeInputs design, Lever lever, int end) {
    constexpr double limitStep = 5, spacingStep = 5, flowStep = 0.5;  // degF, ft, gpm per ton
    switch (lever) {
        case coolingLimit:
            design.loads.inletTemp[cooling] += end * limitStep;
            break;
        case heatingLimit:
            design.loads.inletTemp[heating] += end * limitStep;
            break;
        case boreSpacing:
            design.arrangement.boreSeparation += end * spacingStep;
            break;
        case predictionYears:
            design.arrangement.predictionTime *= end < 0 ? 0.5 : 2;
            break;
        default:
            design.loads.flowRate += end * flowStep;
    }
    return design;
}

}  // namespace varnholt
