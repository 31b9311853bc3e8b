// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/tower_curve.h"

#include <cmath>

#include "basis/units.h"

namespace varnholt {
namespace {

/// The first percent of the least of some costs.
std::optional<std::size_t> leastOf(const TowerCurve& curve,
                                   const std::array<double, towerPercents>& costs) {
    std::optional<std::size_t> least;
    for (std::size_t p = 0; p < towerPercents; ++p)
        if (curve.length[p] > 0 && (!least || costs[p] < costs[*least])) least = p;
    return least;
}

}  // namespace

double boresOf(const BoreholeInputs& design) {
    return design.arrangement.patternRows[0] * design.arrangement.patternRows[1];
}

EnergyYear energyYearOf(const BoreholeInputs& design, const RolledZones& zones) {
    EnergyYear year;
    year.annualTonHours = zones.annualTonHours();
    year.peakLoad = zones.loads().peakLoad;
    year.heatPumpCOP = zones.heatPumpCOP();
    year.extraPower = design.loads.extraPower;
    if (!design.loads.hybridOn || design.loads.hybridPercent == 0) return year;
    const double peak = year.peakLoad[cooling];
    year.towerTons = towerTons(peak, year.heatPumpCOP[cooling], design.loads.hybridPercent);
    // It takes the same percent of the year as of the peak, so it runs as many hours.
    if (peak != 0) year.towerHours = mbtuPerTon * year.annualTonHours[cooling] / peak;
    return year;
}

DesignCost designCost(const BoreholeInputs& design, const RolledZones& zones, double depth,
                      const Prices& prices) {
    const EnergyYear year = energyYearOf(design, zones);
    DesignCost cost;
    cost.costPart = costParts(
        {boresOf(design), depth, design.arrangement.boreSeparation, year.towerTons}, prices);
    cost.firstCost = sumOf(cost.costPart);
    cost.yearlyEnergy = yearlyEnergy(year, prices);
    cost.yearlyCost = yearlyCost(cost.yearlyEnergy, year.towerTons, prices);
    cost.lifeCost = lifeCost(cost.firstCost, cost.yearlyCost, prices);
    return cost;
}

BoreholeInputs withTower(BoreholeInputs design, std::size_t percent) {
    design.loads.hybridPercent = static_cast<std::int16_t>(percent);
    design.loads.hybridOn = percent != 0;
    return design;
}

void setTowerPercent(TowerCurve& curve, std::size_t percent, const BoreholeInputs& design,
                     const RolledZones& zones, const CaseFigures& figures, const Prices& prices) {
    if (!figures.hasNeed() || figures.need() <= 0) return;
    const DesignCost cost =
        designCost(withTower(design, percent), zones, figures.need() / boresOf(design), prices);
    if (!std::isfinite(cost.firstCost)) return;
    curve.length[percent] = figures.need();
    curve.first[percent] = cost.firstCost;
    curve.towerCost[percent] = cost.costPart[towerPart];
    curve.life[percent] = cost.lifeCost;
}

void concludeTower(TowerCurve& curve, const std::array<bool, towerPercents>& heatingGovernsAt) {
    curve.best = leastOf(curve, curve.life);
    curve.bestFirst = leastOf(curve, curve.first);
    if (heatingGovernsAt[0]) return;
    for (std::size_t p = 1; p < towerPercents && !curve.heatingGoverns; ++p)
        if (curve.length[p] > 0 && heatingGovernsAt[p]) curve.heatingGoverns = p;
}

}  // namespace varnholt
