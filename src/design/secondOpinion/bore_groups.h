// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "design/secondOpinion/bore_field.h"

namespace varnholt::secondOpinion {

constexpr std::size_t mostGroups = 6;

/// What stands below one place of the field.
struct BoreShape {
    double depth = 0;   ///< active length, ft
    double buried = 0;  ///< top of it below the ground surface, ft
    double radius = 0;  ///< ft

    friend bool operator==(const BoreShape&, const BoreShape&) = default;
};

/// Temperature that a bore's even heat causes at a parallel one in the long run, as a mean over its
/// depth and divided by heat per length over 2 pi k: the double integral of 1/d along both bores,
/// less that along the image above the ground, over twice the depth.
/// @param distance  between the axes, ft; the radius for a bore and itself
double steadyResponse(double distance, double depth, double buried);

/// Bores that are taken to give the same heat.
struct BoreGroups {
    std::vector<std::size_t> ofClass;  ///< group of each class of the field's bores
    std::vector<double> size;          ///< bores of each group

    std::size_t count() const { return size.size(); }
};

/// Optimal classification in one dimension: cuts values into groups of neighbours so that the sum
/// of squared differences from the groups' means is least.
/// Source: Fisher, "On Grouping for Maximum Homogeneity" (J. Am. Stat. Ass. 53, 1958).
/// @param values   ascending
/// @param weights  how often each value stands
/// @param most     groups
/// @return the group of each value, counted from 0 upward
std::vector<std::size_t> classifyValues(const std::vector<double>& values,
                                        const std::vector<double>& weights, std::size_t most);

/// Finds the groups of a field by the heat that each bore gives in the steady state when the walls
/// of all have one temperature, each bore being one source of even heat.
/// Source: the idea of groups is that of Prieto and Cimmino (J. Building Perf. Simulation 14(4),
/// 2021), who form them by temperature.
class BoreGrouping {
 public:
    /// @param field  measured; outlives this object
    /// @param most   groups
    BoreGrouping(const BoreField& field, const BoreShape& shape, std::size_t most);

    /// Makes one more step of the solution. True when the groups are known.
    bool step();
    const BoreGroups& groups() const { return groups_; }
    /// Heat of a bore of each class, over the temperature of the walls.
    const std::vector<double>& heats() const { return heats_; }

 private:
    std::vector<double> responsesTo(const std::vector<double>& heats) const;
    double product(const std::vector<double>& a, const std::vector<double>& b) const;
    void cutIntoGroups();

    const BoreField& field_;
    std::size_t most_;
    std::vector<double> response_;  ///< by place in the field's squares
    // Of the method of conjugate gradients.
    std::vector<double> heats_, residual_, direction_;
    double residualSquare_ = 0, firstSquare_ = 0;
    std::size_t steps_ = 0;
    BoreGroups groups_;
};

}  // namespace varnholt::secondOpinion
