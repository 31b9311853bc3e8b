// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "design/modCalculations/hybrid.h"
#include "design/modCalculations/peak_loads.h"

namespace varnholt::modCalculations {

/// Heat taken from the ground at peak load, MBtu/hr: the heating load less the pumps' power, or
/// minus the cooling load and the pumps' power, which all goes into the ground.
/// @param load    MBtu/hr
/// @param demand  kW
double peakGroundLoad(Mode mode, double load, double demand);

/// The zones' year.
struct LoadTonHours {
    ByMode<std::vector<double>> zonePeakTons;  ///< largest block load of each zone, tons
    ByMode<std::vector<double>> loadTonHours;  ///< peak times equivalent full-load hours, ton hr

    friend bool operator==(const LoadTonHours&, const LoadTonHours&) = default;
};

LoadTonHours calculateLoadTonHours(Zones zones);

/// The building's year: the zones' ton-hours together.
ByMode<double> annualTonHours(const LoadTonHours& tonHours);

/// Heat rejected to the ground for each unit of cooling: (COP + 1)/COP, or 1 when the COP is 0.
double rejectionFactor(double coolingCOP);

/// Heat taken from the ground for each unit of heating: (COP - 1)/COP, or 1 when the COP is 0.
double extractionFactor(double heatingCOP);

/// Mean rate of heat taken from the ground over a year, MBtu/hr: positive where heating prevails.
/// A tower takes its share of the cooling ton-hours.
double calcAnnualGroundLoad(const ByMode<double>& tonHours, const ByMode<double>& heatPumpCOP,
                            const Hybrid& hybrid);

}  // namespace varnholt::modCalculations
