// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/layout_search.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "basis/run_time_error.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/whatIf/cost.h"
#include "design/whatIf/land.h"
#include "forms/text_numbers.h"

namespace varnholt {
namespace {

constexpr int mostComputed = 60;
constexpr int mostFruitless = 12;

/// How unlike two fields are: by size, proportions and separation. Never 0, so that a ratio of the
/// very same kind of field does not silence all others.
double distanceSquared(const LatticeField& a, const LatticeField& b) {
    constexpr double ofShape = 0.3, separationScale = 6, least = 0.001;
    const auto log = [](std::size_t n) { return std::log(static_cast<double>(n)); };
    const double size = log(a.bores) - log(b.bores);
    const double shape = (log(a.rows) - log(a.columns)) - (log(b.rows) - log(b.columns));
    const double separation = (a.separation - b.separation) / separationScale;
    return size * size + ofShape * shape * shape + separation * separation + least;
}

/// The order of the list.
bool isCheaper(double costA, const LatticeField& a, double costB, const LatticeField& b) {
    return std::tie(costA, a.bores, a.separation, a.rows) <
           std::tie(costB, b.bores, b.separation, b.rows);
}

bool isCheaper(const LayoutField& a, const LayoutField& b) {
    return isCheaper(a.firstCost, a.field, b.firstCost, b.field);
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
    if (!isSimple(land_.outline)) return fail({Text::layoutOutlineCrosses, {}});
    for (std::size_t n = 0; n < land_.noGo.size(); ++n)
        if (!isSimple(land_.noGo[n]))
            return fail({Text::layoutNoGoCrosses, {count(static_cast<double>(n + 1))}});
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

bool LayoutSearch::step() {
    try {
        switch (stage_) {
            case Stage::finding:
                if (finder_->step()) afterFinding();
                break;
            case Stage::classical:
                computeClassical();
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
    } catch (const RunTimeError&) {
        fail({Text::whatIfNotComputable, {}});
    }
    return stage_ == Stage::done;
}

void LayoutSearch::afterFinding() {
    if (finder_->tooManyShapes()) return fail({Text::layoutTooManyShapes, {}});
    if (!finder_->hasPlace()) return fail({Text::layoutNoPlace, {feet(land_.boundaryClearance)}});
    if (finder_->spacingStep() != case_.layout.spacingStep)
        result_.notes.push_back({Text::layoutStepDoubled, {feet(finder_->spacingStep())}});
    for (const LatticeField& field : finder_->fields())
        candidates_.push_back({field, needs_->need(field), 0, 0, false});
    result_.possible = candidates_.size();
    stage_ =
        case_.measure == classicalMethod || !byGFunctions_ ? Stage::classical : Stage::estimating;
}

double LayoutSearch::depthOf(const LatticeField& field, double need) const {
    const double length = need * (1 + case_.layout.margin / 100);
    return std::max(length / static_cast<double>(field.bores), case_.layout.leastDepth);
}

double LayoutSearch::costOf(const LatticeField& field, double depth) const {
    return sumOf(costParts({static_cast<double>(field.bores), depth, field.separation, towerTons_},
                           case_.prices));
}

/// Whether a computed field is the best so far, or the shallowest while none is shallow enough.
bool LayoutSearch::take(const LatticeField& field, double need) {
    if (!(need < noLength)) return false;
    const double depth = depthOf(field, need);
    const LayoutField taken{field, depth, depth * static_cast<double>(field.bores),
                            costOf(field, depth), 0};
    if (depth > case_.layout.mostDepth + placeGive) {
        const bool shallower = !shallowest_ || depth < shallowest_->depth;
        if (shallower) shallowest_ = taken;
        return shallower && result_.fields.empty();
    }
    const auto place = std::lower_bound(
        result_.fields.begin(), result_.fields.end(), taken,
        [](const LayoutField& a, const LayoutField& b) { return isCheaper(a, b); });
    const bool best = place == result_.fields.begin();
    result_.fields.insert(place, taken);
    return best;
}

void LayoutSearch::computeClassical() {
    std::vector<LayoutField>& fields = result_.fields;
    for (const Candidate& candidate : candidates_) {
        const double depth = depthOf(candidate.field, candidate.classical);
        const LayoutField found{candidate.field, depth,
                                depth * static_cast<double>(candidate.field.bores),
                                costOf(candidate.field, depth), 0};
        if (depth <= case_.layout.mostDepth + placeGive)
            fields.push_back(found);
        else if (!shallowest_ || depth < shallowest_->depth)
            shallowest_ = found;
    }
    std::sort(fields.begin(), fields.end(),
              [](const LayoutField& a, const LayoutField& b) { return isCheaper(a, b); });
    conclude();
}

double LayoutSearch::estimatedDepth(const Candidate& candidate) const {
    const double ratio = candidate.weights > 0 ? candidate.ratios / candidate.weights : 1;
    return depthOf(candidate.field, candidate.classical * ratio);
}

/// The uncomputed field of the cheapest estimate within the depths; where there is none, the one of
/// the least depth.
std::optional<std::size_t> LayoutSearch::cheapestEstimate() const {
    std::optional<std::size_t> cheapest, leastDeep;
    double leastCost = 0, leastDepth = 0;
    for (std::size_t i = 0; i < candidates_.size(); ++i) {
        const Candidate& candidate = candidates_[i];
        if (candidate.computed) continue;
        const double depth = estimatedDepth(candidate);
        if (!leastDeep || depth < leastDepth) {
            leastDeep = i;
            leastDepth = depth;
        }
        if (depth > case_.layout.mostDepth + placeGive) continue;
        const double cost = costOf(candidate.field, depth);
        if (cheapest && !isCheaper(cost, candidate.field, leastCost, candidates_[*cheapest].field))
            continue;
        cheapest = i;
        leastCost = cost;
    }
    return cheapest ? cheapest : leastDeep;
}

std::optional<bool> LayoutSearch::computeByGFunctions(std::size_t index) {
    const LatticeField& field = candidates_[index].field;
    const std::optional<double> computed =
        byGFunctions_(boresOf(land_, field), field, estimatedDepth(candidates_[index]));
    if (!computed) return std::nullopt;
    const double need = *computed;
    candidates_[index].computed = true;
    const double classical = candidates_[index].classical;
    if (need < noLength && classical > 0)
        for (Candidate& other : candidates_) {
            const double distance = distanceSquared(field, other.field);
            const double weight = 1 / (distance * distance);
            other.ratios += weight * need / classical;
            other.weights += weight;
        }
    const bool fruitful = take(field, need);
    for (LayoutField& taken : result_.fields)
        if (taken.field == field && classical < noLength)
            taken.otherDepth = depthOf(field, classical);
    return fruitful;
}

void LayoutSearch::computeNext() {
    if (!waiting_) waiting_ = cheapestEstimate();
    const std::optional<std::size_t> next = waiting_;
    if (next) {
        const std::optional<bool> fruitful = computeByGFunctions(*next);
        if (!fruitful) return;
        waiting_.reset();
        fruitless_ = *fruitful ? 0 : fruitless_ + 1;
        ++computed_;
    }
    if (next && computed_ < mostComputed && fruitless_ < mostFruitless) return;
    queueNeighbours();
    stage_ = Stage::neighbours;
}

std::optional<std::size_t> LayoutSearch::candidateLike(double separation, std::size_t rows,
                                                       std::size_t columns) const {
    const auto is = [&](const LatticeField& field, std::size_t r, std::size_t c) {
        return std::abs(field.separation - separation) < placeGive && field.rows == r &&
               field.columns == c;
    };
    for (std::size_t i = 0; i < candidates_.size(); ++i)
        if (is(candidates_[i].field, rows, columns)) return i;
    for (std::size_t i = 0; i < candidates_.size(); ++i)
        if (candidates_[i].field.isWhole() && is(candidates_[i].field, columns, rows)) return i;
    return std::nullopt;
}

void LayoutSearch::queueNeighbours() {
    if (result_.fields.empty()) return;
    const LatticeField& best = result_.fields.front().field;
    const double step = finder_->spacingStep();
    const std::array<std::optional<std::size_t>, 6> around{
        candidateLike(best.separation, best.rows - 1, best.columns),
        candidateLike(best.separation, best.rows + 1, best.columns),
        candidateLike(best.separation, best.rows, best.columns - 1),
        candidateLike(best.separation, best.rows, best.columns + 1),
        candidateLike(best.separation - step, best.rows, best.columns),
        candidateLike(best.separation + step, best.rows, best.columns)};
    for (const std::optional<std::size_t>& each : around)
        if (each) neighbours_.push_back(*each);
}

void LayoutSearch::computeNeighbour() {
    if (next_ < neighbours_.size()) {
        const std::size_t index = neighbours_[next_];
        if (candidates_[index].computed || computeByGFunctions(index)) ++next_;
        return;
    }
    conclude();
}

void LayoutSearch::conclude() {
    next_ = 0;
    if (result_.fields.empty()) {
        if (!shallowest_) return fail({Text::whatIfNotComputable, {}});
        const LatticeField& field = shallowest_->field;
        return fail(
            {Text::layoutTooDeep,
             {count(static_cast<double>(field.rows)), count(static_cast<double>(field.columns)),
              feet(field.separation), feet(shallowest_->depth), feet(case_.layout.mostDepth)}});
    }
    const bool askOthers = case_.measure == classicalMethod && byGFunctions_;
    stage_ = askOthers ? Stage::others : Stage::done;
}

void LayoutSearch::computeOther() {
    const std::size_t listed = std::min(result_.fields.size(), listedFields);
    if (next_ < listed) {
        LayoutField& field = result_.fields[next_];
        const std::optional<double> need =
            byGFunctions_(boresOf(land_, field.field), field.field, field.depth);
        if (!need) return;
        if (*need < noLength) field.otherDepth = depthOf(field.field, *need);
        ++next_;
    }
    if (next_ == listed) stage_ = Stage::done;
}

}  // namespace varnholt
