// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// A soil or rock by its dry substance and the water in it.
struct DampSoil {
    double moisture = 0;        ///< percent
    double dryDensity = 100;    ///< lb/ft^3
    double specificHeat = 0.2;  ///< of the dry substance, Btu/(lb degF)
    double conductivity = 1.3;  ///< Btu/(hr ft degF)

    friend bool operator==(const DampSoil&, const DampSoil&) = default;
};

/// Thermal diffusivity of a damp soil or rock.
///
///   diffusivity = 24 conductivity / (C R), with the specific heat C and the density R of substance
///   and water together, each in proportion to the moisture; water has 1 Btu/(lb degF) and
///   62.4 lb/ft^3.
///
/// Source: the definition of thermal diffusivity, conductivity over heat capacity by volume, in
/// Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
///
/// @return ft^2/day; 0 where the substance holds no heat, or so little that no double holds
///         the quotient
double diffusivityOf(const DampSoil& soil);

}  // namespace varnholt
