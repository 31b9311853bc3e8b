// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/units.h"
#include "design/sample_building.h"
#include "design/secondOpinion/second_opinion.h"

namespace varnholt {

/// Two zones in a field of 6 by 4 bores, the rest as a new design has it.
inline SecondOpinionCase sampleCase() {
    SecondOpinionCase theCase;
    theCase.design.loads.zones = sampleBuilding();
    theCase.design.loads.inletTemp = {85, 50};
    theCase.design.loads.flowRate = 3;
    theCase.design.loads.fluid = {62.4, 1.0};
    theCase.design.coolingRange = 10;
    return theCase;
}

/// A building of one zone whose heat pump draws no power, so that the ground has the building's
/// loads. The peak lasts for one block of the day.
/// @param peak   MBtu/hr
/// @param hours  at full load
inline Zone zoneWithoutPower(const ByMode<double>& peak, const ByMode<std::int16_t>& hours) {
    Zone zone;
    zone.gains = {{{peak[cooling], peak[heating]}, {0, 0}, {0, 0}, {0, 0}}};
    zone.hours = hours;
    zone.pump.capacity = peak;
    return zone;
}

/// English units from metric ones.
constexpr double feet(double metres) { return metres / metresPerFoot; }
constexpr double conductivityOf(double watts) { return watts * conductivityToEnglish; }
/// @param capacity  J/(m^3 K)
constexpr double diffusivityOf(double watts, double capacity) {
    return watts / capacity * 86400 * squareFeetPerSquareMetre;
}

/// Months of cooling and heating, energies and peaks being the same.
inline MonthsOfModes monthsOf(const std::array<double, 12>& cooled,
                              const std::array<double, 12>& heated) {
    MonthsOfModes months{};
    for (std::size_t m = 0; m < months.size(); ++m) months[m] = {cooled[m], heated[m]};
    return months;
}

/// The field that three public tools size: bores 6 m apart, tops at 2 m, 0.15 m wide, 2.0 W/(m K),
/// 2.0 MJ/(m^3 K), ground of 12 C, 0.12 m K/W, fluid of 2 to 28 C, six hours of peak, 20 years. A
/// bore has 3,750 kWh and 2.5 kW of heating, 2,500 kWh and 2.5 kW of cooling.
inline SecondOpinionCase peersCase(int across, int down) {
    const double peak = 2.5 * mbtuPerKilowatt * across * down;
    // The design day has its peak for four hours and the mean of the greatest month: 20 percent of
    // 2,500 kWh and 15.5 percent of 3,750 kWh over 730 hours of 2.5 kW are 0.2740 and 0.3185.
    const ByMode<double> rest{(24 * 0.2740 - 4) / 20 * peak, (24 * 0.3185 - 4) / 20 * peak};
    Zone zone = zoneWithoutPower({peak, peak}, {1000, 1500});
    for (const std::size_t block : {1u, 2u, 3u}) zone.gains[block] = rest;
    SecondOpinionCase theCase;
    BoreholeInputs& design = theCase.design;
    design.loads.zones = std::vector<Zone>{zone};
    design.loads.inletTemp = {toFahrenheit(28), toFahrenheit(2)};
    design.loads.fluid = {62.4, 1.0};
    design.soil = {toFahrenheit(12), conductivityOf(2.0), diffusivityOf(2.0, 2.0e6)};
    design.bore.boreDiameter = 12 * feet(0.15);
    design.bore.boreResistance = 0.12 / conductivityToEnglish;
    design.arrangement = {{double(across), double(down)}, feet(6), 0, 20};
    theCase.window.buriedDepth = feet(2);
    theCase.window.pulseHours = 6;
    theCase.window.shape = typedYear;
    theCase.window.monthEnergy = theCase.window.monthTop =
        monthsOf({2.5, 5, 5, 5, 7.5, 10, 20, 20, 10, 7.5, 5, 2.5},
                 {15.5, 14.8, 12.5, 9.9, 6.4, 0, 0, 0, 6.1, 8.7, 11.7, 14.4});
    return theCase;
}

/// The opinion with a memory of its own.
inline SecondOpinion opinionOn(const SecondOpinionCase& theCase) {
    SecondOpinionMemory memory;
    return secondOpinionOf(theCase, memory);
}

}  // namespace varnholt
