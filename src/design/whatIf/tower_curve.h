// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

#include "design/whatIf/cost.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// Percents that a tower may take. At 100 nothing is left to cool by the ground.
constexpr std::size_t towerPercents = 100;

/// What the design would need and cost with a tower of each percent, each at its own need. Where a
/// percent has no length all is 0.
struct TowerCurve {
    std::array<double, towerPercents> length{};     ///< ft
    std::array<double, towerPercents> first{};      ///< first cost
    std::array<double, towerPercents> towerCost{};  ///< part of the first cost that is the tower's
    std::array<double, towerPercents> life{};       ///< cost over life
    std::optional<std::size_t> best;  ///< percent of the least cost over life; the lower of equal
    std::optional<std::size_t> bestFirst;  ///< of the least first cost
    /// The least percent above 0 from which heating governs; none where it does at 0 or never does.
    std::optional<std::size_t> heatingGoverns;

    friend bool operator==(const TowerCurve&, const TowerCurve&) = default;
};

/// The design as a slider run would have it at a percent.
BoreholeInputs withTower(BoreholeInputs design, std::size_t percent);

/// Fills one percent.
/// @param figures  of the design with that tower
void setTowerPercent(TowerCurve& curve, std::size_t percent, const BoreholeInputs& design,
                     const RolledZones& zones, const CaseFigures& figures, const Prices& prices);

/// Finds the best percents, once all are filled.
/// @param heatingGovernsAt  whether heating asks for more at a percent
void concludeTower(TowerCurve& curve, const std::array<bool, towerPercents>& heatingGovernsAt);

/// The year of a design with its tower, for the cost of its energy.
EnergyYear energyYearOf(const BoreholeInputs& design, const RolledZones& zones);

/// What a design costs at a depth.
struct DesignCost {
    CostParts costPart{};
    double firstCost = 0;
    double yearlyEnergy = 0;  ///< kWh
    double yearlyCost = 0;
    double lifeCost = 0;

    friend bool operator==(const DesignCost&, const DesignCost&) = default;
};
/// @param depth  of a bore, ft
DesignCost designCost(const BoreholeInputs& design, const RolledZones& zones, double depth,
                      const Prices& prices);

/// Bores of a design.
double boresOf(const BoreholeInputs& design);

}  // namespace varnholt
