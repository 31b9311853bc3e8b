// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// How far the figures of a fitted pump may lie from those worked by hand: what a few roundings of
/// numbers of up to some hundreds leave.
inline constexpr double roundingOfFit = 1e-12;

}  // namespace varnholt
