// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "design/secondOpinion/bore_field.h"
#include "design/secondOpinion/bore_groups.h"

namespace varnholt::secondOpinion {

constexpr std::size_t segmentCount = 8;

/// Depths below the ground surface at which the segments of a bore begin and end, ft. The end
/// segments have 2 percent of its length, and the segments grow geometrically to the middle. None
/// is shorter than half of the bore's radius, as long as eight such fit: lines that are far shorter
/// than the distance at which they are looked at cannot be told apart, and a march loses its hold.
/// Source: Cimmino and Cook, "G-functions for bore fields with mixed parallel and series
/// connections" (IGSHPA, 2022), for the unequal segments.
std::array<double, segmentCount + 1> segmentEnds(const BoreShape& shape);

/// The integral of the error function from 0 to x.
double integralOfErf(double x);

/// The exponential integral E1 of x > 0.
double exponentialIntegral(double x);

/// How often each distance stands between the bores of two groups.
class PairCounts {
 public:
    /// @param field  measured
    PairCounts(const BoreField& field, const BoreGroups& groups);

    std::size_t groupCount() const { return groupSize_.size(); }
    /// Pairs of groups a <= b.
    std::size_t pairCount() const { return groupCount() * (groupCount() + 1) / 2; }
    static std::size_t pairOf(std::size_t a, std::size_t b) { return b * (b + 1) / 2 + a; }
    const std::vector<double>& groupSize() const { return groupSize_; }

    /// The sum over all pairs of a bore in a and a bore in b of exp(-d^2 s^2), by pairOf(a, b);
    /// for a bore and itself d is the radius.
    /// @param sums  in: room for pairCount() figures
    void sumsAt(double s, double radius, double* sums) const;

 private:
    std::vector<double> groupSize_;
    std::vector<double> squares_;  ///< of distances, ascending, ft^2
    std::vector<double> counts_;   ///< [distance][pair]
};

/// Elements of a symmetric table of the segments of two bores.
constexpr std::size_t segmentPairs = segmentCount * (segmentCount + 1) / 2;
constexpr std::size_t segmentPair(std::size_t u, std::size_t v) {
    return u <= v ? v * (v + 1) / 2 + u : u * (u + 1) / 2 + v;
}

/// Responses of a field at one time, symmetric in every way: for a pair of groups a <= b and
/// segments u and v, the temperature at all segments u of a, weighted by number and length, that a
/// unit of heat per length from each segment v of b causes, over 1/(2 pi k).
struct ResponseTable {
    std::vector<double> ofGroups;  ///< [pairOf(a, b)][segmentPair(u, v)]
    std::array<double, segmentPairs> ofOneBore{};
    double ofEvenBore = 0;  ///< of one bore whose heat is even, whole bore to itself
};

/// The integral over finite line sources and their images, cumulated from time to time.
/// Equation: n_a l_u h_ab,uv(t) = 1/2 integral from 1/sqrt(4 alpha t) to infinity of
/// sum of exp(-d^2 s^2) I_uv(s)/s^2 ds. The integrand is a product of one factor of the places of
/// the bores and one of their depths.
/// Source: Claesson and Javed, ASHRAE Transactions 117(2) (2011); Cimmino and Bernier, Int. J. Heat
/// Mass Transfer 70 (2014), for segments.
class ResponseIntegral {
 public:
    /// @param pairs  outlives this object
    /// @param alpha  diffusivity, ft^2/hr
    ResponseIntegral(const PairCounts& pairs, const BoreShape& shape, double alpha);

    /// Goes on to a later time.
    /// @param hours  above the last ones
    void advanceTo(double hours);
    const ResponseTable& table() const { return table_; }

 private:
    void addBetween(double fromS, double toS);
    void addNode(double s, double weight);
    void findDepthFactors(double s);

    const PairCounts& pairs_;
    BoreShape shape_;
    double alpha_;
    std::array<double, segmentCount + 1> ends_{};
    double lastS_;  ///< lower bound of what has been integrated, 1/ft
    ResponseTable table_;
    // Of one node.
    std::vector<double> sums_;
    std::array<double, segmentPairs> depthFactor_{};
    double evenFactor_ = 0;
};

}  // namespace varnholt::secondOpinion
