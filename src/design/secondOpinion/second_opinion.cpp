// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/second_opinion.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "basis/run_time_error.h"
#include "design/borehole_project.h"
#include "design/borehole_run.h"
#include "design/secondOpinion/length_parts.h"
#include "design/secondOpinion/opinion_case.h"
#include "design/secondOpinion/settled_depth.h"
#include "design/secondOpinion/shown_fluid.h"

namespace varnholt {

using namespace secondOpinion;

namespace {

constexpr double usualDepth = 250;  // ft, from which a search starts without a classical length

/// Lengths of a classical run of its own; 0 where it has none.
ByMode<double> classicalLengths(const BoreholeInputs& inputs) {
    try {
        const auto results = runBorehole(inputs);
        return results ? results->lengths.boreLength : ByMode<double>{};
    } catch (const RunTimeError&) {
        return {};
    }
}

/// The longer of two lengths that are there; none without any.
std::optional<Mode> longerMode(const ByMode<double>& lengths) {
    if (!(lengths[cooling] > 0) && !(lengths[heating] > 0)) return std::nullopt;
    return lengths[cooling] > lengths[heating] ? cooling : heating;
}

bool isFinite(const SecondOpinion& result) {
    bool sound = true;
    for (const double g : result.gValue) sound = sound && std::isfinite(g);
    for (const OpinionYearLine& line : result.years)
        for (const auto& figure : {line.penalty, line.high, line.low})
            sound = sound && (!figure || std::isfinite(*figure));
    for (const MonthOfWater& month : result.water) sound = sound && std::isfinite(month.mean);
    return sound;
}

/// Takes back what is shown for a depth.
void dropShown(SecondOpinion& result, OpinionReason reason) {
    const SecondOpinion empty;
    result.reasonOfShown = reason;
    result.shownDepth = 0;
    result.gValue = empty.gValue;
    result.years = empty.years;
    result.water.clear();
    result.gFunction = empty.gFunction;
    result.groupCount = 0;
}

}  // namespace

/// The steps of a second opinion, each of which is tried again once a g-function that it lacks is
/// there.
class SecondOpinionRun::Work {
 public:
    Work(SecondOpinionCase theCase, GFunctionMemory& memory)
        : case_(std::move(theCase)), memory_(memory) {}

    bool step() {
        if (stage_ != prepare && memory_.isComputing()) {
            memory_.computeMore();
            return false;
        }
        if (stage_ != done && stageIsDone()) stage_ = result_.reason.holds() ? done : next(stage_);
        return stage_ == done;
    }
    const SecondOpinion& result() const { return result_; }

 private:
    enum Stage { prepare, sizeCooling, sizeHeating, partCooling, partHeating, showDepth, done };
    static Stage next(Stage stage) { return static_cast<Stage>(stage + 1); }

    bool stageIsDone() {
        switch (stage_) {
            case prepare:
                return makeReady();
            case sizeCooling:
                return size(cooling);
            case sizeHeating:
                return size(heating);
            case partCooling:
                return part(cooling);
            case partHeating:
                return part(heating);
            default:
                return show();
        }
    }

    bool makeReady() {
        prepared_ = prepareCase(case_, result_);
        if (result_.reason.holds()) return true;
        FieldTerms& terms = prepared_.terms;
        const FieldSite& site = prepared_.site;
        const CylinderSource cylinder;
        const double fourierPerHour = site.alpha / (site.radius * site.radius);
        const std::array<double, 3> pulses = threePulseHours(terms);
        for (std::size_t i = 0; i < pulses.size(); ++i)
            cylinder_[i] = cylinder.overLine(fourierPerHour * pulses[i]);
        if (case_.window.cylinder)
            terms.pulseTerm =
                PulseTerm(cylinder, fourierPerHour, std::max(terms.months, opinionMonths));
        result_.classicalLength = classicalLengths(case_.design);
        memory_.select(site);
        return true;
    }

    bool size(Mode mode) {
        if (result_.reasonOfMode[mode].holds()) return true;
        const FieldTerms& terms = prepared_.terms;
        const double classical = result_.classicalLength[mode] / terms.bores;
        const double start = classical > 0 ? classical : usualDepth;
        // The month of the last trial is that of the length.
        GreatestNeed need;
        const SettledDepth sized =
            settleDepth(memory_, {terms.bores, start}, [&](const DepthFunction& g) {
                need = greatestNeed(terms, MonthlyHeat(terms, g, terms.months), mode);
                return need.length;
            });
        if (sized.state == SettledDepth::waiting) return false;
        if (sized.state == SettledDepth::settled) {
            result_.soLength[mode] = std::max(0.0, sized.length);
            result_.soDepth[mode] = result_.soLength[mode] / terms.bores;
            result_.soMonth[mode] = static_cast<int>(need.month) + 1;
        } else if (sized.state == SettledDepth::tooDeep) {
            const double length = greatestOpinionDepth * terms.bores;
            result_.reasonOfMode[mode] = {
                OpinionFailure::noDepthHoldsLimit,
                enteringWater(terms, mode, terms.fluidWith(need.heat, length))};
        } else {
            result_.reasonOfMode[mode].failure = OpinionFailure::notComputable;
        }
        return true;
    }

