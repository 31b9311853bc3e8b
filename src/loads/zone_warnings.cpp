// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_warnings.h"

#include <algorithm>
#include <optional>

#include "catalogue/fitting/pump_fit.h"

namespace varnholt {
namespace {

/// What rounding leaves of a capacity that was chosen to meet the load is no lack of it.
constexpr double rounding = 1e-9;

double largestLoad(const Zone& zone, Mode m) {
    double largest = 0;
    for (const ByMode<double>& block : zone.gains) largest = std::max(largest, block[m]);
    return largest;
}

bool hasPump(const MiniPump& pump) {
    return pump.capacity[cooling] > 0 || pump.capacity[heating] > 0;
}

/// A table without temperatures tells nothing.
std::optional<ZoneWarning> inletWarning(const pump& model, Mode m, double inlet) {
    const auto byTemperature = [](const ewt& a, const ewt& b) {
        return a.temperature < b.temperature;
    };
    const auto* first = model.ewt.data() + firstRatingRow[m];
    const auto [low, high] = std::minmax_element(first, first + ratingPoints, byTemperature);
    const bool tells = low->temperature < high->temperature;
    if (!tells || (inlet >= low->temperature && inlet <= high->temperature)) return std::nullopt;
    return ZoneWarning{ZoneWarning::Concern::inlet, m, inlet, low->temperature, high->temperature};
}

}  // namespace

std::vector<ZoneWarning> warningsOf(const Zone& zone, const ByMode<double>& inletTemp,
                                    const pump* model) {
    std::vector<ZoneWarning> warnings;
    const ByMode<double> loads{largestLoad(zone, cooling), largestLoad(zone, heating)};
    if (!hasPump(zone.pump)) {
        if (loads[cooling] > 0 || loads[heating] > 0)
            warnings.push_back({ZoneWarning::Concern::missingPump});
        return warnings;
    }
    for (const Mode m : modes) {
        if (!(loads[m] > 0)) continue;
        if (loads[m] > zone.pump.capacity[m] * (1 + rounding))
            warnings.push_back(
                {ZoneWarning::Concern::capacity, m, loads[m], 0, zone.pump.capacity[m]});
        if (model == nullptr) continue;
        if (const auto warning = inletWarning(*model, m, inletTemp[m]))
            warnings.push_back(*warning);
    }
    return warnings;
}

const pump* modelOf(const Zone& zone, const PumpCatalogue& catalogue) {
    const MiniPump& own = zone.pump;
    return own.customPump == 1 ? nullptr : catalogue.lookUp(own.mfgName, own.seriesName, own.name);
}

}  // namespace varnholt
