// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/line_source.h"

#include <cmath>

#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

/// Only the first group is halved here. The published series would halve every term; the difference
/// grows to a few percent at X = 0.5 and is kept, since lengths of built fields were found with it.
double nearSource(double u) {
    return 0.5 * (0.99999193 * u - std::log(u) - 0.57721566) - 0.24991055 * powerOf(u, 2) +
           0.05519968 * powerOf(u, 3) - 0.00976004 * powerOf(u, 4) + 0.00107857 * powerOf(u, 5);
}

/// Two coefficients, 8.637609 and 3.9684969, differ from the published 8.634761 and 3.958497. They
/// are kept for the same reason. Far out exp(u) outgrows a double and the integral is 0.
double farFromSource(double u) {
    const double above = powerOf(u, 4) + 8.5733287 * powerOf(u, 3) + 18.059017 * powerOf(u, 2) +
                         8.637609 * u + 0.2677737;
    const double below = powerOf(u, 4) + 9.5733223 * powerOf(u, 3) + 25.6329561 * powerOf(u, 2) +
                         21.0996531 * u + 3.9684969;
    return above / (2 * u * std::exp(u)) / below;
}

}  // namespace

double lineSourceI(double x) {
    if (x <= 0) return 0;
    const double u = x * x;
    return x <= 0.5 ? nearSource(u) : farFromSource(u);
}

}  // namespace varnholt::modCalculations
