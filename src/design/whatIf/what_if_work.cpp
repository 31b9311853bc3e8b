// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/what_if_work.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/run_time_error.h"
#include "design/borehole_project.h"
#include "design/borehole_run.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {
namespace {

constexpr std::size_t casesOfSetByGFunctions = std::size_t{1} << 8;

/// What is shown of a figure that there may be none of.
double shown(double length) { return length < noLength ? length : 0; }

template <std::size_t n>
std::array<double, n> shown(std::array<double, n> lengths) {
    for (double& length : lengths) length = shown(length);
    return lengths;
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

WhatIfWork::WhatIfWork(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfKept& kept)
    : case_(std::move(theCase)),
      kept_(kept),
      measure_(classicalMethod),
      zones_(case_.design.loads.zones),
      cases_(withinLimits(case_.inputs).spreads) {
    case_.inputs = withinLimits(std::move(case_.inputs));
    measure_ = static_cast<WhatIfMeasure>(case_.inputs.measure);
    methods_[classicalMethod] = std::make_unique<ClassicalMethod>();
    methods_[byGFunctions] = std::make_unique<FieldMethod>(
        OpinionSettings{case_.secondOpinion, case_.imported}, kept_.fields);
    result_.reason = reasonAgainst(case_.design, zones_);
    if (!result_.reason.holds()) {
        result_.bores = boresOf(case_.design);
        planBase();
        planOtherBase();
        if (wanted.cost) planCost();
        // A case without a length leaves no shares, so what decides asks for all cases too.
        if (wanted.sure || wanted.decides) planDistribution();
        if (wanted.sure) planTestAndOther();
        if (wanted.decides) {
            planTornado();
            planLevers();
            planShares();
        }
        if (wanted.tower) planTower();
    }
    if (wanted.alternatives) planAlternatives();
}

void WhatIfWork::add(std::size_t count, std::size_t perStep,
                     std::function<bool(std::size_t)> piece) {
    tasks_.push_back({count, std::max<std::size_t>(perStep, 1), std::move(piece)});
}

bool WhatIfWork::step() {
    if (waitsFor_) std::exchange(waitsFor_, nullptr)->computeMore();
    if (tasks_.empty()) return true;
    Task& task = tasks_.front();
    for (std::size_t i = 0; i < task.perStep && task.next < task.count; ++i) {
        if (!task.piece(task.next)) return false;
        ++task.next;
    }
    if (task.next >= task.count) tasks_.pop_front();
    return tasks_.empty();
}

void WhatIfWork::tell() {
    if (toTell_) std::exchange(toTell_, nullptr)();
}

const WhatIf& WhatIfWork::result() {
    tell();
    return result_;
}

WhatIfMeasure WhatIfWork::other() const {
    return measure_ == classicalMethod ? byGFunctions : classicalMethod;
}

MeasuredDesign WhatIfWork::measured(WhatIfMeasure measure) const {
    return {zones_, case_.design, drawnLength_, about_[static_cast<std::size_t>(measure)]};
}

std::size_t WhatIfWork::setSize(WhatIfMeasure measure) {
    return measure == classicalMethod ? casesOfSet : casesOfSetByGFunctions;
}

const std::vector<Drivers>& WhatIfWork::driversOf(std::size_t set) {
    std::vector<Drivers>& drivers = kept_.sets[set];
    if (drivers.empty()) drivers = driversOfSet(set, casesOfSet);
    return drivers;
}

bool WhatIfWork::compute(WhatIfMeasure measure, const MeasuredDesign& design,
                         const CaseFactors& factors, const Take& take) {
    const std::optional<CaseFigures> figures = method(measure).figures(design, factors);
    if (!figures) {
        waitsFor_ = &method(measure);
        return false;
    }
    take(*figures);
    return true;
}

std::optional<double> WhatIfWork::needOf(const CaseFactors& factors) {
    std::optional<double> need;
    MeasuredDesign design = measured(measure_);
    design.drawnLength = 0;
    compute(measure_, design, factors, [&](const CaseFigures& figures) { need = figures.need(); });
    return need;
}

void WhatIfWork::planBase() {
    add(1, 1, [this](std::size_t) {
        return compute(measure_, measured(measure_), {},
                       [this](const CaseFigures& figures) { takeBase(figures); });
    });
}

void WhatIfWork::takeBase(const CaseFigures& figures) {
    const bool endless = figures.hasNeed() && !std::isfinite(figures.need() / result_.bores);
    if (!figures.computed || endless) {
        result_.reason = method(measure_).reasonAgainst(measured(measure_));
        if (!result_.reason.holds()) result_.reason = {Text::whatIfNotComputable, {}};
    }
    for (Mode m : modes) {
        result_.needLength[m] = shown(figures.length[m]);
        result_.hiddenByRun[m] = result_.needLength[m] > 0 && !runShows(case_.design, m);
        if (figures.length[m] < noLength || result_.reason.holds()) continue;
        const CaseLoads loads = loadsOfCase(zones_, case_.design.loads, {});
        result_.reasonOfMode[m] = limitReason(case_.design, loads, m);
        if (!result_.reasonOfMode[m].holds())
            result_.reasonOfMode[m] = method(measure_).reasonOf(measured(measure_), m);
    }
    if (figures.hasNeed() && !result_.reason.holds()) {
        result_.needGoverning = figures.need();
        if (figures.need() > 0) result_.governing = figures.governing();
        result_.boreDepth = figures.need() / result_.bores;
        about_[static_cast<std::size_t>(measure_)] = result_.boreDepth;
    }
    const double drawn = case_.inputs.drawnDepth;
    result_.drawnDepth = drawn > 0 ? drawn : result_.boreDepth;
    drawnLength_ = result_.drawnDepth * result_.bores;
}

void WhatIfWork::planOtherBase() {
    add(1, 1, [this](std::size_t) {
        return compute(other(), measured(other()), {}, [this](const CaseFigures& figures) {
            result_.otherNeed = shown(figures.need());
            about_[static_cast<std::size_t>(other())] = result_.otherNeed / result_.bores;
            if (!figures.computed)
                result_.reasonOfOther = method(other()).reasonAgainst(measured(other()));
        });
    });
}

void WhatIfWork::planCost() {
    add(1, 1, [this](std::size_t) {
        if (!(drawnLength_ > 0)) return true;
        const DesignCost cost =
            designCost(case_.design, zones_, result_.drawnDepth, case_.inputs.prices);
        // A file may hold rows without end.
        if (!std::isfinite(cost.firstCost)) return true;
        result_.costPart = cost.costPart;
        result_.firstCost = cost.firstCost;
        result_.yearlyEnergy = cost.yearlyEnergy;
        result_.yearlyCost = cost.yearlyCost;
        result_.lifeCost = cost.lifeCost;
        return true;
    });
}

void WhatIfWork::planSets(WhatIfMeasure measure, const Spreads& spreads,
                          std::function<void(const std::shared_ptr<Sets>&)> take) {
    const std::size_t size = setSize(measure);
    const auto sets = std::make_shared<Sets>();
    const Cases cases(spreads);
    add(caseSets * size, method(measure).casesPerSlice(),
        [this, measure, size, sets, cases, take = std::move(take)](std::size_t i) {
            if (result_.reason.holds() && measure == measure_) return true;
            const Drivers& drivers = driversOf(i / size)[i % size];
            const bool there =
                compute(measure, measured(measure), cases.at(drivers),
                        [&](const CaseFigures& figures) { sets->set.push_back(figures); });
            if (!there) return false;
            if (sets->set.size() == size) {
                sets->sum.add(std::exchange(sets->set, {}));
                take(sets);
            }
            return true;
        });
}

void WhatIfWork::planDistribution() {
    const double confidence = case_.inputs.confidence / 100;
    planSets(measure_, case_.inputs.spreads, [this, confidence](const std::shared_ptr<Sets>& sets) {
        toTell_ = [this, confidence, sets] {
            takeCertainty(sets->sum.certainty(drawnLength_, confidence));
        };
        if (sets->sum.setCount() == caseSets) tell();
    });
}

void WhatIfWork::planTestAndOther() {
    const double confidence = case_.inputs.confidence / 100;
    const Spreads& spreads = case_.inputs.spreads;
    const Spreads tested = withKnowledge(spreads, responseTest);
    planSets(measure_, tested, [this, confidence](const std::shared_ptr<Sets>& sets) {
        if (sets->sum.setCount() < caseSets) return;
        const double length = shown(quantileOf(sets->sum.needs(), confidence));
        const double own = result_.confidentDepth * result_.bores;
        result_.testDepth = length / result_.bores;
        if (length > 0 && own > 0) result_.testSaves = std::max(0.0, own - length);
    });
    planSets(other(), spreads, [this](const std::shared_ptr<Sets>& sets) {
        if (sets->sum.setCount() == caseSets) result_.otherNeeds = sets->sum.needs();
    });
}

void WhatIfWork::takeCertainty(const Certainty& certainty) {
    const bool failed = certainty.failedSamples > 0;
    result_.needP10 = shown(certainty.need.p10);
    result_.needP50 = shown(certainty.need.p50);
    result_.needP90 = shown(certainty.need.p90);
    result_.needMean = certainty.needMean;
    result_.needError = shown(certainty.needError);
    result_.holds = certainty.holds;
    result_.holdsMode = certainty.holdsMode;
    result_.confidentDepth = shown(certainty.confidentLength) / result_.bores;
    for (Mode m : modes) {
        result_.lengthP10[m] = shown(certainty.length[m].p10);
        result_.lengthP50[m] = shown(certainty.length[m].p50);
        result_.lengthP90[m] = shown(certainty.length[m].p90);
        result_.enteringP10[m] = certainty.entering[m].p10;
        result_.enteringP50[m] = certainty.entering[m].p50;
        result_.enteringP90[m] = certainty.entering[m].p90;
    }
    result_.sampleCount = certainty.sampleCount;
    result_.failedSamples = certainty.failedSamples;
    result_.needs = certainty.needs;
    // Parts of a spread that has no end would mean nothing.
    if (failed) result_.share = result_.shareAlone = {};
}

void WhatIfWork::planTornado() {
    const auto ends = std::make_shared<Ends<quantityCount>>();
    add(2 * quantityCount, method(measure_).casesPerSlice(), [this, ends](std::size_t i) {
        if (result_.reason.holds()) return true;
        const std::size_t j = i / 2;
        const bool low = i % 2 == 0;
        const double driver = low ? -oneInTen : oneInTen;
        const auto need = needOf(cases_.at(driverAlone(static_cast<DoubtfulQuantity>(j), driver)));
        if (!need) return false;
        (low ? ends->low : ends->high)[j] = *need;
        if (i + 1 < 2 * quantityCount) return true;
        result_.tornadoLow = shown(ends->low);
        result_.tornadoHigh = shown(ends->high);
        result_.tornadoRank = tornadoRanks(*ends);
        return true;
    });
}

void WhatIfWork::planLevers() {
    add(2 * leverCount, 1, [this](std::size_t i) {
        if (result_.reason.holds()) return true;
        const bool low = i % 2 == 0;
        const BoreholeInputs changed =
            withLever(case_.design, static_cast<Lever>(i / 2), low ? -1 : 1);
        double& length = (low ? result_.leverLow : result_.leverHigh)[i / 2];
        if (reasonAgainst(changed, zones_).holds()) return true;
        return compute(measure_, {zones_, changed, 0, 0}, {},
                       [&](const CaseFigures& figures) { length = shown(figures.need()); });
    });
}

void WhatIfWork::planShares() {
    const auto sum = std::make_shared<ShareSum>();
    constexpr std::size_t evaluationsOfPair = quantityCount + 2;
    const std::size_t perStep =
        std::max<std::size_t>(1, method(measure_).casesPerSlice() / evaluationsOfPair);
    add(sharePoints, perStep, [this, sum](std::size_t i) {
        if (result_.reason.holds() || result_.failedSamples > 0) return true;
        DriverPairs& pairs = kept_.pairs;
        if (pairs.first.empty()) pairs = driverPairs(sharePoints);
        ShareSum tried = ShareSum();
        bool there = true;
        tried.add(pairs.first[i], pairs.second[i], [&](const Drivers& drivers) {
            const auto need = there ? needOf(cases_.at(drivers)) : std::nullopt;
            there = there && need;
            return need.value_or(0);
        });
        if (!there) return false;
        sum->add(tried);
        if (i + 1 < sharePoints) return true;
        const Shares shares = sum->shares();
        result_.share = shares.total;
        result_.shareAlone = shares.alone;
        return true;
    });
}

void WhatIfWork::planTower() {
    const auto heatingGoverns = std::make_shared<std::array<bool, towerPercents>>();
    add(towerPercents, method(measure_).casesPerSlice(), [this, heatingGoverns](std::size_t p) {
        if (result_.reason.holds()) return true;
        const BoreholeInputs design = withTower(case_.design, p);
        const double about = about_[static_cast<std::size_t>(measure_)];
        const bool there =
            compute(measure_, {zones_, design, 0, about}, {}, [&](const CaseFigures& figures) {
                setTowerPercent(result_.tower, p, design, zones_, figures, case_.inputs.prices);
                (*heatingGoverns)[p] = figures.governing() == heating;
            });
        if (there && p + 1 == towerPercents) concludeTower(result_.tower, *heatingGoverns);
        return there;
    });
}

void WhatIfWork::planBores(std::size_t place, const Alternative& alternative) {
    const auto zones = std::make_shared<RolledZones>(alternative.design->loads.zones);
    add(1, 1, [this, place, alternative, zones](std::size_t) {
        const BoreholeInputs& design = *alternative.design;
        AlternativeFigures& result = result_.alternatives[place];
        Reason reason = reasonAgainst(design, *zones);
        if (!reason.holds()) reason = method(measure_).reasonAgainst({*zones, design, 0, 0});
        if (reason.holds()) {
            result = withoutFigures(alternative, std::move(reason));
            return true;
        }
        return compute(measure_, {*zones, design, 0, 0}, {}, [&](const CaseFigures& figures) {
            result =
                boreAlternative(alternative.name, design, *zones, figures, case_.inputs.prices);
        });
    });
}

void WhatIfWork::planAlternatives() {
    std::vector<Alternative> all{{case_.name, AlternativeKind::borehole, case_.design, {}}};
    for (const KeptAlternative& kept : case_.inputs.alternatives)
        if (kept.design)
            all.push_back({kept.name,
                           AlternativeKind::borehole,
                           keptInputs(*kept.design, case_.design.loads.zones),
                           {}});
    all.insert(all.end(), case_.others.begin(), case_.others.end());
    result_.alternatives.resize(all.size());
    for (std::size_t place = 0; place < all.size(); ++place) {
        const Alternative& each = all[place];
        result_.alternatives[place].name = each.name;
        result_.alternatives[place].kind = each.kind;
        if (each.design)
            planBores(place, each);
        else
            result_.alternatives[place] = loopAlternative(each, case_.inputs.prices);
    }
}

}  // namespace varnholt
