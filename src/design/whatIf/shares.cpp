// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/shares.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnholt {
namespace {

double varianceOf(const std::vector<double>& numbers) {
    const auto n = static_cast<double>(numbers.size());
    const double mean = std::accumulate(numbers.begin(), numbers.end(), 0.0) / n;
    double squares = 0;
    for (const double x : numbers) squares += (x - mean) * (x - mean);
    return squares / n;
}

/// Below this part of the square of the mean a variance is rounding.
constexpr double rounding = 1e-20;

}  // namespace

void ShareSum::add(const Drivers& first, const Drivers& second,
                   const std::function<double(const Drivers&)>& f) {
    const double ofFirst = f(first), ofSecond = f(second);
    ends_.push_back(ofFirst);
    ends_.push_back(ofSecond);
    for (std::size_t j = 0; j < quantityCount; ++j) {
        Drivers mixed = first;
        mixed[j] = second[j];
        const double ofMixed = f(mixed);
        failed_ = failed_ || !std::isfinite(ofMixed);
        fromFirst_[j] += (ofMixed - ofFirst) * (ofMixed - ofFirst);
        fromSecond_[j] += (ofMixed - ofSecond) * (ofMixed - ofSecond);
    }
    failed_ = failed_ || !std::isfinite(ofFirst) || !std::isfinite(ofSecond);
}

void ShareSum::add(const ShareSum& other) {
    failed_ = failed_ || other.failed_;
    ends_.insert(ends_.end(), other.ends_.begin(), other.ends_.end());
    for (std::size_t j = 0; j < quantityCount; ++j) {
        fromFirst_[j] += other.fromFirst_[j];
        fromSecond_[j] += other.fromSecond_[j];
    }
}

Shares ShareSum::shares() const {
    Shares result;
    if (failed_ || ends_.empty()) return result;
    const double variance = varianceOf(ends_);
    const double largest = std::abs(*std::max_element(ends_.begin(), ends_.end()));
    if (variance <= rounding * largest * largest) return result;
    const auto pairs = static_cast<double>(ends_.size() / 2);
    for (std::size_t j = 0; j < quantityCount; ++j) {
        result.total[j] = fromFirst_[j] / (2 * pairs) / variance;
        result.alone[j] = std::max(0.0, 1 - fromSecond_[j] / (2 * pairs) / variance);
    }
    return result;
}

}  // namespace varnholt
