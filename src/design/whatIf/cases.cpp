// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/cases.h"

#include <cmath>

#include "design/whatIf/sobol_points.h"

namespace varnholt {
namespace {

/// A seed of its own for each coordinate of each set: the finishing steps of MurmurHash3.
std::uint32_t seedOf(std::uint32_t seed, std::size_t set, std::size_t dimension) {
    auto x =
        seed + 0x9e37'79b9u * static_cast<std::uint32_t>(set * sobolDimensions + dimension + 1);
    x = (x ^ (x >> 16)) * 0x85eb'ca6bu;
    x = (x ^ (x >> 13)) * 0xc2b2'ae35u;
    return x ^ (x >> 16);
}

/// @param firstDimension  of the points' that become these drivers
std::vector<Drivers> driversFrom(std::size_t firstDimension, std::size_t set, std::size_t count,
                                 std::uint32_t seed) {
    std::vector<Drivers> drivers(count);
    for (std::size_t quantity = 0; quantity < quantityCount; ++quantity) {
        const std::size_t dimension = firstDimension + quantity;
        const std::uint32_t scramble = seedOf(seed, set, dimension);
        const std::vector<std::uint32_t> coordinates = sobolCoordinates(dimension, count);
        for (std::size_t i = 0; i < count; ++i)
            drivers[i][quantity] = normalQuantile(unitOf(owenScrambled(coordinates[i], scramble)));
    }
    return drivers;
}

}  // namespace

Cases::Cases(const Spreads& spreads) {
    for (std::size_t j = 0; j < quantityCount; ++j) {
        below_[j] = -std::log(1 - spreads.low[j] / 100) / oneInTen;
        above_[j] = std::log(1 + spreads.high[j] / 100) / oneInTen;
    }
    below_[groundTemperature] = spreads.low[groundTemperature] / oneInTen;
    above_[groundTemperature] = spreads.high[groundTemperature] / oneInTen;
    tie_ = spreads.tie;
    for (std::size_t n = 0; n < tieCount; ++n) rest_[n] = std::sqrt(1 - tie_[n] * tie_[n]);
}

double Cases::factor(DoubtfulQuantity quantity, double driver) const {
    return std::exp(driver * (driver < 0 ? below_ : above_)[quantity]);
}

CaseFactors Cases::at(const Drivers& z) const {
    const auto tied = [&](Tie n, DoubtfulQuantity leader, DoubtfulQuantity follower) {
        return tie_[n] * z[leader] + rest_[n] * z[follower];
    };
    CaseFactors factors;
    factors.conductivity = factor(conductivity, z[conductivity]);
    factors.diffusivity =
        factors.conductivity / factor(heatCapacity, tied(capacityTie, conductivity, heatCapacity));
    const double warmer = z[groundTemperature];
    factors.groundTemp = warmer * (warmer < 0 ? below_ : above_)[groundTemperature];
    factors.boreResistance =
        factor(boreResistance, tied(resistanceTie, conductivity, boreResistance));
    factors.loads = {factor(coolingLoads, z[coolingLoads]),
                     factor(heatingLoads, tied(heatingTie, coolingLoads, heatingLoads))};
    factors.hours = {factor(coolingHours, z[coolingHours]), factor(heatingHours, z[heatingHours])};
    factors.pumpPower = factor(pumpPower, z[pumpPower]);
    factors.method = factor(method, z[method]);
    return factors;
}

Drivers driverAlone(DoubtfulQuantity quantity, double value) {
    Drivers drivers{};
    drivers[quantity] = value;
    return drivers;
}

std::vector<Drivers> driversOfSet(std::size_t set, std::size_t count, std::uint32_t seed) {
    return driversFrom(0, set, count, seed);
}

DriverPairs driverPairs(std::size_t count, std::uint32_t seed) {
    return {driversFrom(0, 0, count, seed), driversFrom(quantityCount, 0, count, seed)};
}

Spreads withKnowledge(Spreads spreads, GroundKnowledge knowledge) {
    struct Row {
        std::array<double, 4> spread;
        double tie;
    };
    // Response tests: Wagner and Clauser (2005), Gehlin and Nordell (2003). Logs and tables:
    // Salomone and Marlowe, EPRI CU-6600 (1989).
    constexpr std::array<Row, 3> rows{
        {{{10, 15, 1, 12}, 0.7}, {{20, 15, 2, 15}, 0}, {{40, 20, 4, 20}, 0}}};
    if (knowledge < responseTest || knowledge > tableValue) return spreads;
    const Row& row = rows[static_cast<std::size_t>(knowledge)];
    for (std::size_t j = 0; j < row.spread.size(); ++j)
        spreads.low[j] = spreads.high[j] = row.spread[j];
    spreads.tie[resistanceTie] = row.tie;
    return spreads;
}

}  // namespace varnholt
