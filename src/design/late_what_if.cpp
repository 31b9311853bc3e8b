// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/late_what_if.h"

#include <algorithm>

namespace varnholt {
namespace {

/// The parts that a table of all of them names, so that each stands here once.
constexpr bool WhatIfWanted::*allParts[] = {&WhatIfWanted::decides, &WhatIfWanted::sure,
                                            &WhatIfWanted::cost, &WhatIfWanted::tower,
                                            &WhatIfWanted::alternatives};

WhatIfWanted without(const WhatIfWanted& parts, const WhatIfWanted& known) {
    WhatIfWanted missing;
    for (bool WhatIfWanted::*part : allParts) missing.*part = parts.*part && !(known.*part);
    return missing;
}

bool isEmpty(const WhatIfWanted& parts) { return parts == WhatIfWanted{}; }

template <class Part>
void takePart(WhatIf& known, const WhatIf& found) {
    static_cast<Part&>(known) = found;
}

/// Whether there is something new to be seen of a run on the way.
bool tellsMore(const WhatIf& known, const WhatIf& found) {
    return known.sampleCount != found.sampleCount || known.needGoverning != found.needGoverning ||
           known.otherNeed != found.otherNeed;
}

}  // namespace

void LateWhatIf::start(const WhatIfCase& wanted, const WhatIfWanted& parts) {
    if (!case_ || !(*case_ == wanted)) {
        case_ = wanted;
        knownParts_ = {};
        showsCase_ = false;
    }
    runParts_ = without(parts, knownParts_);
    run_.emplace(wanted, runParts_, memory_);
}

void LateWhatIf::take() {
    const WhatIf& found = run_->result();
    ++revision_;
    if (!showsCase_) known_ = {};
    showsCase_ = true;
    takePart<WhatIfNeed>(known_, found);
    if (runParts_.sure) takePart<WhatIfSure>(known_, found);
    if (runParts_.decides) takePart<WhatIfDecides>(known_, found);
    if (runParts_.cost) takePart<WhatIfCost>(known_, found);
    if (runParts_.sure || runParts_.decides) {
        known_.sampleCount = found.sampleCount;
        known_.failedSamples = found.failedSamples;
    }
    if (runParts_.tower) known_.tower = found.tower;
    if (runParts_.alternatives) known_.alternatives = found.alternatives;
}

bool LateWhatIf::advance(const WhatIfCase& wanted, const WhatIfWanted& parts, bool whole) {
    const bool same = case_ && *case_ == wanted;
    if (same && showsCase_ && !run_ && isEmpty(without(parts, knownParts_))) return true;
    const bool onTheWay = same && run_ && isEmpty(without(without(parts, knownParts_), runParts_));
    if (!onTheWay) start(wanted, parts);
    do {
        const bool done = run_->step();
        if (!done && (whole || !tellsMore(known_, run_->result()))) continue;
        take();
        if (!done) return false;
        for (bool WhatIfWanted::*part : allParts)
            knownParts_.*part = knownParts_.*part || runParts_.*part;
        run_.reset();
        return true;
    } while (whole);
    return false;
}

}  // namespace varnholt
