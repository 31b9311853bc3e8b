// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/header_pickup.h"

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

double pickup(double factor, double difference, double length, double flow) {
    return finite(divide(factor * difference * length, flow));
}

/// @param flow  of one main header, gpm
double submergedPickup(const Headers& headers, Mode m, double fluidTemp, double systemFlow,
                       double flow) {
    const auto& [primary, branch] = headers;
    double inBranch = 0;
    if (branch.count > 0)
        inBranch = pickup(branch.waterFactor, branch.waterTemp[m] - fluidTemp, branch.lengthInWater,
                          systemFlow / branch.count);
    return inBranch + pickup(primary.waterFactor, primary.waterTemp[m] - (fluidTemp + inBranch),
                             primary.lengthInWater, flow);
}

/// @param fluidTemp  behind the submerged part, degF
/// @param flow       of one main header, gpm
double buriedPickup(const Headers& headers, double fluidTemp, double groundTemp, double flow) {
    const auto& [primary, branch] = headers;
    double inBranch = 0;
    if (branch.count > 0)
        inBranch = pickup(branch.soilFactor, groundTemp - fluidTemp, branch.lengthInSoil,
                          flow / branch.count);
    return inBranch + pickup(primary.soilFactor, groundTemp - (fluidTemp + inBranch),
                             primary.lengthInSoil, flow);
}

}  // namespace

HeaderPickup calculateHeaderPickup(const Headers& headers, Mode mode, double fluidTemp,
                                   double systemFlow, double groundTemp) {
    if (systemFlow == 0) return {};
    const double flow = divide(systemFlow, headers.primary.count);
    HeaderPickup result;
    result.submerged = submergedPickup(headers, mode, fluidTemp, systemFlow, flow);
    result.buried = buriedPickup(headers, fluidTemp + result.submerged, groundTemp, flow);
    return result;
}

}  // namespace varnholt::modCalculations
