// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/cylinder_source.h"

#include <cmath>
#include <numbers>

#include "design/secondOpinion/gauss_legendre.h"
#include "design/secondOpinion/line_source_response.h"

namespace varnholt::secondOpinion {
namespace {

using std::numbers::pi;

// Where the integral is taken, b as a logarithm. Below, J1^2 + Y1^2 is (2/(pi b))^2 and Fo b^2 next
// to nothing; above, exp(-b^2 Fo) is nothing and J1^2 + Y1^2 is 2/(pi b) (1 + 3/(8 b^2)).
constexpr double firstLogarithm = -16, lastLogarithm = 4;
constexpr int panels = 40;
// Where a cylinder is a line to within 5E-7, and the integral's beginning starts to matter.
constexpr double lateFourier = 1.0e7;

}  // namespace

CylinderSource::CylinderSource() {
    for (int i = 0; i < panels; ++i) {
        constexpr double width = (lastLogarithm - firstLogarithm) / panels;
        const double from = firstLogarithm + i * width;
        visitNodes(fourNodes, from, from + width, [this](double logarithm, double weight) {
            const double b = std::exp(logarithm);
            const double j = std::cyl_bessel_j(1.0, b), y = std::cyl_neumann(1.0, b);
            nodes_.push_back({b * b, weight / (b * b * (j * j + y * y))});
        });
    }
}

double CylinderSource::wall(double fourier) const {
    if (fourier > lateFourier) return exponentialIntegral(1 / (4 * fourier)) / (4 * pi);
    double sum = 0;
    for (const Node& node : nodes_) sum -= node.weight * std::expm1(-node.square * fourier);
    const double last = std::exp(lastLogarithm);
    const double rest = (1 / last - 1 / (8 * last * last * last)) / (pi * pi);
    return 2 / (pi * pi * pi) * sum + rest;
}

double CylinderSource::overLine(double fourier) const {
    if (fourier > lateFourier) return 0;
    return 2 * pi * wall(fourier) - exponentialIntegral(1 / (4 * fourier)) / 2;
}

}  // namespace varnholt::secondOpinion
