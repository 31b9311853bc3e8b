// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/late_second_opinion.h"

#include "basis/run_time_error.h"
#include "design/borehole_run.h"

namespace varnholt {
namespace {

ByMode<double> classicalPenaltyOf(const BoreholeInputs& inputs) {
    try {
        if (const std::optional<BoreholeResults> results = runBorehole(inputs))
            return results->lengths.temperaturePenalty;
    } catch (const RunTimeError&) {
        // The classical run tells by itself what is wrong with it.
    }
    return {};
}

}  // namespace

bool LateSecondOpinion::advance(const SecondOpinionCase& wanted, bool whole) {
    if (knownCase_ && *knownCase_ == wanted) return true;
    if (!run_ || !(*case_ == wanted)) {
        case_ = wanted;
        run_.emplace(wanted, memory_);
    }
    do {
        if (!run_->step()) continue;
        take(run_->result());
        return true;
    } while (whole);
    return false;
}

void LateSecondOpinion::take(const SecondOpinion& found) {
    known_ = found;
    knownCase_ = case_;
    classicalPenalty_ = classicalPenaltyOf(case_->design);
    run_.reset();
}

}  // namespace varnholt
