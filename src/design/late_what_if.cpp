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

void takeBase(WhatIf& known, const WhatIf& found) {
    known.reason = found.reason;
    known.reasonOfMode = found.reasonOfMode;
    known.reasonOfOther = found.reasonOfOther;
    known.needLength = found.needLength;
    known.needGoverning = found.needGoverning;
    known.governing = found.governing;
    known.boreDepth = found.boreDepth;
    known.bores = found.bores;
    known.drawnDepth = found.drawnDepth;
    known.otherNeed = found.otherNeed;
    known.hiddenByRun = found.hiddenByRun;
}

void takeDecides(WhatIf& known, const WhatIf& found) {
    known.tornadoLow = found.tornadoLow;
    known.tornadoHigh = found.tornadoHigh;
    known.tornadoRank = found.tornadoRank;
    known.leverLow = found.leverLow;
    known.leverHigh = found.leverHigh;
    known.share = found.share;
    known.shareAlone = found.shareAlone;
    known.sampleCount = found.sampleCount;
    known.failedSamples = found.failedSamples;
}

void takeSure(WhatIf& known, const WhatIf& found) {
    known.needP10 = found.needP10;
    known.needP50 = found.needP50;
    known.needP90 = found.needP90;
    known.needMean = found.needMean;
    known.needError = found.needError;
    known.lengthP10 = found.lengthP10;
    known.lengthP50 = found.lengthP50;
    known.lengthP90 = found.lengthP90;
    known.holds = found.holds;
    known.holdsMode = found.holdsMode;
    known.confidentDepth = found.confidentDepth;
    known.testDepth = found.testDepth;
    known.testSaves = found.testSaves;
    known.enteringP10 = found.enteringP10;
    known.enteringP50 = found.enteringP50;
    known.enteringP90 = found.enteringP90;
    known.sampleCount = found.sampleCount;
    known.failedSamples = found.failedSamples;
    known.needs = found.needs;
    known.otherNeeds = found.otherNeeds;
}

void takeCost(WhatIf& known, const WhatIf& found) {
    known.costPart = found.costPart;
    known.firstCost = found.firstCost;
    known.yearlyEnergy = found.yearlyEnergy;
    known.yearlyCost = found.yearlyCost;
    known.lifeCost = found.lifeCost;
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
    takeBase(known_, found);
    if (runParts_.sure) takeSure(known_, found);
    if (runParts_.decides) takeDecides(known_, found);
    if (runParts_.cost) takeCost(known_, found);
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