    bool part(Mode mode) {
        const bool hasBoth = result_.hasLength(mode) && result_.classicalLength[mode] > 0;
        if (!hasBoth) return true;
        const PartedLengths parted =
            partLengths(memory_, prepared_.terms, mode,
                        {result_.soLength[mode], result_.classicalLength[mode],
                         prepared_.terms.bores, cylinder_, case_.window.cylinder});
        if (parted.waiting) return false;
        result_.lengthPart[mode] = parted.parts;
        return true;
    }

    bool show() {
        if (const OpinionReason reason = chooseDepth(); reason.holds()) {
            dropShown(result_, reason);
            return true;
        }
        const auto g = memory_.atDepth(result_.shownDepth);
        if (!g) return false;
        showFluid(prepared_.terms, *g, prepared_.site.lastHour, result_);
        if (!isFinite(result_)) dropShown(result_, {OpinionFailure::notComputable});
        return true;
    }

    /// Sets the depth that is shown, or tells why there is none.
    OpinionReason chooseDepth() {
        const double bores = prepared_.terms.bores;
        result_.shownDepth = 0;
        if (case_.window.depthChoice == depthAsTyped) {
            if (!(case_.window.typedDepth > 0)) return {OpinionFailure::noShownDepth};
            result_.shownDepth = case_.window.typedDepth;
            return {};
        }
        const bool ofDesign = case_.window.depthChoice == depthOfDesign;
        const ByMode<double>& lengths = ofDesign ? result_.classicalLength : result_.soLength;
        const auto mode = longerMode(lengths);
        if (!mode)
            return ofDesign ? OpinionReason{OpinionFailure::noDesignLength} : reasonOfNoLength();
        result_.shownDepth = lengths[*mode] / bores;
        return {};
    }

    /// A mode without load says less than one that has found no length.
    OpinionReason reasonOfNoLength() const {
        for (Mode mode : modes) {
            const OpinionReason& reason = result_.reasonOfMode[mode];
            if (reason.holds() && reason.failure != OpinionFailure::noLoadOfMode) return reason;
        }
        return {OpinionFailure::noOpinionLength};
    }

    SecondOpinionCase case_;
    GFunctionMemory& memory_;
    Stage stage_ = prepare;
    PreparedCase prepared_;
    std::array<double, 3> cylinder_{};
    SecondOpinion result_;
};

SecondOpinionCase secondOpinionCase(const BoreholeProject& project,
                                    const SecondOpinionInputs& window,
                                    const std::optional<ByMode<MonthlyLoads>>& imported) {
    return {inputsOf(project, project.tower.hybridPercent != 0), window, imported};
}

std::optional<double> SecondOpinion::difference(Mode mode) const {
    if (!hasLength(mode) || !(classicalLength[mode] > 0)) return std::nullopt;
    return soLength[mode] / classicalLength[mode] - 1;
}

std::optional<Mode> SecondOpinion::governing() const { return longerMode(soLength); }

SecondOpinionMemory::SecondOpinionMemory() : gFunctions_(std::make_unique<GFunctionMemory>()) {}
SecondOpinionMemory::~SecondOpinionMemory() = default;
SecondOpinionMemory::SecondOpinionMemory(SecondOpinionMemory&&) noexcept = default;
SecondOpinionMemory& SecondOpinionMemory::operator=(SecondOpinionMemory&&) noexcept = default;

SecondOpinionRun::SecondOpinionRun(SecondOpinionCase theCase, SecondOpinionMemory& memory)
    : work_(std::make_unique<Work>(std::move(theCase), memory.gFunctions())) {}
SecondOpinionRun::~SecondOpinionRun() = default;
SecondOpinionRun::SecondOpinionRun(SecondOpinionRun&&) noexcept = default;
SecondOpinionRun& SecondOpinionRun::operator=(SecondOpinionRun&&) noexcept = default;

bool SecondOpinionRun::step() { return work_->step(); }

const SecondOpinion& SecondOpinionRun::result() const { return work_->result(); }

SecondOpinion secondOpinionOf(const SecondOpinionCase& theCase, SecondOpinionMemory& memory) {
    SecondOpinionRun run(theCase, memory);
    while (!run.step()) {
    }
    return run.result();
}

}  // namespace varnholt
