// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/g_function.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace varnholt::secondOpinion {
namespace {

constexpr double firstHour = 1;
constexpr double nearlyFirst = 1.15;    // times the first hour: too near for a point of its own
constexpr double fourierOfStart = 0.1;  // of the bores' walls, alpha t/rb^2
constexpr double evenStep = 0.3;        // of ln t, before the march
constexpr double shortening = 0.25;     // of the march's steps, over and below their mean
constexpr double fourierOfStep = 0.03;  // of the shortest step; below 0.02 the march sways
constexpr std::size_t timesPerSlice = 16;
constexpr std::size_t stepsPerSlice = 8;

/// Times in equal steps of their logarithm, both ends included.
std::vector<double> spacedTimes(double from, double to, std::size_t steps) {
    std::vector<double> times;
    times.reserve(steps + 1);
    const double step = std::log(to / from) / static_cast<double>(steps);
    for (std::size_t i = 0; i < steps; ++i)
        times.push_back(from * std::exp(step * static_cast<double>(i)));
    times.push_back(to);
    return times;
}

/// Times of the march, both ends included: steps of the logarithm that shorten evenly from five
/// quarters of their mean to three. The error comes late, when the bores share the ground; before,
/// heat hardly moves between them. Where they shorten more, g of wide and shallow bores falls.
std::vector<double> marchTimes(double from, double to, std::size_t steps) {
    std::vector<double> times;
    times.reserve(steps + 1);
    for (std::size_t i = 0; i < steps; ++i) {
        const double share = static_cast<double>(i) / static_cast<double>(steps);
        times.push_back(from *
                        std::exp(std::log(to / from) * share * (1 + shortening * (1 - share))));
    }
    times.push_back(to);
    return times;
}

/// An even number of steps of which the first is not too short for the walls to answer to it.
/// @param fourier  of the walls, at the beginning
std::size_t stepsOf(double from, double to, double fourier, std::size_t most) {
    const double possible = std::log(to / from) / std::log1p(fourierOfStep / fourier);
    if (!(possible >= 2)) return 0;
    const auto steps = static_cast<std::size_t>(std::min(possible, static_cast<double>(most)));
    return steps - steps % 2;
}

bool allFinite(const std::vector<double>& values) {
    return std::all_of(values.begin(), values.end(), [](double x) { return std::isfinite(x); });
}

}  // namespace

GFunction::GFunction(std::vector<double> logarithms, std::vector<double> g,
                     std::vector<double> ofOneBore, std::size_t groupCount)
    : ofField_(logarithms, std::move(g)),
      ofOneBore_(std::move(logarithms), std::move(ofOneBore)),
      groupCount_(groupCount) {}

double GFunction::at(double hours) const { return ofField_.at(std::log(hours)); }

double GFunction::ofOneBoreAt(double hours) const { return ofOneBore_.at(std::log(hours)); }

bool GFunction::isFinite() const { return allFinite(ofField_.y()) && allFinite(ofOneBore_.y()); }

GFunctionWork::GFunctionWork(const BoreField& field, const BoreShape& shape, double alpha,
                             double lastHour, const GFunctionManner& manner)
    : field_(field),
      shape_(shape),
      alpha_(alpha),
      lastHour_(lastHour),
      steps_(manner.steps),
      grouping_(field, shape, manner.groups) {
    setTimes();
}

void GFunctionWork::setTimes() {
    const double fourierPerHour = alpha_ / (shape_.radius * shape_.radius);
    double start = fourierOfStart / fourierPerHour;
    if (!(start > firstHour * nearlyFirst)) start = firstHour;
    steps_ = stepsOf(start, lastHour_, fourierPerHour * start, steps_);
    const double evenUntil = steps_ == 0 ? lastHour_ : start;
    if (steps_ != 0) times_ = marchTimes(start, lastHour_, steps_);
    if (evenUntil > firstHour) {
        const double pieces = std::ceil(std::log(evenUntil / firstHour) / evenStep);
        evenTimes_ = spacedTimes(firstHour, evenUntil, static_cast<std::size_t>(pieces));
        if (steps_ != 0) evenTimes_.pop_back();
    }
}

