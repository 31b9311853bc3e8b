// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "design/secondOpinion/bore_groups.h"
#include "design/secondOpinion/cubic_spline.h"
#include "design/secondOpinion/heat_march.h"
#include "design/secondOpinion/line_source_response.h"

namespace varnholt::secondOpinion {

/// The g-function of a field, from one hour to the last time it was asked for: temperature of the
/// bores' walls, the same for all, under constant heat: Tb = Tg - q g/(2 pi k), q per length.
/// Source: Eskilson, "Thermal Analysis of Heat Extraction Boreholes" (Lund, 1987).
class GFunction {
 public:
    GFunction() = default;
    /// @param logarithms  of hours
    GFunction(std::vector<double> logarithms, std::vector<double> g, std::vector<double> ofOneBore,
              std::size_t groupCount);

    double at(double hours) const;
    /// Of one bore of the field standing alone.
    double ofOneBoreAt(double hours) const;
    /// Groups that the bores were taken in.
    std::size_t groupCount() const { return groupCount_; }
    /// Every figure is a number.
    bool isFinite() const;

 private:
    CubicSpline ofField_, ofOneBore_;
    std::size_t groupCount_ = 0;
};

/// How finely a g-function is computed.
struct GFunctionManner {
    std::size_t steps = 40;  ///< even
    std::size_t groups = mostGroups;
};

/// A g-function on the way. Finite line sources with eight segments a bore and their images above
/// the ground, in groups of bores that give the same heat.
///
/// The heat is even until the Fourier number of the bores, alpha t/rb^2, is 0.1: bores do not feel
/// each other yet, and g is the plain integral of one of them. From there a march solves for the
/// heat, in steps of the logarithm of time that are shorter the later they are. Its error is of
/// first order in the step, so that of half as many steps is as large again and is taken away.
class GFunctionWork {
 public:
    /// @param field     measured; outlives this object
    /// @param alpha     diffusivity, ft^2/hr
    /// @param lastHour  to which the function reaches
    GFunctionWork(const BoreField& field, const BoreShape& shape, double alpha, double lastHour,
                  const GFunctionManner& manner = {});
    GFunctionWork(const GFunctionWork&) = delete;
    GFunctionWork& operator=(const GFunctionWork&) = delete;

    /// Works for some milliseconds at most. True when the function is there.
    bool step();
    const GFunction& result() const { return result_; }

 private:
    /// One bore or the field, marched in all the steps and in half as many.
    struct Marched {
        std::vector<SegmentResponses> responses;
        std::optional<HeatMarch> fine, coarse;
        std::vector<double> g, coarseG;
    };

    void setTimes();
    void startIntegral();
    void startMarch(Marched& marched, const std::vector<double>& groupSize);
    void integrate();
    void march();
    void marchOne(Marched& marched);
    std::vector<double> extrapolated(const Marched& marched) const;
    void finish();

    const BoreField& field_;
    BoreShape shape_;
    double alpha_, lastHour_;
    std::size_t steps_;
    std::vector<double> evenTimes_, times_;  ///< before the march, and of it

    BoreGrouping grouping_;
    std::optional<PairCounts> pairs_;
    std::optional<ResponseIntegral> integral_;
    std::size_t nextTime_ = 0, nextStep_ = 0;
    std::vector<double> evenG_;
    Marched ofField_, ofOneBore_;
    GFunction result_;
    bool done_ = false;
};

/// The whole g-function at once.
GFunction gFunctionOf(const std::vector<BorePosition>& bores, const BoreShape& shape, double alpha,
                      double lastHour, const GFunctionManner& manner = {});

}  // namespace varnholt::secondOpinion
