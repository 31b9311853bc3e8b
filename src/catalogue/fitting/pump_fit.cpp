// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/pump_fit.h"

#include <algorithm>
#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

void store(Polynomial& curve, Mode mode, const FittedTerms& terms, std::size_t count) {
    for (std::size_t k = 0; k < count; ++k) curve[k][mode] = terms[k];
}

void setFlowFactors(pump& model, Mode mode) {
    // Both are known before either is set.
    const std::array<double, 2> factors{flowFactor(model, mode, fittedCapacity),
                                        flowFactor(model, mode, fittedPower)};
    for (const FittedQuantity quantity : fittedQuantities)
        model.flowCf[quantity][mode] = factors[quantity];
}

}  // namespace

FitRange rangeOf(const FitPoints& points) {
    if (points.count == 0) return {};
    const auto [lowest, highest] = std::minmax_element(points.xs().begin(), points.xs().end());
    return {*lowest, *highest};
}

FitPoints ratingPointsOf(const pump& model, Mode mode, FittedQuantity quantity, std::size_t flow) {
    FitPoints points;
    points.count = ratingPoints;
    for (std::size_t i = 0; i < ratingPoints; ++i) {
        const ewt& row = model.ewt[firstRatingRow[mode] + i];
        const HeatMode& measured = row.flowRate[flow].HeatMode[mode];
        points.x[i] = row.temperature;
        points.y[i] = quantity == fittedCapacity ? measured.capacity : measured.watts;
    }
    return points;
}

FitPoints correctionRowsOf(const pump& model, CorrectionKind kind, Mode mode,
                           FittedQuantity quantity) {
    FitPoints points;
    points.count = mostFitPoints;
    for (std::size_t r = 0; r < mostFitPoints; ++r) {
        const eat& temperature = model.eat[r];
        const elf& flow = model.elf[r];
        points.x[r] = kind == byTemperature ? temperature.temperature[mode] : flow.percent[mode];
        const auto& factors =
            quantity == fittedCapacity
                ? (kind == byTemperature ? temperature.capacityCorrection : flow.capacityCorrection)
                : (kind == byTemperature ? temperature.wattsCorrection : flow.wattsCorrection);
        points.y[r] = factors[mode];
    }
    return points;
}

const Polynomial& ratingCurve(const coefficients& curves, FittedQuantity quantity) {
    return quantity == fittedCapacity ? curves.capacity : curves.watts;
}

Polynomial& ratingCurve(coefficients& curves, FittedQuantity quantity) {
    return quantity == fittedCapacity ? curves.capacity : curves.watts;
}

const Polynomial& correctionCurve(const coefficients& curves, CorrectionKind kind,
                                  FittedQuantity quantity) {
    if (quantity == fittedCapacity)
        return kind == byTemperature ? curves.capacityCorrection : curves.capacityFlowCorrection;
    return kind == byTemperature ? curves.wattsCorrection : curves.wattsFlowCorrection;
}

Polynomial& correctionCurve(coefficients& curves, CorrectionKind kind, FittedQuantity quantity) {
    const coefficients& same = curves;
    return const_cast<Polynomial&>(correctionCurve(same, kind, quantity));
}

void fitRating(pump& model, Mode mode) {
    constexpr std::size_t degree = 2;
    pump fitted = model;
    for (const FittedQuantity quantity : fittedQuantities) {
        const FitPoints points = ratingPointsOf(model, mode, quantity);
        store(ratingCurve(fitted.coefficients, quantity), mode,
              FitPolynomial(points.xs(), points.ys(), degree), degree + 1);
    }
    setFlowFactors(fitted, mode);
    model = std::move(fitted);
}

double flowFactor(const pump& model, Mode mode, FittedQuantity quantity) {
    const FitPoints first = ratingPointsOf(model, mode, quantity, 0);
    const FitPoints second = ratingPointsOf(model, mode, quantity, 1);
    for (const double value : second.ys())
        if (value == 0) return 1;
    double sum = 0;
    for (std::size_t i = 0; i < ratingPoints; ++i) sum += divide(second.y[i], first.y[i]);
    return sum / 3.0;
}

void ComputeCoolingFlowFactors(pump& model) { setFlowFactors(model, cooling); }
void ComputeHeatingFlowFactors(pump& model) { setFlowFactors(model, heating); }

bool fitCorrections(pump& model, CorrectionKind kind,
                    const std::function<void(FitFault)>& tellFault) {
    constexpr std::size_t degree = 3;
    coefficients fitted = model.coefficients;
    bool all = true, told = false;
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities) {
            FitPoints points = correctionRowsOf(model, kind, mode, quantity);
            const FitPointCount usable = CountFitPoints(points.xs(), points.ys());
            if (usable.fault != FitFault::none && !told) {
                tellFault(usable.fault);
                told = true;
            }
            all = all && usable.enough;
            if (!usable.enough) continue;
            points.count = usable.count;
            store(correctionCurve(fitted, kind, quantity), mode,
                  FitPolynomial(points.xs(), points.ys(), degree), degree + 1);
        }
    model.coefficients = fitted;
    return all;
}

}  // namespace varnholt
