// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace varnholt {

/// One point of a curve, in the units shown.
struct CurvePoint {
    double across = 0, up = 0;

    friend bool operator==(const CurvePoint&, const CurvePoint&) = default;
};

using Curve = std::vector<CurvePoint>;

}  // namespace varnholt
