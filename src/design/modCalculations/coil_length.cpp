// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/modCalculations/coil_length.h"

#include <algorithm>
#include <array>

#include "basis/run_time_error.h"
#include "basis/units.h"
#include "design/modCalculations/numbers.h"

namespace varnholt::modCalculations {

namespace {

constexpr double piOfCoils = 3.14159265;  // the method's digits

using Grid = std::array<double, 4>;
using Cubic = std::array<double, 4>;

constexpr Grid pitches{leastPitch, 18, 36, largestPitch};
constexpr Grid partLoads{30, 50, 70, 100};

// clang-format off
constexpr std::array<Cubic, 4> cubicsOfPitches{{
    { 60.04141,  0.02241, -0.000387,  0.0000254},
    { 76.47498,  0.08024,  0.001039, -0.0000064},
    {107.58641, -0.06748,  0.00262,  -0.0000159},
    {129,        0,        0,         0},
}};
constexpr std::array<Cubic, 4> cubicsOfPartLoads{{
    {31.99116,  3.34444, -0.044088,  0.0002732},
    {27.38602,  4.30166, -0.080464,  0.0006438},
    {48.00898,  2.47271, -0.023238,  0.0000876},
    {87.39849, -1.0219,   0.073747, -0.0007542},
}};
// clang-format on

double valueAt(const Cubic& c, double x) {
    return c[0] + c[1] * x + c[2] * powerOf(x, 2) + c[3] * powerOf(x, 3);
}

/// Lower end of the first interval of the grid that holds x.
std::size_t intervalOf(const Grid& grid, double x) {
    std::size_t lower = 0;
    while (lower + 2 < grid.size() && x > grid[lower + 1]) ++lower;
    return lower;
}

/// Straight line between the cubics of the two grid points around `place`, both taken at x.
double between(const Grid& grid, const std::array<Cubic, 4>& cubics, double place, double x) {
    const std::size_t lower = intervalOf(grid, place);
    const double low = valueAt(cubics[lower], x);
    const double high = valueAt(cubics[lower + 1], x);
    return (place - grid[lower]) * (high - low) / (grid[lower + 1] - grid[lower]) + low;
}

}  // namespace

double coilLengthFor(double pitch, double partLoad) {
    const double p = std::clamp(pitch, pitches.front(), pitches.back());
    const double f = std::clamp(partLoad, partLoads.front(), partLoads.back());
    return (between(partLoads, cubicsOfPartLoads, f, p) + between(pitches, cubicsOfPitches, p, f)) /
           2.0;
}

double coilPipeLength(double trenchLength, double pitch, double diameter) {
    if (trenchLength <= 0) return 0;
    const double loops = divide(trenchLength - diameter / inchesPerFoot, pitch / inchesPerFoot);
    return finite(loops * (diameter * piOfCoils / inchesPerFoot) +
                  (loops * 2 * pitch) / inchesPerFoot + diameter * piOfCoils / 24.0 +
                  diameter / 12.0);
}

}  // namespace varnholt::modCalculations