bool GFunctionWork::step() {
    if (done_) return true;
    if (!pairs_) {
        if (grouping_.step()) startIntegral();
    } else if (nextTime_ < evenTimes_.size() + times_.size()) {
        integrate();
    } else if (nextStep_ < times_.size()) {
        march();
    } else {
        finish();
    }
    return done_;
}

void GFunctionWork::startIntegral() {
    pairs_.emplace(field_, grouping_.groups());
    integral_.emplace(*pairs_, shape_, alpha_);
    startMarch(ofField_, pairs_->groupSize());
    startMarch(ofOneBore_, {1});
}

void GFunctionWork::startMarch(Marched& marched, const std::vector<double>& groupSize) {
    const auto ends = segmentEnds(shape_);
    marched.fine.emplace(groupSize, ends, times_, marched.responses, 1);
    marched.coarse.emplace(groupSize, ends, times_, marched.responses, 2);
}

void GFunctionWork::integrate() {
    const std::size_t last = std::min(evenTimes_.size() + times_.size(), nextTime_ + timesPerSlice);
    const ResponseTable& table = integral_->table();
    for (; nextTime_ < last; ++nextTime_) {
        const bool isEven = nextTime_ < evenTimes_.size();
        integral_->advanceTo(isEven ? evenTimes_[nextTime_]
                                    : times_[nextTime_ - evenTimes_.size()]);
        if (isEven) {
            evenG_.push_back(table.ofEvenBore);
            continue;
        }
        ofField_.responses.push_back(segmentResponses(table.ofGroups.data(), pairs_->pairCount()));
        if (field_.size() > 1)
            ofOneBore_.responses.push_back(segmentResponses(table.ofOneBore.data(), 1));
    }
}

void GFunctionWork::march() {
    const std::size_t last = std::min(times_.size(), nextStep_ + stepsPerSlice);
    for (; nextStep_ < last; ++nextStep_) {
        marchOne(ofField_);
        if (field_.size() > 1) marchOne(ofOneBore_);
    }
}

void GFunctionWork::marchOne(Marched& marched) {
    marched.g.push_back(marched.fine->advance());
    if (nextStep_ % 2 == 0) marched.coarseG.push_back(marched.coarse->advance());
}

/// Between the times of the march in half as many steps its error is small and smooth.
std::vector<double> GFunctionWork::extrapolated(const Marched& marched) const {
    std::vector<double> logarithms, error;
    for (std::size_t i = 0; i < times_.size(); i += 2) {
        logarithms.push_back(std::log(times_[i]));
        error.push_back(marched.coarseG[i / 2] - marched.g[i]);
    }
    const CubicSpline errorAt(std::move(logarithms), std::move(error));
    std::vector<double> g = evenG_;
    g.reserve(evenG_.size() + times_.size());
    for (std::size_t i = 0; i < times_.size(); ++i)
        g.push_back(marched.g[i] - errorAt.at(std::log(times_[i])));
    return g;
}

void GFunctionWork::finish() {
    std::vector<double> logarithms;
    logarithms.reserve(evenTimes_.size() + times_.size());
    for (const double hours : evenTimes_) logarithms.push_back(std::log(hours));
    for (const double hours : times_) logarithms.push_back(std::log(hours));
    const bool marches = !times_.empty();
    std::vector<double> g = marches ? extrapolated(ofField_) : evenG_;
    std::vector<double> ofOneBore = marches && field_.size() > 1 ? extrapolated(ofOneBore_) : g;
    result_ =
        GFunction(std::move(logarithms), std::move(g), std::move(ofOneBore), pairs_->groupCount());
    done_ = true;
}

GFunction gFunctionOf(const std::vector<BorePosition>& bores, const BoreShape& shape, double alpha,
                      double lastHour, const GFunctionManner& manner) {
    BoreField field(bores);
    while (!field.measureMore()) {
    }
    GFunctionWork work(field, shape, alpha, lastHour, manner);
    while (!work.step()) {
    }
    return work.result();
}

}  // namespace varnholt::secondOpinion
