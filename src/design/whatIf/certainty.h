// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "design/whatIf/cases.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// The least of some sorted numbers that at least a share of them does not exceed.
/// @param sorted  not empty
/// @param share   0 to 1
double quantileOf(const std::vector<double>& sorted, double share);

/// One in ten, the middle, nine in ten.
struct Deciles {
    double p10 = 0, p50 = 0, p90 = 0;

    friend bool operator==(const Deciles&, const Deciles&) = default;
};

/// What many cases come to. Every figure that falls among cases without a length is noLength.
struct Certainty {
    Deciles need;                ///< ft
    double needMean = 0;         ///< of the cases that have a length, ft
    double needError = 0;        ///< standard error of need.p90 from the sampling, ft
    ByMode<Deciles> length{};    ///< ft
    ByMode<Deciles> entering{};  ///< water entering the units, degF
    double holds = 0;            ///< share of the cases that the drawn length serves
    ByMode<double> holdsMode{};  ///< the same of one mode
    double confidentLength = 0;  ///< quantile of the confidence asked, ft
    std::size_t sampleCount = 0;
    std::size_t failedSamples = 0;  ///< cases without a length: nothing holds them
    std::vector<double> needs;      ///< sorted: the curve of the picture, ft

    friend bool operator==(const Certainty&, const Certainty&) = default;
};

/// Collects cases set by set and tells what they come to, at any time between two sets.
class CertaintySum {
 public:
    void add(std::vector<CaseFigures> set);
    std::size_t setCount() const { return sets_.size(); }
    /// @param drawnLength  of all bores, ft
    /// @param confidence   share of the cases
    Certainty certainty(double drawnLength, double confidence) const;
    std::vector<double> needs() const;  ///< sorted, ft

 private:
    std::vector<std::vector<CaseFigures>> sets_;
};

}  // namespace varnholt
