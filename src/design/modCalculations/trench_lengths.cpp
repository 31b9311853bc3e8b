// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/trench_lengths.h"

namespace varnholt::modCalculations {

namespace {

double share(double length, double parts) { return parts == 0 ? 0 : length / parts; }

}  // namespace

double totalTrenchLength(double requiredLength, double pipes) {
    return share(requiredLength, pipes);
}

double singleTrenchLength(double requiredLength, double pipes, double trenches) {
    return share(requiredLength, trenches * pipes);
}

double pipeLengthPerTrench(double totalPipeLength, double trenches) {
    return share(totalPipeLength, trenches);
}

}  // namespace varnholt::modCalculations
