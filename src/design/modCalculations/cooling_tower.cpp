// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/cooling_tower.h"

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/ground_load.h"

namespace varnholt::modCalculations {

namespace {

/// Hours at full capacity in which the tower sheds its share of the year's cooling, 0 without
/// capacity.
/// @param factor  heat rejected for each unit of cooling
double hoursOf(double factor, const TowerYear& year, double capacity) {
    if (capacity == 0) return 0;
    const double tons = year.coolingTonHours;
    const double left = tons * (1 - year.hybridPercent / 100.0);
    return factor * mbtuPerTon * (tons - left) / capacity;
}

double flowOf(double capacity, double range, const Fluid& fluid) {
    if (range == 0 || fluid.density == 0 || fluid.specificHeat == 0) return 0;
    return divide(capacity * 1000, fluid.heatPerGallonMinute() * range);
}

CoolingTower withCapacityFromFlow(CoolingTower tower, const Fluid& fluid) {
    tower.capacity = fluid.heatPerGallonMinute() * tower.flow * tower.range / 1000;
    if (tower.capacity > tower.capacityMax) {
        tower.capacity = tower.capacityMax;
        tower.flow = flowOf(tower.capacity, tower.range, fluid);
    }
    if (tower.capacity == 0) tower.hours = 0;
    return tower;
}

}  // namespace

CoolingTower sizeCoolingTower(const Hybrid& hybrid, double groundPeak, const TowerYear& year,
                              const Fluid& fluid, double range) {
    CoolingTower tower;
    tower.range = range;
    if (hybrid.percent == 0) return tower;
    const double factor = rejectionFactor(year.coolingCOP);
    tower.capacity = factor * (hybrid.coolingPeakBeforeHybrid - groundPeak);
    tower.capacityMax = tower.capacity;
    tower.hours = hoursOf(factor, year, tower.capacity);
    tower.flow = flowOf(tower.capacity, range, fluid);
    return tower;
}

CoolingTower trimCapacity(CoolingTower tower, double capacity, const TowerYear& year,
                          const Fluid& fluid) {
    tower.capacity = capacity;
    tower.hours = 0;
    tower.flow = 0;
    if (capacity == 0 || fluid.density == 0 || fluid.specificHeat == 0) return tower;
    // Without a COP the factor of a run is 1, here it is 0: both are kept.
    const double factor = year.coolingCOP == 0 ? 0 : rejectionFactor(year.coolingCOP);
    tower.hours = hoursOf(factor, year, capacity);
    tower.flow = flowOf(capacity, tower.range, fluid);
    return tower;
}

CoolingTower trimRange(CoolingTower tower, double range, const Fluid& fluid) {
    tower.range = range;
    return withCapacityFromFlow(tower, fluid);
}

CoolingTower trimFlow(CoolingTower tower, double flow, const Fluid& fluid) {
    tower.flow = flow;
    return withCapacityFromFlow(tower, fluid);
}

}  // namespace varnholt::modCalculations
