// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <list>
#include <memory>
#include <optional>
#include <vector>

#include "design/secondOpinion/bore_field.h"
#include "design/secondOpinion/g_function.h"

namespace varnholt::secondOpinion {

/// What a field's g-functions depend on besides the depth of its bores.
struct FieldSite {
    std::vector<BorePosition> bores;
    double radius = 0;    ///< of the bores, ft
    double alpha = 0;     ///< diffusivity, ft^2/hr
    double buried = 0;    ///< tops of the bores below the ground surface, ft
    double lastHour = 0;  ///< to which the functions reach

    friend bool operator==(const FieldSite&, const FieldSite&) = default;
};

constexpr double hoursPerMonth = 730;

// G-functions are computed for certain depths, the rungs of a ladder, in equal steps of their
// logarithm: rung 1 of 10 ft, below which no function is taken, rung 25 of 2,000 ft.
constexpr std::size_t rungOfLeastDepth = 1;
constexpr std::size_t rungOfGreatestDepth = 25;
constexpr std::size_t lastRung = 49;

/// ft
double depthOfRung(std::size_t rung);
/// The last rung that is no deeper, from rungOfLeastDepth to lastRung.
std::size_t rungAbove(double depth);

/// A g-function with its values after whole months.
struct RungFunction {
    GFunction g;
    std::vector<double> monthly;  ///< element n after n + 1 months
};

/// The g-function of a field between the rungs: the cubic through the four nearest in the logarithm
/// of the depth. It lies within a few 1E-5 of the function of the depth itself.
class DepthFunction {
 public:
    using Rungs = std::array<std::shared_ptr<const RungFunction>, 4>;

    /// @param first  of four rungs that follow each other
    DepthFunction(Rungs rungs, std::size_t first, double depth);
    /// The function of a rung itself.
    DepthFunction(const std::shared_ptr<const RungFunction>& function, std::size_t rung)
        : depth_(depthOfRung(rung)),
          rungs_{function, function, function, function},
          weights_{1, 0, 0, 0} {}

    double depth() const { return depth_; }
    double at(double hours) const;
    double ofOneBoreAt(double hours) const;
    /// After so many months, 1 or more.
    double afterMonths(std::size_t months) const;
    std::size_t groupCount() const;

 private:
    double depth_;
    Rungs rungs_;
    std::array<double, 4> weights_{};
    std::size_t nearest_ = 0;
};

/// The g-functions of the last sixteen depths of fields, and the one that is being computed.
class GFunctionMemory {
 public:
    /// The field that is asked for from now on. What has not been used for sixteen depths goes.
    void select(const FieldSite& site);

    /// The function of a rung; none when it has to be computed first, by computeMore.
    std::shared_ptr<const RungFunction> atRung(std::size_t rung);
    /// The function at a depth, which counts as 10 ft at least; none when rungs are missing.
    std::optional<DepthFunction> atDepth(double depth);

    bool isComputing() const { return wanted_.has_value(); }
    /// Works on what is missing for some milliseconds at most.
    void computeMore();

 private:
    struct Kept {
        std::shared_ptr<const FieldSite> site;
        std::size_t rung;
        std::shared_ptr<const RungFunction> function;
    };

    void want(std::size_t rung);
    void keep(const GFunction& g);

    std::shared_ptr<const FieldSite> site_;
    std::list<Kept> kept_;  ///< the last used first
    std::unique_ptr<BoreField> field_;
    std::optional<std::size_t> wanted_;
    std::unique_ptr<GFunctionWork> work_;
};

}  // namespace varnholt::secondOpinion
