// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <span>

#include "catalogue/fitting/polynomial_fit.h"
#include "catalogue/pump.h"

namespace varnholt {

// From a model's measured tables to its curves. Each function leaves the model as it was when it
// throws.

/// Rows of the measured table that hold the points of a mode.
constexpr std::size_t ratingPoints = 3;
constexpr ByMode<std::size_t> firstRatingRow{3, 0};

/// First index of `flowCf`, and what a curve tells.
enum FittedQuantity : std::size_t { fittedCapacity = 0, fittedPower = 1 };
constexpr std::array<FittedQuantity, 2> fittedQuantities{fittedCapacity, fittedPower};

/// What a correction depends on: the load-side entering temperature, degF, or the load-side flow in
/// percent of nominal.
enum CorrectionKind : std::size_t { byTemperature = 0, byFlow = 1 };

/// Points that a curve is fitted to.
struct FitPoints {
    std::array<double, mostFitPoints> x{}, y{};
    std::size_t count = 0;

    std::span<const double> xs() const { return {x.data(), count}; }
    std::span<const double> ys() const { return {y.data(), count}; }
};

/// Where points lie.
struct FitRange {
    double lowest = 0, highest = 0;
};
/// From the lowest place to the highest; 0 to 0 without points.
FitRange rangeOf(const FitPoints& points);

/// The three points of a mode at one of the source flows: entering water temperature, degF, and
/// capacity, MBtu/hr, or power, kW.
FitPoints ratingPointsOf(const pump& model, Mode mode, FittedQuantity quantity,
                         std::size_t flow = 0);
/// The five rows of a correction: temperature, degF, or percent, and factor.
FitPoints correctionRowsOf(const pump& model, CorrectionKind kind, Mode mode,
                           FittedQuantity quantity);

/// The curve of those terms that belongs to the points.
const Polynomial& ratingCurve(const coefficients& curves, FittedQuantity quantity);
Polynomial& ratingCurve(coefficients& curves, FittedQuantity quantity);
const Polynomial& correctionCurve(const coefficients& curves, CorrectionKind kind,
                                  FittedQuantity quantity);
Polynomial& correctionCurve(coefficients& curves, CorrectionKind kind, FittedQuantity quantity);

/// Fits capacity and power of one mode, parabolas through the three points at the first source
/// flow, and the mode's flow factors. No point is checked.
/// Throws as FitPolynomial, and RunTimeError 11 as flowFactor.
void fitRating(pump& model, Mode mode);

/// Value at the second source flow over the value at the first, the mean of the mode's three
/// points; 1 unless all three have a value at the second flow.
/// Throws RunTimeError 11 where the value at the first flow is zero beside one at the second.
double flowFactor(const pump& model, Mode mode, FittedQuantity quantity);
/// Sets both factors of the mode.
void ComputeCoolingFlowFactors(pump& model);
void ComputeHeatingFlowFactors(pump& model);

/// Fits the cubics of one kind: capacity and power in cooling, then in heating. A table without
/// four usable rows keeps its terms.
/// @param tellFault  called for the first row that is at fault, once for all four tables
/// @return           whether all four have been fitted
/// Throws as FitPolynomial.
bool fitCorrections(pump& model, CorrectionKind kind,
                    const std::function<void(FitFault)>& tellFault);

}  // namespace varnholt
