// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/layout_search.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/run_time_error.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/secondOpinion/second_opinion.h"
#include "design/whatIf/cost.h"
#include "design/whatIf/land.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {
namespace {

constexpr int mostComputed = 60;
constexpr int mostFruitless = 12;
/// Fields that one slice goes over: to compute them by the classical method, to sort or to estimate
/// them.
constexpr std::size_t fieldsPerStep = 4'000;

/// The order of the list.
bool comesFirst(const LayoutField& a, const LayoutField& b) {
    return isCheaper(a.firstCost, a.field, b.firstCost, b.field);
}

/// Depth of a field's bores for a need, with the margin and no less than the least, ft.
double depthOfField(const LayoutValues& layout, const LatticeField& field, double need) {
    const double length = need * (1 + layout.margin / 100);
    return std::max(length / static_cast<double>(field.bores), layout.leastDepth);
}

double costOfField(const Prices& prices, double towerTons, const LatticeField& field,
                   double depth) {
    return sumOf(
        costParts({static_cast<double>(field.bores), depth, field.separation, towerTons}, prices));
}

/// A field whose depth or cost is no number is none.
bool isPriced(const LayoutField& field) {
    return std::isfinite(field.depth) && std::isfinite(field.firstCost);
}

Figure count(double value) { return {FigureKind::count, value}; }
Figure feet(double value) { return {FigureKind::feet, value}; }

}  // namespace

FieldNeeds::FieldNeeds(const RolledZones& zones, const BoreholeInputs& design) : design_(design) {
    const CaseLoads loads = loadsOfCase(zones, design.loads, {});
    annualGroundLoad_ = loads.annualGroundLoad;
    const modCalculations::PulseTimes pulses =
        modCalculations::calcPulseTimes(zones.loads().peakBlock, design.arrangement.predictionTime);
    const modCalculations::LengthTerms terms = termsOfCase(design, loads, pulses, {});
    for (Mode m : modes) withoutPenalty_[m] = settledMode(terms, m, 0);
}

double FieldNeeds::need(const LatticeField& field) {
    if (field.separation != separation_) {
        separation_ = field.separation;
        penalty_ = penaltyOfLoneFoot(design_.soil.soil(), separation_,
                                     design_.arrangement.predictionTime, annualGroundLoad_);
    }
    const double penalty = penalty_ * field.neighbourWeight / static_cast<double>(field.bores);
    double need = 0;
    for (const SettledMode& mode : withoutPenalty_) {
        if (mode.length == noLength) return noLength;
        if (mode.difference != 0) need = std::max(need, (mode.heat + penalty) / mode.difference);
    }
    return need;
}

Land landOf(const LandValues& values) {
    return {values.corner.empty() ? rectangleOf(values.across, values.down) : values.corner,
            values.noGo, values.boundaryClearance, values.noGoClearance};
}

Reason reasonAgainst(const Land& land) {
    if (!isSimple(land.outline)) return {Text::layoutOutlineCrosses, {}};
    for (std::size_t n = 0; n < land.noGo.size(); ++n)
        if (!isSimple(land.noGo[n]))
            return {Text::layoutNoGoCrosses, {count(static_cast<double>(n + 1))}};
    return {};
}

LayoutSearch::LayoutSearch(LayoutCase theCase, NeedByGFunctions byGFunctions)
    : case_(std::move(theCase)), byGFunctions_(std::move(byGFunctions)), land_(landOf(case_.land)) {
    try {
        prepare();
    } catch (const RunTimeError&) {
        fail({Text::whatIfNotComputable, {}});
    }
}

void LayoutSearch::fail(Reason reason) {
    result_.reason = std::move(reason);
    stage_ = Stage::done;
}

void LayoutSearch::prepare() {
    if (const Reason reason = reasonAgainst(land_); reason.holds()) return fail(reason);
    result_.landArea = areaOf(land_.outline);
    result_.noGoCount = land_.noGo.size();
    zones_.emplace(case_.design.loads.zones);
    // The field is what is looked for, so the design's own may be anything.
    case_.design.arrangement.patternRows = {1, 1};
    case_.design.arrangement.boreSeparation = case_.layout.spacingFrom;
    if (const Reason reason = reasonAgainst(case_.design, *zones_); reason.holds())
        return fail(reason);
    const CaseLoads loads = loadsOfCase(*zones_, case_.design.loads, {});
    for (Mode m : modes)
        if (const Reason reason = limitReason(case_.design, loads, m); reason.holds())
            return fail(reason);
    LayoutValues& layout = case_.layout;
    if (layout.spacingFrom > layout.spacingTo) {
        std::swap(layout.spacingFrom, layout.spacingTo);
        result_.notes.push_back(
            {Text::layoutSpacingSwapped, {feet(layout.spacingFrom), feet(layout.spacingTo)}});
    }
    if (layout.leastDepth > layout.mostDepth) {
        std::swap(layout.leastDepth, layout.mostDepth);
        result_.notes.push_back(
            {Text::layoutDepthSwapped, {feet(layout.leastDepth), feet(layout.mostDepth)}});
    }
    if (case_.design.loads.hybridOn)
        towerTons_ = towerTons(loads.buildingPeak, loads.heatPumpCOP[cooling],
                               case_.design.loads.hybridPercent);
    needs_.emplace(*zones_, case_.design);
    finder_.emplace(land_, layout);
}

