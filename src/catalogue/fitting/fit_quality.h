// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include "catalogue/fitting/pump_fit.h"

namespace varnholt {

// How well a model's curves meet its tables. All of it is for the eye: nothing is stored.

/// Where a curve is farthest from its points.
struct FitDeviation {
    double percent = 0;  ///< of the measured value
    double x = 0;        ///< degF or percent of nominal
};

/// The points that a fit takes: the three of a rating, or the leading rows of a correction, as many
/// as are filled in.
FitPoints usedPoints(const pump& model, Mode mode, FittedQuantity quantity);
FitPoints usedRows(const pump& model, CorrectionKind kind, Mode mode, FittedQuantity quantity);

double valueOf(const Polynomial& curve, Mode mode, double x);

/// The greatest deviation of the curve from points that have a value; nothing where none has.
std::optional<FitDeviation> greatestDeviation(const Polynomial& curve, Mode mode,
                                              const FitPoints& points);

/// The first place between the outermost points where the curve turns around, by more than a ten
/// thousandth of its greatest value there. Measured data seldom do.
std::optional<double> turningPoint(const Polynomial& curve, Mode mode, const FitPoints& points);

/// What a model's curves are judged by.
struct StaleCurves {
    ByMode<bool> rating{};
    std::array<bool, 2> correction{};  ///< by CorrectionKind

    bool any() const;
    friend bool operator==(const StaleCurves&, const StaleCurves&) = default;
};

/// Which curves another fit of the same data would change by more than a millionth: they were
/// fitted from other data. A rating is stale with its flow factors too. Data that cannot be fitted
/// make nothing stale, and nor does what nothing reads: corrections by flow of a model without a
/// nominal flow, and flow factors of one without a first source flow.
StaleCurves staleCurves(const pump& model);

/// Whether one curve is stale, so that it can be drawn as such.
bool isRatingStale(const pump& model, Mode mode, FittedQuantity quantity);
/// Whether the factor is, by which the curve at the second source flow follows.
bool isFlowFactorStale(const pump& model, Mode mode, FittedQuantity quantity);
bool isCorrectionStale(const pump& model, CorrectionKind kind, Mode mode, FittedQuantity quantity);

/// COP of a measured point; nothing while capacity or power is missing.
std::optional<double> coefficientOfPerformance(const HeatMode& point);
/// Whether a heat pump may have that COP: 1 to 12. Others come of kilowatts typed for MBtu/hr, or
/// watts for kilowatts.
bool isLikely(double COP);

}  // namespace varnholt
