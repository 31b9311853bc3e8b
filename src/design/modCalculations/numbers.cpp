// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/numbers.h"

#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt::modCalculations {

double powerOf(double x, double n) {
    double power = x;
    for (int factors = toInteger(n); factors > 1; --factors) power *= x;
    return power;
}

double naturalLog(double x) {
    if (x <= 0) throw RunTimeError(5);
    return std::log(x);
}

double squareRoot(double x) {
    if (x < 0) throw RunTimeError(5);
    return std::sqrt(x);
}

double finite(double x) {
    if (!std::isfinite(x)) throw RunTimeError(6);
    return x;
}

}  // namespace varnholt::modCalculations