void LayoutSearch::go(Stage stage) {
    stage_ = stage;
    next_ = 0;
}

bool LayoutSearch::step() {
    try {
        work();
    } catch (const RunTimeError&) {
        fail({Text::whatIfNotComputable, {}});
    }
    return stage_ == Stage::done;
}

void LayoutSearch::work() {
    switch (stage_) {
        case Stage::finding:
            if (finder_->step()) afterFinding();
            break;
        case Stage::classical:
            computeClassical();
            break;
        case Stage::sorting:
            sortClassical();
            break;
        case Stage::adding:
            addEstimates();
            break;
        case Stage::estimating:
            computeNext();
            break;
        case Stage::neighbours:
            computeNeighbour();
            break;
        case Stage::others:
            computeOther();
            break;
        case Stage::done:
            break;
    }
}

void LayoutSearch::afterFinding() {
    if (finder_->tooManyShapes()) return fail({Text::layoutTooManyShapes, {}});
    if (!finder_->hasPlace()) return fail({Text::layoutNoPlace, {feet(land_.boundaryClearance)}});
    if (finder_->spacingStep() != case_.layout.spacingStep)
        result_.notes.push_back({Text::layoutStepDoubled, {feet(finder_->spacingStep())}});
    result_.possible = finder_->fields().size();
    if (case_.measure == classicalMethod || !byGFunctions_) return go(Stage::classical);
    const auto price = [layout = case_.layout, prices = case_.prices, tons = towerTons_](
                           const LatticeField& field, double need) {
        const double depth = depthOfField(layout, field, need);
        return PricedDepth{depth, costOfField(prices, tons, field, depth)};
    };
    estimates_.emplace(price, case_.layout.mostDepth);
    estimates_->reserve(result_.possible);
    go(Stage::adding);
}

LayoutField LayoutSearch::priced(const LatticeField& field, double need) const {
    const double depth = depthOfField(case_.layout, field, need);
    return {field, depth, depth * static_cast<double>(field.bores),
            costOfField(case_.prices, towerTons_, field, depth), 0};
}

bool LayoutSearch::isTooDeep(const LayoutField& field) const {
    return field.depth > case_.layout.mostDepth + placeGive;
}

void LayoutSearch::computeClassical() {
    const std::vector<LatticeField>& fields = finder_->fields();
    heap_.reserve(fields.size());
    const std::size_t end = std::min(next_ + fieldsPerStep, fields.size());
    for (; next_ < end; ++next_) {
        const double need = needs_->need(fields[next_]);
        if (!(need < noLength)) continue;
        const LayoutField found = priced(fields[next_], need);
        if (!isPriced(found)) continue;
        if (!isTooDeep(found)) {
            heap_.push_back(found);
            std::push_heap(heap_.begin(), heap_.end(), comesFirst);
        } else if (!shallowest_ || found.depth < shallowest_->depth) {
            shallowest_ = found;
        }
    }
    if (next_ == fields.size()) go(Stage::sorting);
}

/// The dearest of those that are left goes to their end.
void LayoutSearch::sortClassical() {
    const std::size_t end = std::min(next_ + fieldsPerStep, heap_.size());
    for (; next_ < end; ++next_)
        std::pop_heap(heap_.begin(), heap_.end() - static_cast<std::ptrdiff_t>(next_), comesFirst);
    if (next_ < heap_.size()) return;
    result_.fields = std::move(heap_);
    conclude();
}

void LayoutSearch::addEstimates() {
    const std::vector<LatticeField>& fields = finder_->fields();
    const std::size_t end = std::min(next_ + fieldsPerStep, fields.size());
    for (; next_ < end; ++next_) estimates_->add(fields[next_], needs_->need(fields[next_]));
    if (next_ == fields.size()) go(Stage::estimating);
}

