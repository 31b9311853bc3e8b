// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/g_function_memory.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace varnholt::secondOpinion {
namespace {

constexpr std::size_t mostKept = 16;
constexpr double leastDepth = 10, greatestDepth = 2000;  // ft

double stepOfLadder() {
    return std::log(greatestDepth / leastDepth) /
           static_cast<double>(rungOfGreatestDepth - rungOfLeastDepth);
}

/// The rung of a depth, as a number with decimals.
double placeOf(double depth) {
    return static_cast<double>(rungOfLeastDepth) + std::log(depth / leastDepth) / stepOfLadder();
}

}  // namespace

double depthOfRung(std::size_t rung) {
    if (rung == rungOfGreatestDepth) return greatestDepth;
    const double above = static_cast<double>(rung) - static_cast<double>(rungOfLeastDepth);
    return leastDepth * std::exp(stepOfLadder() * above);
}

std::size_t rungAbove(double depth) {
    if (!(depth > leastDepth)) return rungOfLeastDepth;
    return static_cast<std::size_t>(std::min(placeOf(depth), static_cast<double>(lastRung)));
}

DepthFunction::DepthFunction(Rungs rungs, std::size_t first, double depth)
    : depth_(depth), rungs_(std::move(rungs)) {
    const double place = placeOf(depth) - static_cast<double>(first);
    for (std::size_t i = 0; i < weights_.size(); ++i) {
        weights_[i] = 1;
        for (std::size_t j = 0; j < weights_.size(); ++j)
            if (j != i)
                weights_[i] *= (place - static_cast<double>(j)) /
                               (static_cast<double>(i) - static_cast<double>(j));
    }
    nearest_ = static_cast<std::size_t>(std::clamp(std::round(place), 0.0, 3.0));
}

double DepthFunction::at(double hours) const {
    double sum = 0;
    for (std::size_t i = 0; i < weights_.size(); ++i) sum += weights_[i] * rungs_[i]->g.at(hours);
    return sum;
}

double DepthFunction::ofOneBoreAt(double hours) const {
    double sum = 0;
    for (std::size_t i = 0; i < weights_.size(); ++i)
        sum += weights_[i] * rungs_[i]->g.ofOneBoreAt(hours);
    return sum;
}

double DepthFunction::afterMonths(std::size_t months) const {
    double sum = 0;
    for (std::size_t i = 0; i < weights_.size(); ++i)
        sum += weights_[i] * rungs_[i]->monthly[months - 1];
    return sum;
}

std::size_t DepthFunction::groupCount() const { return rungs_[nearest_]->g.groupCount(); }

void GFunctionMemory::select(const FieldSite& site) {
    // Not while one opinion is on its way: it may go back to any of its depths.
    if (kept_.size() > mostKept) kept_.resize(mostKept);
    if (site_ && *site_ == site) return;
    if (!site_ || site_->bores != site.bores) field_.reset();
    work_.reset();
    wanted_.reset();
    for (const Kept& kept : kept_)
        if (*kept.site == site) {
            site_ = kept.site;
            return;
        }
    site_ = std::make_shared<const FieldSite>(site);
}

std::shared_ptr<const RungFunction> GFunctionMemory::atRung(std::size_t rung) {
    const auto found = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
        return kept.rung == rung && kept.site == site_;
    });
    if (found == kept_.end()) {
        want(rung);
        return nullptr;
    }
    kept_.splice(kept_.begin(), kept_, found);
    return found->function;
}

std::optional<DepthFunction> GFunctionMemory::atDepth(double depth) {
    const double atLeast = std::max(depth, leastDepth);
    const std::size_t above = rungAbove(atLeast);
    const std::size_t first = std::min(above, lastRung - 2) - 1;
    DepthFunction::Rungs rungs;
    for (std::size_t i = 0; i < rungs.size(); ++i) {
        rungs[i] = atRung(first + i);
        if (!rungs[i]) return std::nullopt;
    }
    return DepthFunction(std::move(rungs), first, atLeast);
}

void GFunctionMemory::want(std::size_t rung) {
    if (wanted_ == rung) return;
    work_.reset();
    wanted_ = rung;
}

void GFunctionMemory::computeMore() {
    if (!field_) field_ = std::make_unique<BoreField>(site_->bores);
    if (!field_->measureMore()) return;
    if (!work_) {
        const BoreShape shape{depthOfRung(*wanted_), site_->buried, site_->radius};
        work_ = std::make_unique<GFunctionWork>(*field_, shape, site_->alpha, site_->lastHour);
        return;
    }
    if (!work_->step()) return;
    keep(work_->result());
}

void GFunctionMemory::keep(const GFunction& g) {
    auto function = std::make_shared<RungFunction>();
    function->g = g;
    const auto months = static_cast<std::size_t>(site_->lastHour / hoursPerMonth);
    function->monthly.reserve(months);
    for (std::size_t n = 1; n <= months; ++n)
        function->monthly.push_back(g.at(hoursPerMonth * static_cast<double>(n)));
    kept_.push_front({site_, *wanted_, std::move(function)});
    work_.reset();
    wanted_.reset();
}

}  // namespace varnholt::secondOpinion
