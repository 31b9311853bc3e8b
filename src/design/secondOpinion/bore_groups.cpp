// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/bore_groups.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace varnholt::secondOpinion {
namespace {

constexpr double residualTolerance = 1.0e-10;  // of the residual
constexpr double sameHeat = 1.0e-8;            // by which equal heats may differ
constexpr std::size_t mostSteps = 500;

/// The second integral of 1/sqrt(r^2 + z^2).
double integralTwice(double z, double r) { return z * std::asinh(z / r) - std::hypot(z, r); }

/// Least cost of the first values in so many groups, and where the last group of them begins.
class Classification {
 public:
    Classification(const std::vector<double>& values, const std::vector<double>& weights)
        : weight_(values.size() + 1), sum_(values.size() + 1), square_(values.size() + 1) {
        // Differences of sums of squares lose digits unless the values lie around 0.
        const double middle = values[values.size() / 2];
        for (std::size_t i = 0; i < values.size(); ++i) {
            const double value = values[i] - middle;
            weight_[i + 1] = weight_[i] + weights[i];
            sum_[i + 1] = sum_[i] + weights[i] * value;
            square_[i + 1] = square_[i] + weights[i] * value * value;
        }
    }

    std::vector<std::size_t> cut(std::size_t groups) {
        const std::size_t count = weight_.size() - 1;
        cost_.resize(count + 1);
        for (std::size_t i = 1; i <= count; ++i) cost_[i] = costOf(0, i);
        std::vector<std::vector<std::size_t>> begins;
        for (std::size_t k = 1; k < groups; ++k) {
            next_.assign(count + 1, std::numeric_limits<double>::infinity());
            begins.emplace_back(count + 1, 0);
            addGroup(begins.back(), k + 1, count, k, count - 1);
            cost_.swap(next_);
        }
        std::vector<std::size_t> group(count);
        std::size_t end = count;
        for (std::size_t k = groups; k-- > 0;) {
            const std::size_t begin = k == 0 ? 0 : begins[k - 1][end];
            for (std::size_t i = begin; i < end; ++i) group[i] = k;
            end = begin;
        }
        return group;
    }

 private:
    double costOf(std::size_t begin, std::size_t end) const {
        const double weight = weight_[end] - weight_[begin];
        const double sum = sum_[end] - sum_[begin];
        return std::max(0.0, square_[end] - square_[begin] - sum * sum / weight);
    }

    /// The last group of the more values begins no earlier, so the middle of a range halves it.
    void addGroup(std::vector<std::size_t>& begin, std::size_t from, std::size_t to,
                  std::size_t least, std::size_t most) {
        if (from > to) return;
        const std::size_t middle = (from + to) / 2;
        for (std::size_t b = least; b <= std::min(most, middle - 1); ++b) {
            const double cost = cost_[b] + costOf(b, middle);
            if (cost >= next_[middle]) continue;
            next_[middle] = cost;
            begin[middle] = b;
        }
        addGroup(begin, from, middle - 1, least, begin[middle]);
        addGroup(begin, middle + 1, to, begin[middle], most);
    }

    std::vector<double> weight_, sum_, square_, cost_, next_;
};

}  // namespace

double steadyResponse(double distance, double depth, double buried) {
    const auto f = [distance](double z) { return integralTwice(z, distance); };
    const double real = 2 * f(depth) - 2 * f(0);
    const double image = f(2 * buried) - 2 * f(2 * buried + depth) + f(2 * buried + 2 * depth);
    return (real - image) / (2 * depth);
}

std::vector<std::size_t> classifyValues(const std::vector<double>& values,
                                        const std::vector<double>& weights, std::size_t most) {
    if (values.size() <= most) {
        std::vector<std::size_t> each(values.size());
        std::iota(each.begin(), each.end(), std::size_t{0});
        return each;
    }
    return Classification(values, weights).cut(most);
}

BoreGrouping::BoreGrouping(const BoreField& field, const BoreShape& shape, std::size_t most)
    : field_(field),
      most_(most),
      heats_(field.classCount(), 0),
      residual_(field.classCount(), 1),
      direction_(residual_) {
    response_.reserve(field.squares().size());
    for (const double square : field.squares())
        response_.push_back(steadyResponse(square == 0 ? shape.radius : std::sqrt(square),
                                           shape.depth, shape.buried));
    firstSquare_ = residualSquare_ = product(residual_, residual_);
}

bool BoreGrouping::step() {
    if (groups_.count() != 0) return true;
    const std::vector<double> image = responsesTo(direction_);
    const double length = residualSquare_ / product(direction_, image);
    for (std::size_t c = 0; c < heats_.size(); ++c) {
        heats_[c] += length * direction_[c];
        residual_[c] -= length * image[c];
    }
    const double before = residualSquare_;
    residualSquare_ = product(residual_, residual_);
    ++steps_;
    if (!(residualSquare_ > residualTolerance * residualTolerance * firstSquare_) ||
        steps_ == mostSteps) {
        cutIntoGroups();
        return true;
    }
    for (std::size_t c = 0; c < heats_.size(); ++c)
        direction_[c] = residual_[c] + residualSquare_ / before * direction_[c];
    return false;
}

std::vector<double> BoreGrouping::responsesTo(const std::vector<double>& heats) const {
    std::vector<double> ofBore(field_.size());
    for (std::size_t j = 0; j < ofBore.size(); ++j) ofBore[j] = heats[field_.classOf(j)];
    std::vector<double> result(heats.size());
    for (std::size_t c = 0; c < result.size(); ++c) {
        const std::uint16_t* index = field_.squareIndices(c);
        // Two sums, so that one addition need not wait for the other.
        double even = 0, odd = 0;
        std::size_t j = 0;
        for (; j + 1 < ofBore.size(); j += 2) {
            even += response_[index[j]] * ofBore[j];
            odd += response_[index[j + 1]] * ofBore[j + 1];
        }
        if (j < ofBore.size()) even += response_[index[j]] * ofBore[j];
        result[c] = even + odd;
    }
    return result;
}

double BoreGrouping::product(const std::vector<double>& a, const std::vector<double>& b) const {
    double sum = 0;
    for (std::size_t c = 0; c < a.size(); ++c) sum += field_.classSize()[c] * a[c] * b[c];
    return sum;
}

void BoreGrouping::cutIntoGroups() {
    const bool sound =
        std::all_of(heats_.begin(), heats_.end(), [](double heat) { return std::isfinite(heat); });
    if (!sound) std::fill(heats_.begin(), heats_.end(), 1.0);
    std::vector<std::size_t> order(heats_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return heats_[a] < heats_[b]; });
    std::vector<double> values, weights;
    std::vector<std::size_t> valueOf(heats_.size());
    for (const std::size_t c : order) {
        const bool same =
            !values.empty() && heats_[c] - values.back() <= sameHeat * std::abs(heats_[c]);
        if (!same) {
            values.push_back(heats_[c]);
            weights.push_back(0);
        }
        weights.back() += field_.classSize()[c];
        valueOf[c] = values.size() - 1;
    }
    const std::vector<std::size_t> groupOf = classifyValues(values, weights, most_);
    groups_.size.assign(groupOf.back() + 1, 0);
    for (std::size_t i = 0; i < values.size(); ++i) groups_.size[groupOf[i]] += weights[i];
    for (const std::size_t value : valueOf) groups_.ofClass.push_back(groupOf[value]);
}

}  // namespace varnholt::secondOpinion
