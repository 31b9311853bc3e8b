// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/editor_pictures.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "basis/run_time_error.h"
#include "catalogue/fitting/fit_quality.h"
#include "forms/quantity.h"

namespace varnholt {
namespace {

constexpr int stepsOfCurve = 24;

/// What is typed half, or by mistake, may lie beyond any chart.
bool canBeDrawn(const FitPoint& point) {
    constexpr double farthest = 1e9;
    return std::fabs(point.x) <= farthest && std::fabs(point.y) <= farthest;
}

void append(std::vector<FitPoint>& points, const FitPoint& point) {
    if (canBeDrawn(point)) points.push_back(point);
}

std::vector<FitPoint> sampled(const FitRange& range, const std::function<FitPoint(double)>& at) {
    std::vector<FitPoint> line;
    if (!(range.highest > range.lowest)) return line;
    for (int i = 0; i <= stepsOfCurve; ++i)
        append(line, at(range.lowest + (range.highest - range.lowest) * i / stepsOfCurve));
    return line;
}

/// How the places and values of a picture are shown.
struct Shown {
    const Quantity& across;
    const Quantity& up;
    UnitSystem units;

    FitPoint operator()(double x, double y) const {
        return {across.shown(x, units), up.shown(y, units)};
    }
};

const Quantity& quantityOf(FittedQuantity quantity) {
    return quantity == fittedCapacity ? quantities::load : quantities::plain;
}

std::vector<FitPoint> pointsOf(const FitPoints& points, const Shown& shown) {
    std::vector<FitPoint> measured;
    for (std::size_t i = 0; i < points.count; ++i)
        if (points.y[i] != 0) append(measured, shown(points.x[i], points.y[i]));
    return measured;
}

CurvePicture& curveIn(FitPicture& picture, FittedQuantity quantity, Mode mode) {
    return (quantity == fittedCapacity ? picture.capacity : picture.power)[mode];
}

CurvePicture ratingCurvePicture(const pump& model, Mode mode, FittedQuantity quantity,
                                UnitSystem units) {
    const Shown shown{quantities::temperature, quantityOf(quantity), units};
    const Polynomial& terms = ratingCurve(model.coefficients, quantity);
    const FitPoints points = ratingPointsOf(model, mode, quantity, 0);
    const FitPoints second = ratingPointsOf(model, mode, quantity, 1);
    const double factor = model.flowCf[quantity][mode];
    CurvePicture curve;
    curve.measured = pointsOf(points, shown);
    curve.secondMeasured = pointsOf(second, shown);
    const auto drawn = [&](double times) {
        return sampled(rangeOf(points),
                       [&, times](double x) { return shown(x, valueOf(terms, mode, x) * times); });
    };
    curve.line = drawn(1);
    curve.stale = isRatingStale(model, mode, quantity);
    curve.secondStale = isFlowFactorStale(model, mode, quantity);
    if (!curve.secondMeasured.empty() || curve.secondStale) curve.secondLine = drawn(factor);
    if (const auto turn = turningPoint(terms, mode, points))
        curve.turn = quantities::temperature.shown(*turn, units);
    return curve;
}

CurvePicture correctionCurvePicture(const pump& model, CorrectionKind kind, Mode mode,
                                    FittedQuantity quantity, UnitSystem units) {
    const Quantity& across = kind == byTemperature ? quantities::temperature : quantities::plain;
    const Shown shown{across, quantities::plain, units};
    const Polynomial& terms = correctionCurve(model.coefficients, kind, quantity);
    const FitPoints rows = usedRows(model, kind, mode, quantity);
    CurvePicture curve;
    curve.measured = pointsOf(rows, shown);
    curve.line =
        sampled(rangeOf(rows), [&](double x) { return shown(x, valueOf(terms, mode, x)); });
    curve.stale = isCorrectionStale(model, kind, mode, quantity);
    if (const auto turn = turningPoint(terms, mode, rows)) curve.turn = across.shown(*turn, units);
    return curve;
}

/// Where a model is tried may lie outside of its points.
FitRange testedRange(const pump& model, const TestInputs& inputs, Mode mode) {
    FitRange range = rangeOf(ratingPointsOf(model, mode, fittedCapacity));
    range.lowest = std::min(range.lowest, inputs.sourceTemperature[mode]);
    range.highest = std::max(range.highest, inputs.sourceTemperature[mode]);
    return range;
}

double tried(const pump& model, TestInputs inputs, Mode mode, FittedQuantity quantity, double x) {
    inputs.sourceTemperature[mode] = x;
    const TestResults results = EvaluateTestPoints(model, inputs);
    return quantity == fittedCapacity ? results.capacity[mode] : results.power[mode];
}

}  // namespace

bool FitPicture::empty() const {
    for (const ByMode<CurvePicture>* curves : {&capacity, &power})
        for (const CurvePicture& curve : *curves)
            if (!curve.measured.empty() || !curve.line.empty()) return false;
    return true;
}

FitPicture ratingPicture(const pump& model, const std::vector<Mode>& shown, UnitSystem units) {
    FitPicture picture;
    for (const Mode mode : shown)
        for (const FittedQuantity quantity : fittedQuantities)
            curveIn(picture, quantity, mode) = ratingCurvePicture(model, mode, quantity, units);
    return picture;
}

FitPicture correctionPicture(const pump& model, CorrectionKind kind, UnitSystem units) {
    FitPicture picture;
    picture.fromZero = false;
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities)
            curveIn(picture, quantity, mode) =
                correctionCurvePicture(model, kind, mode, quantity, units);
    return picture;
}

FitPicture testPicture(const pump& model, const TestInputs& inputs, UnitSystem units) {
    FitPicture picture;
    try {
        for (const Mode mode : modes)
            for (const FittedQuantity quantity : fittedQuantities) {
                const Shown shown{quantities::temperature, quantityOf(quantity), units};
                const auto at = [&](double x) {
                    return shown(x, tried(model, inputs, mode, quantity, x));
                };
                CurvePicture& curve = curveIn(picture, quantity, mode);
                curve.line = sampled(testedRange(model, inputs, mode), at);
                const FitPoint operating = at(inputs.sourceTemperature[mode]);
                if (canBeDrawn(operating)) curve.operating = operating;
            }
    } catch (const RunTimeError&) {
        // A model that cannot be tried has no curve to stand on.
        return {};
    }
    return picture;
}

}  // namespace varnholt
