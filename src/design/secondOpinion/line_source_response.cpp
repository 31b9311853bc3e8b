// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/line_source_response.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "design/secondOpinion/gauss_legendre.h"

namespace varnholt::secondOpinion {
namespace {

constexpr double leastSegment = 0.5;  // of a bore's radius
constexpr double endShare = 0.02;     // of a bore's length, for its end segments
constexpr double nothing = 40;        // exp(-40) adds nothing to a sum of a few thousand
constexpr double widestPanel = 0.4;   // of ln s, for four nodes
constexpr double narrowPanel = 0.08;  // for two
constexpr double middlePanel = 0.2;   // for three

/// By how much each segment is longer than the one above, from the top to the middle: the half has
/// 1 + r + r^2 + r^3 end segments.
double growthOfSegments(double share) {
    double r = 2.5;
    for (int i = 0; i < 12; ++i) {
        const double excess = 1 + r * (1 + r * (1 + r)) - 0.5 / share;
        r -= excess / (1 + r * (2 + 3 * r));
    }
    return r;
}

}  // namespace

std::array<double, segmentCount + 1> segmentEnds(const BoreShape& shape) {
    const double share = std::clamp(leastSegment * shape.radius / shape.depth, endShare,
                                    1.0 / static_cast<double>(segmentCount));
    const double growth = growthOfSegments(share);
    std::array<double, segmentCount + 1> ends{};
    ends.front() = shape.buried;
    double length = share * shape.depth;
    for (std::size_t u = 1; u <= segmentCount / 2; ++u) {
        ends[u] = ends[u - 1] + length;
        length *= growth;
    }
    for (std::size_t u = segmentCount / 2 + 1; u <= segmentCount; ++u)
        ends[u] = 2 * shape.buried + shape.depth - ends[segmentCount - u];
    return ends;
}

double integralOfErf(double x) {
    const double size = std::abs(x);
    constexpr double rootPi = 1 / std::numbers::inv_sqrtpi;
    // Beyond 6 the error function is 1 to the last digit.
    if (size > 6) return size - 1 / rootPi;
    return size * std::erf(size) + std::expm1(-size * size) / rootPi;
}

double exponentialIntegral(double x) { return -std::expint(-x); }

PairCounts::PairCounts(const BoreField& field, const BoreGroups& groups)
    : groupSize_(groups.size), squares_(field.squares()) {
    counts_.assign(squares_.size() * pairCount(), 0);
    std::vector<std::size_t> groupOf(field.size());
    for (std::size_t j = 0; j < groupOf.size(); ++j) groupOf[j] = groups.ofClass[field.classOf(j)];
    for (std::size_t c = 0; c < field.classCount(); ++c) {
        const std::size_t a = groups.ofClass[c];
        const std::uint16_t* index = field.squareIndices(c);
        for (std::size_t j = 0; j < groupOf.size(); ++j) {
            const std::size_t b = groupOf[j];
            if (a <= b) counts_[index[j] * pairCount() + pairOf(a, b)] += field.classSize()[c];
        }
    }
}

void PairCounts::sumsAt(double s, double radius, double* sums) const {
    const std::size_t pairs = pairCount();
    const double square = s * s;
    const double ofItself = std::exp(-radius * radius * square);
    for (std::size_t p = 0; p < pairs; ++p) sums[p] = ofItself * counts_[p];
    const double* count = &counts_[0];
    for (std::size_t i = 1; i < squares_.size(); ++i) {
        count += pairs;
        const double exponent = squares_[i] * square;
        if (exponent > nothing) break;
        const double term = std::exp(-exponent);
        for (std::size_t p = 0; p < pairs; ++p) sums[p] += term * count[p];
    }
}

ResponseIntegral::ResponseIntegral(const PairCounts& pairs, const BoreShape& shape, double alpha)
    : pairs_(pairs),
      shape_(shape),
      alpha_(alpha),
      ends_(segmentEnds(shape)),
      lastS_(std::sqrt(nothing) / shape.radius),
      sums_(pairs.pairCount()) {
    table_.ofGroups.assign(pairs.pairCount() * segmentPairs, 0);
}

void ResponseIntegral::advanceTo(double hours) {
    const double s = 1 / std::sqrt(4 * alpha_ * hours);
    if (!(s < lastS_)) return;
    addBetween(s, lastS_);
    lastS_ = s;
}

void ResponseIntegral::addBetween(double fromS, double toS) {
    const double from = std::log(fromS), to = std::log(toS);
    const auto node = [this](double logarithm, double weight) {
        addNode(std::exp(logarithm), weight);
    };
    if (to - from <= narrowPanel) return visitNodes(twoNodes, from, to, node);
    if (to - from <= middlePanel) return visitNodes(threeNodes, from, to, node);
    const auto panels = static_cast<int>(std::ceil((to - from) / widestPanel));
    const double width = (to - from) / panels;
    for (int i = 0; i < panels; ++i)
        visitNodes(fourNodes, from + i * width, from + (i + 1) * width, node);
}

/// Over ln s the integrand has one power of s less in its denominator.
void ResponseIntegral::addNode(double s, double weight) {
    pairs_.sumsAt(s, shape_.radius, sums_.data());
    findDepthFactors(s);
    const double scale = 0.5 * weight / s;
    const double ofItself = scale * std::exp(-shape_.radius * shape_.radius * s * s);
    double* table = table_.ofGroups.data();
    for (const double sum : sums_) {
        const double factor = scale * sum;
        for (std::size_t i = 0; i < segmentPairs; ++i) table[i] += factor * depthFactor_[i];
        table += segmentPairs;
    }
    for (std::size_t i = 0; i < segmentPairs; ++i)
        table_.ofOneBore[i] += ofItself * depthFactor_[i];
    table_.ofEvenBore += ofItself * evenFactor_ / shape_.depth;
}

/// The eight terms of each pair of segments, four real and four of the image, are differences of
/// one figure for each pair of ends.
void ResponseIntegral::findDepthFactors(double s) {
    constexpr std::size_t endCount = segmentCount + 1;
    std::array<std::array<double, endCount>, endCount> m{};
    for (std::size_t i = 0; i < endCount; ++i)
        for (std::size_t j = i; j < endCount; ++j)
            m[i][j] = m[j][i] =
                integralOfErf((ends_[j] - ends_[i]) * s) + integralOfErf((ends_[j] + ends_[i]) * s);
    for (std::size_t v = 0; v < segmentCount; ++v)
        for (std::size_t u = 0; u <= v; ++u)
            depthFactor_[segmentPair(u, v)] =
                (m[u][v + 1] - m[u][v]) + (m[u + 1][v] - m[u + 1][v + 1]);
    evenFactor_ =
        (m[0][endCount - 1] - m[0][0]) + (m[0][endCount - 1] - m[endCount - 1][endCount - 1]);
}

}  // namespace varnholt::secondOpinion
