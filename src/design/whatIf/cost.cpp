// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/cost.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "basis/units.h"
#include "design/modCalculations/ground_load.h"

namespace varnholt {

using namespace modCalculations;

CostParts costParts(const PricedField& field, const Prices& prices) {
    const double above = std::min(field.depth, prices.costBand);
    const double below = field.depth - above;
    const double trench = std::max(0.0, field.bores - 1) * field.separation + prices.costRun;
    return {field.bores * (prices.costFoot * above + prices.costDeep * below),
            field.bores * prices.costBore, prices.costFixed, prices.costTrench * trench,
            field.towerTons * prices.costTower};
}

double loopCost(double trench, double pipe, const Prices& prices) {
    return prices.costFixed + prices.costGround * trench + prices.costPipe * pipe;
}

double sumOf(const CostParts& parts) { return std::accumulate(parts.begin(), parts.end(), 0.0); }

double yearlyEnergy(const EnergyYear& year, const Prices& prices) {
    double energy = 0, hours = 0;
    for (Mode m : modes) {
        const double heat = mbtuPerTon * year.annualTonHours[m];
        if (year.heatPumpCOP[m] != 0) energy += heat / (mbtuPerKilowatt * year.heatPumpCOP[m]);
        if (year.peakLoad[m] != 0) hours += heat / year.peakLoad[m];
    }
    const ExtraPower& power = year.extraPower;
    const double typed = power[towerFanInput] + power[towerPumpInput];
    const double tower = typed != 0 ? typed : year.towerTons * prices.towerPower;
    return energy + (power[circulationPumpInput] + power[additionalPower]) * hours +
           year.towerHours * tower;
}

double yearlyCost(double energy, double towerTons, const Prices& prices) {
    return energy * prices.costEnergy + towerTons * prices.costCare;
}

double presentWorth(const Prices& prices) {
    const double ratio = (1 + prices.escalation / 100) / (1 + prices.discount / 100);
    double worth = 0, factor = 1;
    for (int year = 1; year <= prices.costYears; ++year) worth += factor *= ratio;
    return worth;
}

double lifeCost(double firstCost, double yearly, const Prices& prices) {
    return firstCost + yearly * presentWorth(prices);
}

double towerTons(double coolingPeak, double coolingCOP, double percent) {
    return rejectionFactor(coolingCOP) * coolingPeak * percent / 100 / mbtuPerTon;
}

}  // namespace varnholt
