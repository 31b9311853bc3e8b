// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace varnholt::secondOpinion {

/// The exact cylinder source at its own wall, G(Fo), Fo = alpha t/rb^2: the wall's temperature
/// under even heat is G over heat per length over k.
/// Source: Carslaw and Jaeger, "Conduction of Heat in Solids" (1959), section 13.5.
/// Equation: G = 2/pi^3 integral from 0 to infinity of (1 - exp(-b^2 Fo))/(b^3 (J1^2(b) + Y1^2(b)))
/// db.
class CylinderSource {
 public:
    CylinderSource();

    /// @param fourier  above 0
    double wall(double fourier) const;
    /// By how much the g-function of a cylinder lies above a line's: 2 pi G(Fo) - E1(1/(4 Fo))/2.
    double overLine(double fourier) const;

 private:
    struct Node {
        double square, weight;
    };
    std::vector<Node> nodes_;
};

}  // namespace varnholt::secondOpinion
