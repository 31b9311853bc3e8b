// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "basis/mode.h"
#include "design/whatIf/what_if_inputs.h"

namespace varnholt {

/// The quantile of the standard normal distribution that one case in ten exceeds.
constexpr double oneInTen = 1.2815515655;

/// Independent standard normal numbers, one a quantity, that make a case.
using Drivers = std::array<double, quantityCount>;

/// What a case changes of a design.
struct CaseFactors {
    double conductivity = 1;  ///< of the soil
    /// Conductivity over heat capacity. It is never in doubt by itself: that would count the doubt
    /// about the conductivity twice.
    double diffusivity = 1;
    double groundTemp = 0;  ///< added, degF
    double boreResistance = 1;
    ByMode<double> loads{1, 1};  ///< all gains of a mode; the hours stay, so energy follows
    ByMode<double> hours{1, 1};  ///< equivalent full-load hours, not rounded
    double pumpPower = 1;
    double method = 1;  ///< on the length

    friend bool operator==(const CaseFactors&, const CaseFactors&) = default;
};

/// Turns drivers into cases. The design's value is the middle one, and the two fields of a spread
/// are exactly its one-in-ten values: factors grow by equal ratios, the ground's temperature by
/// equal steps. Ties mix a driver with the one that it follows, so they cannot contradict each
/// other.
class Cases {
 public:
    explicit Cases(const Spreads& spreads);

    CaseFactors at(const Drivers& drivers) const;

 private:
    double factor(DoubtfulQuantity quantity, double driver) const;

    /// Of the logarithm of a factor for a unit of its driver; degF for the ground's temperature.
    std::array<double, quantityCount> below_, above_;
    std::array<double, tieCount> tie_, rest_;
};

/// One driver alone, the others in the middle.
Drivers driverAlone(DoubtfulQuantity quantity, double value);

constexpr std::size_t caseSets = 8;
constexpr std::size_t casesOfSet = std::size_t{1} << 11;

/// The drivers of a set of cases: Sobol' points under Owen's nested uniform scrambling by the hash
/// of Laine and Karras, apart from those of other sets.
/// Source: L'Ecuyer and Lemieux, "Recent Advances in Randomized Quasi-Monte Carlo Methods" (2002).
/// @param count  of cases, a power of 2; fewer are the first of more
/// @param seed   the same seed gives the same cases, in every program and on every machine
std::vector<Drivers> driversOfSet(std::size_t set, std::size_t count,
                                  std::uint32_t seed = 0x5eed'0001u);

/// Pairs of independent drivers, from points of twice as many dimensions.
struct DriverPairs {
    std::vector<Drivers> first, second;
};
DriverPairs driverPairs(std::size_t count, std::uint32_t seed = 0x5eed'0002u);

}  // namespace varnholt
