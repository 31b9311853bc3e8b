// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/mode.h"

namespace varnholt {

/// A polynomial for each mode: terms[k][mode] multiplies the k-th power.
using Polynomial = std::array<ByMode<double>, 4>;

// Sums of plain products, not nested, so that a check by hand meets the same last digit.

inline double quadratic(const Polynomial& terms, Mode mode, double x) {
    return terms[0][mode] + terms[1][mode] * x + terms[2][mode] * x * x;
}

inline double cubic(const Polynomial& terms, Mode mode, double x) {
    return terms[0][mode] + terms[1][mode] * x + terms[2][mode] * x * x +
           terms[3][mode] * x * x * x;
}

}  // namespace varnholt
