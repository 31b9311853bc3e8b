// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace varnholt::secondOpinion {

struct QuadratureNode {
    double place;  ///< in -1 to 1
    double weight;
};

/// Nodes of the Gauss-Legendre rule of four points.
/// Source: Abramowitz and Stegun, "Handbook of Mathematical Functions" (1964), table 25.4.
constexpr std::array<QuadratureNode, 4> fourNodes{{{-0.861136311594053, 0.347854845137454},
                                                   {-0.339981043584856, 0.652145154862546},
                                                   {0.339981043584856, 0.652145154862546},
                                                   {0.861136311594053, 0.347854845137454}}};
/// The same of two and three points.
constexpr std::array<QuadratureNode, 2> twoNodes{{{-0.577350269189626, 1}, {0.577350269189626, 1}}};
constexpr std::array<QuadratureNode, 3> threeNodes{{{-0.774596669241483, 0.555555555555556},
                                                    {0, 0.888888888888889},
                                                    {0.774596669241483, 0.555555555555556}}};

/// Calls visit(x, weight) for the nodes between two places, in ascending order, so that the sum of
/// weight f(x) is the integral of f.
template <class Rule, class Visit>
void visitNodes(const Rule& rule, double from, double to, const Visit& visit) {
    const double half = (to - from) / 2, middle = (to + from) / 2;
    for (const QuadratureNode& node : rule) visit(middle + half * node.place, half * node.weight);
}

}  // namespace varnholt::secondOpinion
