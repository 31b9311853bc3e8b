// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varnholt {

/// Dimensions that there are direction numbers for.
constexpr std::size_t sobolDimensions = 20;

/// Points of Sobol' in the unit cube: they fill it more evenly than random ones do, so that means
/// and shares need fewer of them.
///
/// A coordinate is 32 bits, the first bit weighing one half. All points from the first on are used:
/// to drop the first one spoils their evenness (Owen, "On Dropping the First Sobol' Point", 2022).
/// Source: Joe and Kuo, "Constructing Sobol Sequences with Better Two-Dimensional Projections",
/// SIAM J. Sci. Comput. 30 (2008), with the direction numbers that the authors publish.
///
/// @param dimension  0 to 19
/// @param count      a power of 2, of which the points are the whole block; in Gray code order
std::vector<std::uint32_t> sobolCoordinates(std::size_t dimension, std::size_t count);

/// Owen's nested uniform scrambling of one coordinate: every bit is turned by a hash of the bits
/// above it, so the points stay as even as they were and no coordinate is exactly 0.
/// Source: Laine and Karras, "Stratified Sampling for Stochastic Transparency" (2011), as set out
/// by Burley, "Practical Hash-based Owen Scrambling", J. Comput. Graph. Tech. 9 (2020).
/// @param seed  another one makes an independent scrambling
std::uint32_t owenScrambled(std::uint32_t coordinate, std::uint32_t seed);

/// The middle of the interval that a coordinate stands for, above 0 and below 1.
double unitOf(std::uint32_t coordinate);

/// Quantile of the standard normal distribution, right to about 1e-16 of itself.
/// Source: Wichura, "Algorithm AS 241: The Percentage Points of the Normal Distribution", Applied
/// Statistics 37 (1988), PPND16.
/// @param share  above 0 and below 1
double normalQuantile(double share);

}  // namespace varnholt
