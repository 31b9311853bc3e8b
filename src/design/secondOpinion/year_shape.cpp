// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/year_shape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "basis/units.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double greatestPower = 20;
constexpr double leastUnevenShare = 1.0 / 11;  // what a power just above 0 leaves: one month is 0

using Months = std::array<double, 12>;

/// A wave that is 1 in its month and 0 half a year later.
Months waveAround(int month) {
    Months wave{};
    for (int m = 0; m < 12; ++m)
        wave[static_cast<std::size_t>(m)] =
            (1 + std::cos(2 * std::numbers::pi * (m - month) / monthsOfYear)) / 2;
    return wave;
}

Months sharesOf(const Months& wave, double power) {
    Months shares{};
    double sum = 0;
    for (std::size_t m = 0; m < wave.size(); ++m) sum += shares[m] = std::pow(wave[m], power);
    for (double& share : shares) share /= sum;
    return shares;
}

double greatestOf(const Months& values) { return *std::max_element(values.begin(), values.end()); }

/// The power at which the greatest month, whose wave is 1, has its share: the sum of the powers is
/// then 1/share. The sum falls ever less steeply as the power grows, so Newton's steps from 0 come
/// to the power from below and never pass it.
double powerFor(const Months& wave, double share) {
    constexpr int mostNewtonSteps = 60;
    Months logarithms{};
    for (std::size_t m = 0; m < wave.size(); ++m)
        logarithms[m] = wave[m] > 0 ? std::log(wave[m]) : 0;
    double power = 0;
    for (int i = 0; i < mostNewtonSteps; ++i) {
        double sum = 0, slope = 0;
        for (std::size_t m = 0; m < wave.size(); ++m) {
            if (!(wave[m] > 0)) continue;
            const double term = std::exp(power * logarithms[m]);
            sum += term;
            slope += term * logarithms[m];
        }
        const double next = std::min(power - (sum - 1 / share) / slope, greatestPower);
        if (!(next > power)) break;
        power = next;
    }
    return power;
}

/// The peak of a month with half of the greatest month's energy is the full one.
Months peaksOf(const Months& shares) {
    Months peaks{};
    const double greatest = greatestOf(shares);
    for (std::size_t m = 0; m < shares.size(); ++m)
        peaks[m] = std::min(1.0, 2 * shares[m] / greatest);
    return peaks;
}

/// Each month over the sum or the greatest; all 0 where that is not above 0.
Months overSumOrZero(const Months& values, double divisor) {
    Months result{};
    if (divisor > 0)
        for (std::size_t m = 0; m < values.size(); ++m)
            result[m] = std::max(0.0, values[m]) / divisor;
    return result;
}

}  // namespace

YearOfMode standardYearOf(Mode mode, double wanted, double greatest, bool southern) {
    const bool inJuly = (mode == cooling) != southern;
    YearOfMode year;
    year.heldAtGreatest = wanted > greatest;
    year.even = !(wanted >= leastUnevenShare);
    if (year.even) {
        year.share.fill(1.0 / monthsOfYear);
    } else {
        const Months wave = waveAround(inJuly ? 6 : 0);
        year.share = sharesOf(wave, powerFor(wave, std::min(wanted, greatest)));
    }
    year.peak = peaksOf(year.share);
    return year;
}

YearOfMode knownYearOf(const std::array<double, 12>& energies,
                       const std::array<double, 12>& peaks) {
    double sum = 0;
    for (const double energy : energies) sum += std::max(0.0, energy);
    YearOfMode year;
    year.hasEnergy = sum > 0;
    year.share = overSumOrZero(energies, sum);
    year.peak = overSumOrZero(peaks, greatestOf(peaks));
    return year;
}

}  // namespace varnholt::secondOpinion
