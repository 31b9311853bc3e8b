// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "basis/units.h"

namespace varnholt {

using Months = std::array<double, monthsOfYear>;

/// February always has 28 days.
constexpr std::array<std::int16_t, monthsOfYear> daysInMonth{31, 28, 31, 30, 31, 30,
                                                             31, 31, 30, 31, 30, 31};

/// Hours that a load would run at its peak to deliver the year's energy.
///
///   hours = sum of (energy of the month / peak)
///
/// Source: Kavanaugh and Rafferty, "Ground-Source Heat Pumps" (ASHRAE, 1997), chapter 3.
///
/// @param energy  by month, MBtu (thousand Btu)
/// @param peak    MBtu/hr
/// @return        hours; 0 without a peak above 0, and where the sum is no number
double fullLoadHoursOf(const Months& energy, double peak);

/// The same for the factors below: the mean load of a month over a load that would run all month.
///
///   factor = energy / (load 24 days)
///
/// @param energy  of the month, MBtu
/// @param load    MBtu/hr, not 0
/// @param month   0 to 11
double loadFactorOf(double energy, double load, std::size_t month);

/// The month with the greatest value; of equal ones the first.
std::size_t greatestMonth(const Months& values);

}  // namespace varnholt
