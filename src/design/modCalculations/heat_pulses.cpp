// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/heat_pulses.h"

#include "basis/units.h"

namespace varnholt::modCalculations {

namespace {

constexpr double daysPerMonth = 30;
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
