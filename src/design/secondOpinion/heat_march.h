// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "design/secondOpinion/line_source_response.h"
#include "design/secondOpinion/symmetric_system.h"

namespace varnholt::secondOpinion {

/// Responses of all segments of all groups to each other at one time: for each pair of groups
/// a <= b a square of segments.
using SegmentResponses = std::vector<double>;

/// From the symmetric squares of a ResponseTable to full ones.
/// @param packed  [pair of groups][segmentPair]
SegmentResponses segmentResponses(const double* packed, std::size_t pairs);

/// A march through time in which a field gives one unit of heat per length of bore while all walls
/// have one temperature, which is then its g-function. In each step the heat of each segment is
/// solved for; the heat of the past is gathered anew in the steps of the table's times, counted
/// back from the present. Between two times of the table the responses are a straight line, so that
/// heat that does not change is gathered without error.
/// Source: Cimmino and Bernier, Int. J. Heat Mass Transfer 70 (2014).
class HeatMarch {
 public:
    /// @param groupSize  bores of each group
    /// @param ends       of the segments, ft
    /// @param times      hr, ascending
    /// @param responses  at each of the times; both outlive this object
    /// @param stride     1 to step to each of the times, 2 to every second one from the first on
    HeatMarch(const std::vector<double>& groupSize,
              const std::array<double, segmentCount + 1>& ends, const std::vector<double>& times,
              const std::vector<SegmentResponses>& responses, std::size_t stride);

    /// Goes on to the next time.
    /// @return temperature of the walls, over heat per length over 2 pi k; NaN when the responses
    ///         are those of no soil
    double advance();

 private:
    std::size_t unknowns() const { return weights_.size(); }
    /// Step k ends at this time; step 0 begins at 0.
    double endOf(std::size_t k) const { return times_[k * stride_]; }
    double beginOf(std::size_t k) const { return k == 0 ? 0 : endOf(k - 1); }
    const SegmentResponses* before(std::size_t k) const {
        return k == 0 ? nullptr : &responses_[(k - 1) * stride_];
    }
    const SegmentResponses& at(std::size_t k) const { return responses_[k * stride_]; }

    void setSystem(double duration);
    void gatherPast(double hours);
    void addIncrease(std::size_t k);
    void heatUntil(double hours, std::size_t& place, std::vector<double>& heat) const;

    const std::vector<double>& times_;
    const std::vector<SegmentResponses>& responses_;
    std::size_t stride_, groups_;
    std::vector<double> weights_;  ///< bores times length of each segment of each group, ft
    double totalLength_ = 0;
    SymmetricSystem system_;
    std::size_t done_ = 0;                    ///< steps
    std::vector<std::vector<double>> given_;  ///< heat up to the beginning of each step
    // Of one step.
    SegmentResponses step_;
    std::vector<double> past_, unit_, mean_, earlier_, later_;
};

}  // namespace varnholt::secondOpinion
