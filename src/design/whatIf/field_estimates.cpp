// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/field_estimates.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "design/whatIf/settled_length.h"

namespace varnholt {

bool isCheaper(double costA, const LatticeField& a, double costB, const LatticeField& b) {
    return std::tie(costA, a.bores, a.separation, a.rows) <
           std::tie(costB, b.bores, b.separation, b.rows);
}

void FieldEstimates::add(const LatticeField& field, double classicalNeed) {
    const auto log = [](std::size_t n) { return std::log(static_cast<double>(n)); };
    all_.push_back({field, classicalNeed, log(field.bores), log(field.rows) - log(field.columns), 0,
                    0, false});
}

double FieldEstimates::estimatedNeed(std::size_t index) const {
    const Estimate& of = all_[index];
    return of.classical * (of.weights > 0 ? of.ratios / of.weights : 1);
}

void FieldEstimates::tell(std::size_t index, double need) {
    all_[index].computed = true;
    next_ = 0;
    shallow_ = deep_ = {};
    lesson_.reset();
    if (!(need < noLength) || !(all_[index].classical > 0)) return;
    lesson_ = index;
    lessonRatio_ = need / all_[index].classical;
}

/// Never 0 apart, so that the ratio of the very same kind of field does not silence all others.
void FieldEstimates::learn(Estimate& of) const {
    constexpr double ofShape = 0.3, separationScale = 6, least = 0.001;
    const Estimate& told = all_[*lesson_];
    const double size = told.size - of.size, shape = told.shape - of.shape;
    const double separation = (told.field.separation - of.field.separation) / separationScale;
    const double apart = size * size + ofShape * shape * shape + separation * separation + least;
    const double weight = 1 / (apart * apart);
    of.ratios += weight * lessonRatio_;
    of.weights += weight;
}

void FieldEstimates::look(std::size_t index) {
    const LatticeField& field = all_[index].field;
    const PricedDepth priced = price_(field, estimatedNeed(index));
    if (!deep_.index || priced.depth < deep_.measure) deep_ = {index, priced.depth};
    if (priced.depth > mostDepth_ + placeGive) return;
    if (!shallow_.index ||
        isCheaper(priced.firstCost, field, shallow_.measure, all_[*shallow_.index].field))
        shallow_ = {index, priced.firstCost};
}

bool FieldEstimates::step(std::size_t fields) {
    for (std::size_t i = 0; i < fields && next_ < all_.size(); ++i, ++next_) {
        if (lesson_) learn(all_[next_]);
        if (!all_[next_].computed) look(next_);
    }
    return next_ == all_.size();
}

std::optional<std::size_t> FieldEstimates::like(double separation, std::size_t rows,
                                                std::size_t columns) const {
    const auto is = [&](const LatticeField& field, std::size_t r, std::size_t c) {
        return field.rows == r && field.columns == c &&
               std::abs(field.separation - separation) < placeGive;
    };
    for (std::size_t i = 0; i < all_.size(); ++i)
        if (is(all_[i].field, rows, columns)) return i;
    for (std::size_t i = 0; i < all_.size(); ++i)
        if (all_[i].field.isWhole() && is(all_[i].field, columns, rows)) return i;
    return std::nullopt;
}

}  // namespace varnholt
