// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/sobol_points.h"

#include <bit>
#include <cmath>

namespace varnholt {
namespace {

constexpr std::size_t bits = 32;
using Directions = std::array<std::uint32_t, bits>;

/// A primitive polynomial and the first direction numbers of a dimension.
struct Dimension {
    unsigned degree;                     ///< s
    unsigned coefficients;               ///< a, the polynomial's inner ones as bits
    std::array<std::uint32_t, 7> first;  ///< m, of which there are `degree`
};

// Joe and Kuo, new-joe-kuo-6.21201, lines of dimensions 2 to 20. Dimension 1 has no polynomial.
// clang-format off
constexpr std::array<Dimension, sobolDimensions - 1> dimensions{{
    {1,  0, {1}},
    {2,  1, {1, 3}},
    {3,  1, {1, 3, 1}},
    {3,  2, {1, 1, 1}},
    {4,  1, {1, 1, 3, 3}},
    {4,  4, {1, 3, 5, 13}},
    {5,  2, {1, 1, 5, 5, 17}},
    {5,  4, {1, 1, 5, 5, 5}},
    {5,  7, {1, 1, 7, 11, 19}},
    {5, 11, {1, 1, 5, 1, 1}},
    {5, 13, {1, 1, 1, 3, 11}},
    {5, 14, {1, 3, 5, 5, 31}},
    {6,  1, {1, 3, 3, 9, 7, 49}},
    {6, 13, {1, 1, 1, 15, 21, 21}},
    {6, 16, {1, 3, 1, 13, 27, 49}},
    {6, 19, {1, 1, 1, 15, 7, 5}},
    {6, 22, {1, 3, 1, 15, 13, 25}},
    {6, 25, {1, 1, 5, 5, 19, 61}},
    {7,  1, {1, 3, 7, 11, 23, 15, 103}},
}};
// clang-format on

/// The recurrence of Bratley and Fox (1988) for the numbers behind the first ones.
std::uint32_t nextDirection(const Directions& v, std::size_t k, const Dimension& line) {
    const std::size_t s = line.degree;
    std::uint32_t next = v[k - s] ^ (v[k - s] >> s);
    for (std::size_t j = 1; j < s; ++j)
        if ((line.coefficients >> (s - 1 - j)) & 1) next ^= v[k - j];
    return next;
}

Directions directionsOf(std::size_t dimension) {
    Directions v{};
    if (dimension == 0) {
        for (std::size_t k = 0; k < bits; ++k) v[k] = std::uint32_t{1} << (bits - 1 - k);
        return v;
    }
    const Dimension& line = dimensions.at(dimension - 1);
    for (std::size_t k = 0; k < bits; ++k)
        v[k] = k < line.degree ? line.first[k] << (bits - 1 - k) : nextDirection(v, k, line);
    return v;
}

std::uint32_t reversed(std::uint32_t x) {
    x = ((x >> 1) & 0x55555555u) | ((x & 0x55555555u) << 1);
    x = ((x >> 2) & 0x33333333u) | ((x & 0x33333333u) << 2);
    x = ((x >> 4) & 0x0f0f0f0fu) | ((x & 0x0f0f0f0fu) << 4);
    x = ((x >> 8) & 0x00ff00ffu) | ((x & 0x00ff00ffu) << 8);
    return (x >> 16) | (x << 16);
}

/// Every bit depends on the seed and on the bits below it alone.
std::uint32_t laineKarrasHash(std::uint32_t x, std::uint32_t seed) {
    x += seed;
    x ^= x * 0x6c50b47cu;
    x ^= x * 0xb82f1e52u;
    x ^= x * 0xc7afe638u;
    x ^= x * 0x8d22f6e6u;
    return x;
}

/// Ratio of two polynomials of one degree, lowest coefficients first.
template <std::size_t n>
double ratio(const std::array<double, n>& above, const std::array<double, n>& below, double x) {
    double numerator = 0, denominator = 0;
    for (std::size_t i = n; i-- > 0;) {
        numerator = numerator * x + above[i];
        denominator = denominator * x + below[i];
    }
    return numerator / denominator;
}

// The coefficients of PPND16: centre, flanks, tails.
constexpr std::array<double, 8> centreAbove{3.3871328727963666080,   1.3314166789178437745e2,
                                            1.9715909503065514427e3, 1.3731693765509461125e4,
                                            4.5921953931549871457e4, 6.7265770927008700853e4,
                                            3.3430575583588128105e4, 2.5090809287301226727e3};
constexpr std::array<double, 8> centreBelow{1.0,
                                            4.2313330701600911252e1,
                                            6.8718700749205790830e2,
                                            5.3941960214247511077e3,
                                            2.1213794301586595867e4,
                                            3.9307895800092710610e4,
                                            2.8729085735721942674e4,
                                            5.2264952788528545610e3};
constexpr std::array<double, 8> flankAbove{1.42343711074968357734,    4.63033784615654529590,
                                           5.76949722146069140550,    3.64784832476320460504,
                                           1.27045825245236838258,    2.41780725177450611770e-1,
                                           2.27238449892691845833e-2, 7.74545014278341407640e-4};
constexpr std::array<double, 8> flankBelow{1.0,
                                           2.05319162663775882187,
                                           1.67638483018380384940,
                                           6.89767334985100004550e-1,
                                           1.48103976427480074590e-1,
                                           1.51986665636164571966e-2,
                                           5.47593808499534494600e-4,
                                           1.05075007164441684324e-9};
constexpr std::array<double, 8> tailAbove{6.65790464350110377720,    5.46378491116411436990,
                                          1.78482653991729133580,    2.96560571828504891230e-1,
                                          2.65321895265761230930e-2, 1.24266094738807843860e-3,
                                          2.71155556874348757815e-5, 2.01033439929228813265e-7};
constexpr std::array<double, 8> tailBelow{1.0,
                                          5.99832206555887937690e-1,
                                          1.36929880922735805310e-1,
                                          1.48753612908506148525e-2,
                                          7.86869131145613259100e-4,
                                          1.84631831751005468180e-5,
                                          1.42151175831644588870e-7,
                                          2.04426310338993978564e-15};

}  // namespace

std::vector<std::uint32_t> sobolCoordinates(std::size_t dimension, std::size_t count) {
    const Directions v = directionsOf(dimension);
    std::vector<std::uint32_t> coordinates(count);
    for (std::size_t i = 1; i < count; ++i)
        coordinates[i] = coordinates[i - 1] ^ v[static_cast<std::size_t>(std::countr_zero(i))];
    return coordinates;
}

std::uint32_t owenScrambled(std::uint32_t coordinate, std::uint32_t seed) {
    return reversed(laineKarrasHash(reversed(coordinate), seed));
}

double unitOf(std::uint32_t coordinate) { return (coordinate + 0.5) * 0x1p-32; }

double normalQuantile(double share) {
    const double q = share - 0.5;
    if (std::abs(q) <= 0.425) return q * ratio(centreAbove, centreBelow, 0.180625 - q * q);
    const double r = std::sqrt(-std::log(q < 0 ? share : 1 - share));
    const double quantile =
        r <= 5 ? ratio(flankAbove, flankBelow, r - 1.6) : ratio(tailAbove, tailBelow, r - 5);
    return q < 0 ? -quantile : quantile;
}

}  // namespace varnholt
