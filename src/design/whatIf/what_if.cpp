// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/what_if.h"

#include <deque>
#include <functional>
#include <utility>

#include "basis/run_time_error.h"
#include "design/borehole_run.h"
#include "design/whatIf/case_method.h"
#include "design/whatIf/field_method.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers.h"

namespace varnholt {

struct WhatIfMemory::Kept {
    std::array<std::vector<Drivers>, caseSets> sets;
    DriverPairs pairs;
    FieldMemory fields;
};

WhatIfMemory::WhatIfMemory() : kept_(std::make_unique<Kept>()) {}
WhatIfMemory::~WhatIfMemory() = default;
WhatIfMemory::WhatIfMemory(WhatIfMemory&&) noexcept = default;
WhatIfMemory& WhatIfMemory::operator=(WhatIfMemory&&) noexcept = default;

namespace {

constexpr std::size_t casesOfSetByGFunctions = std::size_t{1} << 8;

double shown(double length) { return length < noLength ? length : 0; }

template <std::size_t n>
std::array<double, n> shown(std::array<double, n> lengths) {
    for (double& length : lengths) length = shown(length);
    return lengths;
}

WhatIfMeasure otherThan(WhatIfMeasure measure) {
    return measure == classicalMethod ? byGFunctions : classicalMethod;
}

bool runShows(const BoreholeInputs& design, Mode mode) {
    try {
        const auto results = runBorehole(design);
        return results && results->lengths.boreLength[mode] > 0;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace

/// The computation as a list of tasks, each of so many pieces. A piece that has to wait for a
/// g-function is tried again when that is there.
class WhatIfRun::Work {
 public:
    Work(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfMemory::Kept& kept);

    bool step();
    bool isFinal() const { return tasks_.empty(); }
    const WhatIf& result() const { return result_; }

 private:
    struct Task {
        std::size_t count, perStep;
        std::function<bool(std::size_t)> piece;  ///< false while it has to wait
        std::size_t next = 0;
    };
    using Take = std::function<void(const CaseFigures&)>;

    void add(std::size_t count, std::size_t perStep, std::function<bool(std::size_t)> piece) {
        tasks_.push_back({count, perStep, std::move(piece)});
    }
    void stop(Reason reason);
    void planBase();
    void planTornado();
    void planLevers();
    void planShares();
    void planSets(WhatIfMeasure measure, const Spreads& spreads,
                  std::function<void(const Certainty&)> take);
    void planSure();
    void planCost();
    void planTower();
    void planAlternatives();
    void planAlternative(std::size_t place, const Alternative& alternative);

    std::size_t setSize(WhatIfMeasure measure) const {
        return measure == classicalMethod ? casesOfSet : casesOfSetByGFunctions;
    }
    const std::vector<Drivers>& driversOf(std::size_t set);
    CaseMethod& method(WhatIfMeasure measure) { return *methods_[measure]; }
    bool compute(WhatIfMeasure measure, const MeasuredDesign& design, const CaseFactors& factors,
                 const Take& take);
    MeasuredDesign measured() const { return {zones_, case_.design, drawnLength_}; }
    void takeBase(const CaseFigures& figures);
    void takeCertainty(const Certainty& certainty);
    std::optional<double> needOf(const BoreholeInputs& design, const CaseFactors& factors);

    WhatIfCase case_;
    WhatIfWanted wanted_;
    WhatIfMemory::Kept& kept_;
    WhatIfMeasure measure_;
    RolledZones zones_;
    Cases cases_;
    std::array<std::unique_ptr<CaseMethod>, 2> methods_;
    double drawnLength_ = 0;
    std::deque<Task> tasks_;
    CaseMethod* waitsFor_ = nullptr;
    WhatIf result_;
};

WhatIfRun::Work::Work(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfMemory::Kept& kept)
    : case_(std::move(theCase)),
      wanted_(wanted),
      kept_(kept),
      measure_(classicalMethod),
      zones_(case_.design.loads.zones),
      cases_(withinLimits(case_.inputs).spreads) {
    case_.inputs = withinLimits(case_.inputs);
    measure_ = static_cast<WhatIfMeasure>(case_.inputs.measure);
    methods_[classicalMethod] = std::make_unique<ClassicalMethod>();
    methods_[byGFunctions] = std::make_unique<FieldMethod>(
        FieldMethodCase{case_.secondOpinion, case_.imported}, kept_.fields);
    result_.reason = reasonAgainst(case_.design, zones_);
    if (result_.reason.holds()) return;
    result_.bores = boresOf(case_.design);
    planBase();
    if (wanted.cost) planCost();
    if (wanted.sure) planSure();
    if (wanted.decides) {
        planTornado();
        planLevers();
        planShares();
    }
    if (wanted.tower) planTower();
    if (wanted.alternatives) planAlternatives();
}

void WhatIfRun::Work::stop(Reason reason) {
    result_.reason = std::move(reason);
    tasks_.clear();
}

bool WhatIfRun::Work::step() {
    if (waitsFor_) std::exchange(waitsFor_, nullptr)->computeMore();
    if (tasks_.empty()) return true;
    Task& task = tasks_.front();
    for (std::size_t i = 0; i < task.perStep && task.next < task.count; ++i) {
        if (!task.piece(task.next)) return tasks_.empty();
        ++task.next;
    }
    if (task.next >= task.count) tasks_.pop_front();
    return tasks_.empty();
}

bool WhatIfRun::Work::compute(WhatIfMeasure measure, const MeasuredDesign& design,
                              const CaseFactors& factors, const Take& take) {
    const std::optional<CaseFigures> figures = method(measure).figures(design, factors);
    if (!figures) {
        waitsFor_ = &method(measure);
        return false;
    }
    take(*figures);
    return true;
}

std::optional<double> WhatIfRun::Work::needOf(const BoreholeInputs& design,
                                              const CaseFactors& factors) {
    std::optional<double> need;
    compute(measure_, {zones_, design, 0}, factors,
            [&](const CaseFigures& figures) { need = figures.need(); });
    return need;
}

void WhatIfRun::Work::takeBase(const CaseFigures& figures) {
    const CaseLoads loads = loadsOfCase(zones_, case_.design.loads, {});
    for (Mode m : modes) {
        result_.needLength[m] = shown(figures.length[m]);
        if (figures.length[m] < noLength) continue;
        result_.reasonOfMode[m] = limitReason(case_.design, loads, m);
        if (!result_.reasonOfMode[m].holds())
            result_.reasonOfMode[m] = method(measure_).reason(measured(), m);
    }
    if (figures.hasNeed()) {
        result_.needGoverning = figures.need();
        result_.governing = figures.governing();
        result_.boreDepth = figures.need() / result_.bores;
    }
    for (Mode m : modes)
        result_.hiddenByRun[m] = result_.needLength[m] > 0 && !runShows(case_.design, m);
    const double drawn = case_.inputs.drawnDepth;
    result_.drawnDepth = drawn > 0 ? drawn : result_.boreDepth;
    drawnLength_ = result_.drawnDepth * result_.bores;
}

}  // namespace varnholt
