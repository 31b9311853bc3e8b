// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/heat_march.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varnholt::secondOpinion {
namespace {

constexpr std::size_t square = segmentCount * segmentCount;

/// to += block x, for one square of segments.
void addProduct(const double* block, const double* x, double* to) {
    for (std::size_t v = 0; v < segmentCount; ++v)
        for (std::size_t u = 0; u < segmentCount; ++u) to[u] += block[v * segmentCount + u] * x[v];
}

double sumOfProducts(const std::vector<double>& a, const std::vector<double>& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
}

}  // namespace

SegmentResponses segmentResponses(const double* packed, std::size_t pairs) {
    SegmentResponses full(pairs * square);
    double* to = full.data();
    for (std::size_t pair = 0; pair < pairs; ++pair, packed += segmentPairs)
        for (std::size_t v = 0; v < segmentCount; ++v)
            for (std::size_t u = 0; u < segmentCount; ++u) *to++ = packed[segmentPair(u, v)];
    return full;
}

HeatMarch::HeatMarch(const std::vector<double>& groupSize,
                     const std::array<double, segmentCount + 1>& ends,
                     const std::vector<double>& times,
                     const std::vector<SegmentResponses>& responses, std::size_t stride)
    : times_(times),
      responses_(responses),
      stride_(stride),
      groups_(groupSize.size()),
      system_(groups_ * segmentCount) {
    for (const double bores : groupSize)
        for (std::size_t u = 0; u < segmentCount; ++u)
            weights_.push_back(bores * (ends[u + 1] - ends[u]));
    for (const double weight : weights_) totalLength_ += weight;
    given_.emplace_back(unknowns(), 0);
    past_.resize(unknowns());
    step_.resize(groups_ * (groups_ + 1) / 2 * square);
    unit_ = mean_ = earlier_ = later_ = past_;
}

double HeatMarch::advance() {
    const double hours = endOf(done_), duration = hours - beginOf(done_);
    gatherPast(hours);
    setSystem(duration);
    if (!system_.factorize()) return std::numeric_limits<double>::quiet_NaN();
    unit_ = weights_;
    system_.solve(unit_);
    system_.solve(past_);
    // heat = wall temperature * unit - past, and all heat together is one unit per length.
    const double wall =
        (totalLength_ + sumOfProducts(weights_, past_)) / sumOfProducts(weights_, unit_);
    std::vector<double> given = given_.back();
    for (std::size_t i = 0; i < given.size(); ++i)
        given[i] += duration * (wall * unit_[i] - past_[i]);
    given_.push_back(std::move(given));
    ++done_;
    return wall;
}

/// Responses after a duration, which no step of the table exceeds.
void HeatMarch::setSystem(double duration) {
    std::size_t k = 0;
    while (k < done_ && endOf(k) < duration) ++k;
    const double share = (duration - beginOf(k)) / (endOf(k) - beginOf(k));
    const SegmentResponses& upper = at(k);
    for (std::size_t i = 0; i < step_.size(); ++i) step_[i] = share * upper[i];
    if (const SegmentResponses* lower = before(k))
        for (std::size_t i = 0; i < step_.size(); ++i) step_[i] += (1 - share) * (*lower)[i];
    const double* block = step_.data();
    for (std::size_t b = 0; b < groups_; ++b)
        for (std::size_t a = 0; a <= b; ++a)
            for (std::size_t u = 0; u < segmentCount; ++u, block += segmentCount) {
                double* column = system_.column(a * segmentCount + u) + b * segmentCount;
                std::copy(block, block + segmentCount, column);
            }
}

/// What the heat of the past does at the end of this step, which has given none yet.
void HeatMarch::gatherPast(double hours) {
    std::fill(past_.begin(), past_.end(), 0.0);
    std::fill(earlier_.begin(), earlier_.end(), 0.0);
    std::size_t place = 0;
    for (std::size_t k = done_ + 1; k-- > 0;) {
        const double until = hours - beginOf(k);
        heatUntil(until, place, later_);
        const double duration = endOf(k) - beginOf(k);
        for (std::size_t i = 0; i < mean_.size(); ++i)
            mean_[i] = (later_[i] - earlier_[i]) / duration;
        addIncrease(k);
        earlier_.swap(later_);
        // What comes then lies within this step.
        if (until >= beginOf(done_)) break;
    }
}

/// The mean heat of an interval of the past, times what the responses grow by over it.
void HeatMarch::addIncrease(std::size_t k) {
    const SegmentResponses* lower = before(k);
    const SegmentResponses& upper = at(k);
    std::array<double, square> block{};
    for (std::size_t b = 0; b < groups_; ++b)
        for (std::size_t a = 0; a <= b; ++a) {
            const std::size_t from = PairCounts::pairOf(a, b) * square;
            for (std::size_t i = 0; i < square; ++i)
                block[i] = upper[from + i] - (lower == nullptr ? 0 : (*lower)[from + i]);
            addProduct(block.data(), &mean_[b * segmentCount], &past_[a * segmentCount]);
            if (a != b)
                addProduct(block.data(), &mean_[a * segmentCount], &past_[b * segmentCount]);
        }
}

/// @param place  in: a step that begins no later; out: the last such step
void HeatMarch::heatUntil(double hours, std::size_t& place, std::vector<double>& heat) const {
    while (place < done_ && beginOf(place + 1) <= hours) ++place;
    heat = given_[place];
    if (place == done_) return;
    const double share = (hours - beginOf(place)) / (endOf(place) - beginOf(place));
    const std::vector<double>& next = given_[place + 1];
    for (std::size_t i = 0; i < heat.size(); ++i) heat[i] += share * (next[i] - heat[i]);
}

}  // namespace varnholt::secondOpinion
