// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/units.h"
#include "catalogue/fitting/pump_fit.h"
#include "catalogue/fitting/test_points.h"

namespace varnholt {

// What the pictures beside the editor's tables show, in the units shown. They are drawn elsewhere.

struct FitPoint {
    double x = 0;  ///< degF, degC, or percent of nominal
    double y = 0;  ///< MBtu/hr, kW, or a factor

    friend bool operator==(const FitPoint&, const FitPoint&) = default;
};

/// One fitted curve over the points that were measured.
struct CurvePicture {
    std::vector<FitPoint> line, measured;
    /// The same at the second source flow; empty where it has no data and no factor of older ones.
    std::vector<FitPoint> secondLine, secondMeasured;
    std::optional<FitPoint> operating;  ///< where the model is tried
    bool stale = false;                 ///< fitted from other data than these
    bool secondStale = false;           ///< the second line's factor is
    std::optional<double> turn;         ///< where the curve turns around

    /// Whether a line of it is: where the whole curve is, its second line is left out.
    bool isOlder() const { return stale || secondStale; }

    friend bool operator==(const CurvePicture&, const CurvePicture&) = default;
};

/// Capacity and power of a model. A mode that a picture is not about has no points.
struct FitPicture {
    ByMode<CurvePicture> capacity, power;
    bool fromZero = true;  ///< the axes of the values begin there

    bool empty() const;
    friend bool operator==(const FitPicture&, const FitPicture&) = default;
};

/// Curves of a model and the words that stand at them.
struct FitCurvesPicture {
    FitPicture curves;
    std::string across, capacity, power;  ///< titles of the axes
    int emptyText = 0;                    ///< what is said where there is nothing to draw

    friend bool operator==(const FitCurvesPicture&, const FitCurvesPicture&) = default;
};

/// Rating points and curves over the entering water temperature.
FitPicture ratingPicture(const pump& model, const std::vector<Mode>& shown, UnitSystem units);
/// Rows and curves of a kind of correction.
FitPicture correctionPicture(const pump& model, CorrectionKind kind, UnitSystem units);
/// The model's performance over the source's temperature, all else being as it is tried, and the
/// point at which it is tried.
FitPicture testPicture(const pump& model, const TestInputs& inputs, UnitSystem units);

}  // namespace varnholt
