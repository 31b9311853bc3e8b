// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/certainty.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnholt {
namespace {

using Sets = std::vector<std::vector<CaseFigures>>;

/// One figure of every case of a set, behind what is there.
template <class Figure>
void gather(const std::vector<CaseFigures>& set, Figure figure, std::vector<double>& numbers) {
    for (const CaseFigures& each : set) numbers.push_back(figure(each));
}

/// One figure of every case.
template <class Figure>
std::vector<double> gathered(const Sets& sets, Figure figure) {
    std::vector<double> numbers;
    numbers.reserve(sets.size() * (sets.empty() ? 0 : sets.front().size()));
    for (const std::vector<CaseFigures>& set : sets) gather(set, figure, numbers);
    return numbers;
}

/// Place of a quantile among sorted numbers. A share such as 0.1 of 10 is one of them, whatever the
/// product rounds to.
std::ptrdiff_t placeOf(double share, std::size_t numbers) {
    const auto count = static_cast<double>(numbers);
    return static_cast<std::ptrdiff_t>(std::clamp(std::ceil(share * count - 1e-9), 1.0, count)) - 1;
}

/// Sorts the numbers as far as their middle and their ends ask for it.
Deciles decilesAmong(std::vector<double> numbers) {
    const auto begin = numbers.begin();
    const auto at = [&](double share) { return begin + placeOf(share, numbers.size()); };
    const auto low = at(0.1), middle = at(0.5), high = at(0.9);
    std::nth_element(begin, middle, numbers.end());
    std::nth_element(begin, low, middle);
    if (high > middle) std::nth_element(middle + 1, high, numbers.end());
    return {*low, *middle, *high};
}

/// Standard error of the mean of the sets' quantiles.
double errorOf(const Sets& sets, double share) {
    const auto n = static_cast<double>(sets.size());
    if (n < 2) return 0;
    std::vector<double> quantiles, needs;
    for (const std::vector<CaseFigures>& set : sets) {
        needs.clear();
        gather(
            set, [](const CaseFigures& c) { return c.need(); }, needs);
        const auto quantile = needs.begin() + placeOf(share, needs.size());
        std::nth_element(needs.begin(), quantile, needs.end());
        quantiles.push_back(*quantile);
        if (*quantile == noLength) return noLength;
    }
    const double mean = std::accumulate(quantiles.begin(), quantiles.end(), 0.0) / n;
    double squares = 0;
    for (const double q : quantiles) squares += (q - mean) * (q - mean);
    return std::sqrt(squares / (n - 1) / n);
}

double shareWithin(const std::vector<double>& numbers, double limit) {
    const auto within = std::count_if(numbers.begin(), numbers.end(),
                                      [&](double x) { return x <= limit && x < noLength; });
    return static_cast<double>(within) / static_cast<double>(numbers.size());
}

}  // namespace

double quantileOf(const std::vector<double>& sorted, double share) {
    return sorted[static_cast<std::size_t>(placeOf(share, sorted.size()))];
}

/// What is no number could not be sorted: it is no length, and no temperature.
void CertaintySum::add(std::vector<CaseFigures> set) {
    for (CaseFigures& figures : set)
        for (Mode m : modes) {
            if (std::isnan(figures.length[m])) figures.length[m] = noLength;
            if (!std::isfinite(figures.entering[m])) figures.entering[m] = 0;
        }
    sets_.push_back(std::move(set));
}

std::vector<double> CertaintySum::needs() const {
    std::vector<double> needs = gathered(sets_, [](const CaseFigures& c) { return c.need(); });
    std::sort(needs.begin(), needs.end());
    return needs;
}

Certainty CertaintySum::certainty(double drawnLength, double confidence) const {
    Certainty result;
    if (sets_.empty()) return result;
    std::vector<double>& needs = result.needs;
    needs = this->needs();
    result.sampleCount = needs.size();
    const auto firstFailed = std::lower_bound(needs.begin(), needs.end(), noLength);
    result.failedSamples = static_cast<std::size_t>(needs.end() - firstFailed);
    const auto good = static_cast<double>(firstFailed - needs.begin());
    if (good > 0) result.needMean = std::accumulate(needs.begin(), firstFailed, 0.0) / good;
    result.need = {quantileOf(needs, 0.1), quantileOf(needs, 0.5), quantileOf(needs, 0.9)};
    result.needError = errorOf(sets_, 0.9);
    result.confidentLength = quantileOf(needs, confidence);
    result.holds = shareWithin(needs, drawnLength);
    for (Mode m : modes) {
        std::vector<double> lengths =
            gathered(sets_, [m](const CaseFigures& c) { return c.length[m]; });
        result.holdsMode[m] = shareWithin(lengths, drawnLength);
        result.length[m] = decilesAmong(std::move(lengths));
        result.entering[m] =
            decilesAmong(gathered(sets_, [m](const CaseFigures& c) { return c.entering[m]; }));
    }
    return result;
}

}  // namespace varnholt
