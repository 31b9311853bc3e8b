// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/heat_pulses.h"

namespace varnholt::modCalculations {

struct Soil {
    double conductivity = 0;  ///< Btu/(hr ft degF)
    double diffusivity = 0;   ///< ft^2/day

    friend bool operator==(const Soil&, const Soil&) = default;
};

/// Effective resistances of the ground to the three heat pulses, hr ft degF/Btu.
struct GroundResistances {
    double annual = 0;
    double monthly = 0;
    double shortTerm = 0;

    friend bool operator==(const GroundResistances&, const GroundResistances&) = default;
};

/// Dimensionless time of heat flow around a cylinder: 4 alpha t / d^2.
/// @param alpha  diffusivity, ft^2/day
/// @param t      time, days
/// @param d      diameter, ft; 0 gives 1.0E+9, a time at which any cylinder is long steady
double fourierNumber(double alpha, double t, double d);

/// The cylinder-source function G at the cylinder's wall, as two straight lines over the logarithm
/// of the Fourier number; 0.13 when that is 0 or less, and never negative.
/// Source: fitted to the graph of Ingersoll, Zobel and Ingersoll, "Heat Conduction" (1954).
double gFactor(double fourier);

/// Effective thermal resistances of the ground for the annual, monthly and short-term heat pulses,
/// from the cylinder-source solution, each pulse superposed on the end of the one before.
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
/// @param pulses  longest first
/// @param bore    bore diameter, ft
/// @return all 0 when the conductivity is 0
GroundResistances calcGroundResistances(const PulseTimes& pulses, double bore, const Soil& soil);

}  // namespace varnholt::modCalculations
