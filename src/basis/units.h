// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

namespace varnholt {

/// How values are shown; everything is stored and computed in English units.
enum class UnitSystem { english = 0, metric = 1 };

// The program's fixed factors. They stay as they are, digit for digit, since files, printed
// reports and the users' own check calculations agree with them.
constexpr double kilowattsPerMBtu = 0.2931;              // kW per MBtu/hr
constexpr double mbtuPerKilowatt = 3.412;                // MBtu/hr per kW, and EER per COP
constexpr double litresPerGallon = 3.785412;             // L/min per gpm
constexpr double litresPerSecondPerCfm = 0.4719474;      // L/s per cfm
constexpr double metresPerFoot = 0.3048;                 // m per ft
constexpr double densityToMetric = 16.01846;             // kg/m^3 per lb/ft^3
constexpr double specificHeatToMetric = 4.186;           // kJ/(degK*kg) per Btu/(lb degF)
constexpr double conductivityToEnglish = 0.5777892;      // Btu/(hr ft degF) per W/(m*degK)
constexpr double squareFeetPerSquareMetre = 10.7639104;  // ft^2 per m^2
constexpr double kilowattsPerHorsepower = 0.74571;       // kW per hp
constexpr double mbtuPerTon = 12;                        // MBtu/hr per ton of refrigeration
constexpr double inchesPerFoot = 12;                     // in per ft

// The year of every calculation has no leap day.
constexpr std::size_t monthsOfYear = 12;
constexpr int daysPerYear = 365;
constexpr double hoursPerDay = 24;
constexpr double hoursPerYear = 8760;

constexpr double toCelsius(double fahrenheit) { return (fahrenheit - 32) * 5 / 9; }
constexpr double toFahrenheit(double celsius) { return celsius * 9 / 5 + 32; }

}  // namespace varnholt
