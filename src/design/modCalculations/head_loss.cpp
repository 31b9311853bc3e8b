// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/head_loss.h"

#include "basis/run_time_error.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

/// Supply and return of one header.
double lossOf(const Header& header, Mode m) {
    const double loss = header.headLoss[m];
    return 2 * (header.lengthInWater * loss / 100 + header.lengthInSoil * loss / 100);
}

}  // namespace

HeadLoss calculateHeadLoss(const LoopRun& loops, const Headers& headers) {
    HeadLoss result;
    for (Mode m : modes) {
        const double length =
            divide(loops.loopLength[m], loops.parallelLoops[m]) + loops.extraEqvLength;
        result.loopLoss[m] = finite(length * loops.loopHeadLoss[m] / 100);
        const double branch = headers.branch.count > 0 ? lossOf(headers.branch, m) : 0;
        result.headerLoss[m] = finite(lossOf(headers.primary, m) + branch);
    }
    return result;
}

}  // namespace varnholt::modCalculations
