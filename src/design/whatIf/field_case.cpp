// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/field_case.h"

#include <algorithm>
#include <cmath>

#include "basis/units.h"
#include "design/modCalculations/ground_load.h"

namespace varnholt {

using namespace secondOpinion;

namespace {

constexpr int mostTrials = 30;
constexpr double caseTolerance = 1e-6;  // of the depth

double signOf(Mode mode) { return mode == cooling ? -1 : 1; }

/// The zones' year under a case's factors, from that of the design.
ZonesYear zonesOfCase(ZonesYear year, const RolledZones& zones, const LoadsInputs& inputs,
                      const CaseFactors& factors) {
    const CaseLoads loads = loadsOfCase(zones, inputs, factors);
    const modCalculations::Hybrid hybrid{inputs.hybridOn, inputs.hybridPercent, 0};
    const double cooled =
        hybrid.on ? hybrid.leftForGround(loads.tonHours[cooling]) : loads.tonHours[cooling];
    year.energy = {
        mbtuPerTon * modCalculations::rejectionFactor(loads.heatPumpCOP[cooling]) * cooled,
        mbtuPerTon * modCalculations::extractionFactor(loads.heatPumpCOP[heating]) *
            loads.tonHours[heating]};
    year.annualGroundLoad = loads.annualGroundLoad;
    year.outletTemp = loads.outletTemp;
    for (Mode m : modes) {
        const double taken =
            modCalculations::peakGroundLoad(m, loads.peakLoad[m], loads.peakDemand[m]);
        year.designPeak[m] = loads.peakLoad[m] != 0 ? std::max(0.0, signOf(m) * taken) : 0;
        year.meanLimit[m] = (year.inletTemp[m] + year.outletTemp[m]) / 2;
    }
    return year;
}

}  // namespace

FieldTerms fieldTermsOf(const PreparedField& field, const RolledZones& zones,
                        const LoadsInputs& loads, const SoilValues& soil,
                        const CaseFactors& factors) {
    FieldTerms terms = field.base.terms;
    terms.zones = zonesOfCase(terms.zones, zones, loads, factors);
    terms.groundTemp = soil.groundTemp + factors.groundTemp;
    terms.conductivity *= factors.conductivity;
    terms.boreResistance *= factors.boreResistance;
    ByMode<YearOfMode> shape = field.base.shape;
    if (field.told.shape == standardYear)
        for (Mode m : modes)
            shape[m] =
                standardYearOf(m, wantedShare(terms.zones, m), greatestMonthShare, field.southern);
    terms.year = groundYearOf(terms.zones, shape);
    return terms;
}

FieldCase::FieldCase(const FieldTerms& terms, GTable& table, double quickness,
                     const GTableReading& reading)
    : terms_(terms), table_(table), stretch_(GTable::stretchOf(quickness)), reading_(reading) {
    const double shift = table.shiftOf(quickness, stretch_);
    months_.reserve(terms.months);
    for (std::size_t n = 1; n <= terms.months; ++n)
        months_.push_back(table.placeOf(hoursPerMonth * static_cast<double>(n), shift));
    pulsePlace_ = table.placeOf(terms.pulseHours, shift);
}

const FieldCase::Rung* FieldCase::rung(std::size_t index) {
    if (rungs_[index]) return &*rungs_[index];
    const GNode* node = table_.node(stretch_, index);
    if (!node) return nullptr;
    std::vector<double> g(months_.size());
    for (std::size_t n = 0; n < g.size(); ++n) g[n] = node->at(months_[n]);
    rungs_[index] = Rung{monthlyDrift(terms_.year.mean, g, g.size()), node->at(pulsePlace_)};
    return &*rungs_[index];
}

/// Reads drift and pulse at a depth. False while a g-function is missing.
bool FieldCase::readAt(double depth) {
    const double place = GTable::rungPlace(depth);
    const auto count = static_cast<double>(reading_.rungs);
    const double half = (count - 1) / 2;
    double middle = place;
    if (reading_.about > 0) {
        const double about = std::round(GTable::rungPlace(reading_.about));
        if (std::abs(place - about) <= half) middle = about;
    }
    const double least =
        std::clamp(std::round(middle - half), 0.0, static_cast<double>(GTable::rungCount) - count);
    drift_.assign(months_.size(), 0);
    pulse_ = 0;
    bool there = true;
    for (std::size_t i = 0; i < reading_.rungs; ++i) {
        double weight = 1;
        for (std::size_t j = 0; j < reading_.rungs; ++j)
            if (j != i)
                weight *= (place - least - static_cast<double>(j)) /
                          (static_cast<double>(i) - static_cast<double>(j));
        const Rung* each = rung(static_cast<std::size_t>(least) + i);
        there = there && each;
        if (!there) return false;
        pulse_ += weight * each->pulse;
        for (std::size_t n = 0; n < drift_.size(); ++n) drift_[n] += weight * each->drift[n];
    }
    return there;
}

/// X of the hardest month, of the sign of the mode's limit difference where it asks for bore.
double FieldCase::greatestHeat(Mode mode) const {
    const double sign = signOf(mode);
    const double resistance = terms_.heatScale() * terms_.boreResistance;
    std::array<double, monthsOfYear> peaks{};
    for (std::size_t m = 0; m < monthsOfYear; ++m) {
        const double peak = terms_.year.peak[m][mode];
        peaks[m] = (peak - sign * terms_.year.mean[m]) * pulse_ +
                   (terms_.zones.shortCircuitFactor - 1) * peak * pulse_ + resistance * peak;
    }
    double greatest = -noLength;
    for (std::size_t n = 0; n < drift_.size(); ++n)
        if (terms_.year.counts[n % monthsOfYear][mode])
            greatest = std::max(greatest, sign * drift_[n] + peaks[n % monthsOfYear]);
    return sign * greatest;
}

/// The depth that the g-functions of a depth ask for.
std::optional<double> FieldCase::depthAskedFor(Mode mode, double depth) {
    if (!readAt(depth)) return std::nullopt;
    return terms_.lengthFor(greatestHeat(mode), mode) / terms_.bores;
}

std::optional<double> FieldCase::length(Mode mode, double startDepth) {
    const std::optional<double> settled = settledLength(mode, startDepth, greatestOpinionDepth);
    if (settled && *settled > greatestOpinionDepth * (1 + caseTolerance) * terms_.bores)
        return noLength;
    return settled;
}

std::optional<double> FieldCase::lengthHoweverDeep(Mode mode, double startDepth) {
    return settledLength(mode, startDepth, GTable::depthOfRung(GTable::rungCount - 1));
}

/// The length at which g-functions of its own depth ask for it; of the deepest, where that is less.
std::optional<double> FieldCase::settledLength(Mode mode, double startDepth, double deepest) {
    if (!terms_.year.hasMonths(mode)) return 0;
    if (!(signOf(mode) * terms_.limitDifference(mode) > 0)) return noLength;
    const auto held = [deepest](double depth) {
        return std::clamp(depth, leastOpinionDepth, deepest);
    };
    double before = held(startDepth);
    std::optional<double> asked = depthAskedFor(mode, before);
    if (!asked) return std::nullopt;
    double excess = *asked - before;
    double depth = held(*asked);
    for (int i = 0; i < mostTrials && std::isfinite(*asked); ++i) {
        if (std::abs(depth - before) <= caseTolerance * depth) break;
        asked = depthAskedFor(mode, depth);
        if (!asked) return std::nullopt;
        const double slope = (*asked - depth - excess) / (depth - before);
        excess = *asked - depth;
        before = depth;
        // What a depth asks for grows by less than the depth itself, so the slope is below 0.
        depth = held(slope < -0.1 ? depth - excess / slope : *asked);
    }
    if (!std::isfinite(*asked)) return noLength;
    return std::max(0.0, *asked * terms_.bores);
}

std::optional<double> FieldCase::hardestFluid(Mode mode, double length) {
    const double depth = std::clamp(length / terms_.bores, leastOpinionDepth, greatestOpinionDepth);
    if (!readAt(depth)) return std::nullopt;
    return terms_.fluidWith(greatestHeat(mode), length);
}

}  // namespace varnholt
