// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

#include "design/whatIf/cases.h"

namespace varnholt {

/// Points of twenty dimensions that shares are found from.
constexpr std::size_t sharePoints = std::size_t{1} << 10;

/// Which part of the variance of a length comes from each quantity, as fractions.
struct Shares {
    std::array<double, quantityCount> total{};  ///< what would go if the quantity were known last
    std::array<double, quantityCount> alone{};  ///< what would go if it were known first

    friend bool operator==(const Shares&, const Shares&) = default;
};

/// Shares of the variance by Jansen's estimators, from two matrices of independent drivers and
/// those that take one column of the second into the first: 12 evaluations a pair.
///
/// The work is cut into one piece a pair, so that it can be done in slices. `alone` is held at 0
/// where the estimate falls below. Without variance all shares are 0, and so they are where a case
/// has no length: a variance would mean nothing.
/// Source: Jansen, "Analysis of Variance Designs for Model Output", Comput. Phys. Commun. 117
/// (1999).
class ShareSum {
 public:
    /// @param f  the length of a case by its drivers, ft
    void add(const Drivers& first, const Drivers& second,
             const std::function<double(const Drivers&)>& f);
    /// Takes over what another sum has.
    void add(const ShareSum& other);
    Shares shares() const;

 private:
    bool failed_ = false;
    std::vector<double> ends_;                                      ///< of both matrices
    std::array<double, quantityCount> fromFirst_{}, fromSecond_{};  ///< sums of squared differences
};

}  // namespace varnholt
