// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "basis/mode.h"
#include "design/modCalculations/extra_power.h"

namespace varnholt {

/// What things cost, in the designer's currency.
struct Prices {
    double costFixed = 5'000;  ///< mobilization
    double costBore = 200;     ///< each bore
    double costFoot = 14;      ///< drilling, pipe and grout a foot, down to the band
    double costBand = 400;     ///< ft
    double costDeep = 18;      ///< a foot below the band
    double costTrench = 10;    ///< header trench a foot
    double costRun = 50;       ///< from the field to the building, ft
    double costTower = 300;    ///< a ton of cooling tower
    double costCare = 20;      ///< a ton of tower and a year
    double towerPower = 0.1;   ///< kW a ton, where the design has no power of fan and pump
    double costGround = 8;     ///< a foot of the trench of a horizontal loop
    double costPipe = 1;       ///< a foot of the pipe of a horizontal or pond loop
    double costEnergy = 0.12;  ///< a kilowatt-hour
    double escalation = 2;     ///< by which energy rises, percent a year
    double discount = 4;       ///< percent a year
    double costYears = 20;

    friend bool operator==(const Prices&, const Prices&) = default;
};

/// Parts of the first cost.
enum CostPart : std::size_t {
    drillingPart = 0,
    borePart = 1,
    fixedPart = 2,
    trenchPart = 3,
    towerPart = 4
};
using CostParts = std::array<double, 5>;

/// A field of bores, as far as its cost depends on it.
struct PricedField {
    double bores = 0;
    double depth = 0;       ///< of a bore, ft
    double separation = 0;  ///< ft
    double towerTons = 0;   ///< of the cooling tower beside it
};

/// What a field costs to build: drilling by its depth in two bands, the bores, mobilization, one
/// header trench along all bores and to the building, and the tower. Heat pumps, building and land
/// are the same for every field and left out.
CostParts costParts(const PricedField& field, const Prices& prices);

/// What a loop of pipe in trenches costs to build; a pond has no trench.
/// @param trench  its length, ft
/// @param pipe    its length, ft
double loopCost(double trench, double pipe, const Prices& prices);

/// Sum of the parts.
double sumOf(const CostParts& parts);

/// The building's year and its machines, before a tower takes its share: the pumps still cool.
struct EnergyYear {
    ByMode<double> annualTonHours{};
    ByMode<double> peakLoad{};     ///< MBtu/hr
    ByMode<double> heatPumpCOP{};  ///< 0 where nothing draws power
    modCalculations::ExtraPower extraPower{};
    double towerTons = 0;
    double towerHours = 0;  ///< hr a year at full capacity

    friend bool operator==(const EnergyYear&, const EnergyYear&) = default;
};

/// Electric energy of a year, kWh: heat pumps, circulation through their hours at full load, tower.
/// A mode without COP adds nothing for its pumps, one without peak load nothing for circulation.
/// Power does not vary with the water's temperature.
double yearlyEnergy(const EnergyYear& year, const Prices& prices);

/// What a year costs: energy and the tower's care.
double yearlyCost(double energy, double towerTons, const Prices& prices);

/// What all the years cost in today's money for each unit of the first year's cost: the sum over
/// the years of ((1 + escalation)/(1 + discount))^year.
/// Source: Fuller and Petersen, "Life-Cycle Costing Manual", NIST Handbook 135 (1995), modified
/// uniform present value.
double presentWorth(const Prices& prices);

/// Cost over life: to build, and the years in today's money.
double lifeCost(double firstCost, double yearly, const Prices& prices);

/// Tons of a tower that takes a percent of the peak cooling load, with the pumps' heat.
/// @param coolingPeak  of the building, MBtu/hr
/// @param coolingCOP   0 counts the load alone
double towerTons(double coolingPeak, double coolingCOP, double percent);

}  // namespace varnholt
