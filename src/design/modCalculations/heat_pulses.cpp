// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/heat_pulses.h"

namespace varnholt::modCalculations {

namespace {

constexpr double daysPerYear = 365;
constexpr double daysPerMonth = 30;
constexpr double hoursPerDay = 24;
constexpr std::int16_t eveningBlock = 3;

}  // namespace

PulseTimes calcPulseTimes(const ByMode<std::int16_t>& peakBlock, double years) {
    const bool evening = peakBlock[cooling] == eveningBlock || peakBlock[heating] == eveningBlock;
    const double shortPulse = evening ? blockHours[3] : blockHours[0];
    const double annual = years * daysPerYear;
    const double beforeTheDay = annual + daysPerMonth;
    const double end = beforeTheDay + shortPulse / hoursPerDay;
    return {end, end - annual, end - beforeTheDay};
}

}  // namespace varnholt::modCalculations