/// Whether a computed field is the best so far, or the shallowest while none is shallow enough.
bool LayoutSearch::take(const LatticeField& field, double need) {
    if (!(need < noLength)) return false;
    const LayoutField taken = priced(field, need);
    if (!isPriced(taken)) return false;
    if (isTooDeep(taken)) {
        const bool shallower = !shallowest_ || taken.depth < shallowest_->depth;
        if (shallower) shallowest_ = taken;
        return shallower && result_.fields.empty();
    }
    const auto place =
        std::lower_bound(result_.fields.begin(), result_.fields.end(), taken, comesFirst);
    const bool best = place == result_.fields.begin();
    result_.fields.insert(place, taken);
    return best;
}

std::optional<double> LayoutSearch::needByGFunctions(const LatticeField& field, double startDepth) {
    if (!asked_ || !(*asked_ == field)) {
        asked_ = field;
        askedBores_ = boresOf(land_, field);
    }
    const std::optional<double> need = byGFunctions_(askedBores_, field, startDepth);
    if (need) asked_.reset();
    return need;
}

std::optional<bool> LayoutSearch::computeByGFunctions(std::size_t index) {
    const LatticeField field = estimates_->field(index);
    const double classical = estimates_->classicalNeed(index);
    const auto need =
        needByGFunctions(field, priced(field, estimates_->estimatedNeed(index)).depth);
    if (!need) return std::nullopt;
    estimates_->tell(index, *need);
    const bool fruitful = take(field, *need);
    for (LayoutField& taken : result_.fields)
        if (taken.field == field && classical < noLength)
            taken.otherDepth = depthOfField(case_.layout, field, classical);
    return fruitful;
}

void LayoutSearch::computeNext() {
    if (!waiting_) {
        if (!estimates_->step(fieldsPerStep)) return;
        waiting_ = estimates_->cheapest();
    }
    if (waiting_) {
        const std::optional<bool> fruitful = computeByGFunctions(*waiting_);
        if (!fruitful) return;
        waiting_.reset();
        fruitless_ = *fruitful ? 0 : fruitless_ + 1;
        if (++computed_ < mostComputed && fruitless_ < mostFruitless) return;
    }
    queueNeighbours();
    go(Stage::neighbours);
}

/// A row, a column, a step more or less than the best.
void LayoutSearch::queueNeighbours() {
    if (result_.fields.empty()) return;
    const LatticeField& best = result_.fields.front().field;
    const double apart = best.separation, step = finder_->spacingStep();
    neighbours_ = {
        {apart, best.rows - 1, best.columns},    {apart, best.rows + 1, best.columns},
        {apart, best.rows, best.columns - 1},    {apart, best.rows, best.columns + 1},
        {apart - step, best.rows, best.columns}, {apart + step, best.rows, best.columns}};
}

void LayoutSearch::computeNeighbour() {
    if (next_ == neighbours_.size()) return conclude();
    const auto& [separation, rows, columns] = neighbours_[next_];
    if (!waiting_) waiting_ = estimates_->like(separation, rows, columns);
    const bool missing = waiting_ && !estimates_->isComputed(*waiting_);
    if (missing && !computeByGFunctions(*waiting_)) return;
    waiting_.reset();
    ++next_;
}

void LayoutSearch::conclude() {
    if (result_.fields.empty()) {
        if (!shallowest_) return fail({Text::whatIfNotComputable, {}});
        const LatticeField& field = shallowest_->field;
        return fail(
            {Text::layoutTooDeep,
             {count(static_cast<double>(field.rows)), count(static_cast<double>(field.columns)),
              feet(field.separation), feet(shallowest_->depth), feet(case_.layout.mostDepth)}});
    }
    const bool askOthers = case_.measure == classicalMethod && byGFunctions_;
    go(askOthers ? Stage::others : Stage::done);
}

void LayoutSearch::computeOther() {
    const std::size_t listed = std::min(result_.fields.size(), listedFields);
    if (next_ < listed) {
        LayoutField& field = result_.fields[next_];
        const std::optional<double> need = needByGFunctions(field.field, field.depth);
        if (!need) return;
        // Deeper than that the second opinion has no figure either.
        const double depth = *need / static_cast<double>(field.field.bores);
        if (depth <= greatestOpinionDepth)
            field.otherDepth = depthOfField(case_.layout, field.field, *need);
        ++next_;
    }
    if (next_ == listed) stage_ = Stage::done;
}

}  // namespace varnholt
