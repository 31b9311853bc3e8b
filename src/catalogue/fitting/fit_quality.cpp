// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/fit_quality.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

constexpr double staleFrom = 1e-6;    // of the curve's greatest value
constexpr double turnsFrom = 0.0001;  // likewise

/// Where the curve's slope b + 2 c x + 3 d x^2 is zero, ascending.
std::vector<double> levelPlaces(const Polynomial& curve, Mode m) {
    const double b = curve[1][m], c = 2 * curve[2][m], d = 3 * curve[3][m];
    if (d == 0) return c == 0 ? std::vector<double>{} : std::vector<double>{-b / c};
    const double root = c * c - 4 * d * b;
    if (root <= 0) return {};
    std::vector<double> places{(-c - std::sqrt(root)) / (2 * d), (-c + std::sqrt(root)) / (2 * d)};
    std::sort(places.begin(), places.end());
    return places;
}

/// A fit of the data as they are; nothing where they cannot be fitted.
std::optional<FittedTerms> freshFit(const FitPoints& points, std::size_t degree) {
    try {
        return FitPolynomial(points.xs(), points.ys(), degree);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool differs(const Polynomial& stored, Mode m, const FitPoints& points, std::size_t degree) {
    const auto fresh = freshFit(points, degree);
    if (!fresh) return false;
    Polynomial curve{};
    for (std::size_t k = 0; k < mostTerms; ++k) curve[k][m] = (*fresh)[k];
    double greatest = 0, difference = 0;
    for (const double x : points.xs()) {
        greatest = std::max(greatest, std::fabs(valueOf(curve, m, x)));
        difference = std::max(difference, std::fabs(valueOf(curve, m, x) - valueOf(stored, m, x)));
    }
    return difference > staleFrom * greatest;
}

}  // namespace

FitPoints usedPoints(const pump& model, Mode mode, FittedQuantity quantity) {
    return ratingPointsOf(model, mode, quantity);
}

FitPoints usedRows(const pump& model, CorrectionKind kind, Mode mode, FittedQuantity quantity) {
    FitPoints rows = correctionRowsOf(model, kind, mode, quantity);
    std::size_t filled = 0;
    while (filled < rows.count && rows.y[filled] > 0) ++filled;
    rows.count = filled;
    return rows;
}

double valueOf(const Polynomial& curve, Mode mode, double x) { return cubic(curve, mode, x); }

std::optional<FitDeviation> greatestDeviation(const Polynomial& curve, Mode mode,
                                              const FitPoints& points) {
    std::optional<FitDeviation> greatest;
    for (std::size_t i = 0; i < points.count; ++i) {
        if (points.y[i] == 0) continue;
        const double away = valueOf(curve, mode, points.x[i]) - points.y[i];
        const double percent = std::fabs(away / points.y[i]) * 100;
        if (!greatest || percent > greatest->percent) greatest = {percent, points.x[i]};
    }
    return greatest;
}

std::optional<double> turningPoint(const Polynomial& curve, Mode mode, const FitPoints& points) {
    if (points.count == 0) return std::nullopt;
    const FitRange range = rangeOf(points);
    std::vector<double> knots{range.lowest};
    for (const double place : levelPlaces(curve, mode))
        if (place > range.lowest && place < range.highest) knots.push_back(place);
    knots.push_back(range.highest);
    double greatest = 0;
    for (const double knot : knots)
        greatest = std::max(greatest, std::fabs(valueOf(curve, mode, knot)));
    const auto step = [&](std::size_t i) {
        return std::fabs(valueOf(curve, mode, knots[i]) - valueOf(curve, mode, knots[i - 1]));
    };
    for (std::size_t i = 1; i + 1 < knots.size(); ++i)
        if (std::min(step(i), step(i + 1)) > turnsFrom * greatest) return knots[i];
    return std::nullopt;
}

bool StaleCurves::any() const {
    return rating[cooling] || rating[heating] || correction[byTemperature] || correction[byFlow];
}

bool isRatingStale(const pump& model, Mode mode, FittedQuantity quantity) {
    return differs(ratingCurve(model.coefficients, quantity), mode,
                   usedPoints(model, mode, quantity), 2);
}

bool isFlowFactorStale(const pump& model, Mode mode, FittedQuantity quantity) {
    if (model.ewt[firstRatingRow[cooling]].flowRate[0].flowRate == 0) return false;
    try {
        const double fresh = flowFactor(model, mode, quantity);
        return std::fabs(model.flowCf[quantity][mode] - fresh) > staleFrom * std::fabs(fresh);
    } catch (const RunTimeError&) {
        return false;
    }
}

bool isCorrectionStale(const pump& model, CorrectionKind kind, Mode mode, FittedQuantity quantity) {
    if (kind == byFlow && model.nominalFlow == 0) return false;
    FitPoints rows = correctionRowsOf(model, kind, mode, quantity);
    const FitPointCount usable = CountFitPoints(rows.xs(), rows.ys());
    rows.count = usable.count;
    return usable.enough &&
           differs(correctionCurve(model.coefficients, kind, quantity), mode, rows, 3);
}

StaleCurves staleCurves(const pump& model) {
    StaleCurves stale;
    for (const Mode mode : modes)
        for (const FittedQuantity quantity : fittedQuantities) {
            stale.rating[mode] = stale.rating[mode] || isRatingStale(model, mode, quantity) ||
                                 isFlowFactorStale(model, mode, quantity);
            for (const CorrectionKind kind : {byTemperature, byFlow})
                stale.correction[kind] =
                    stale.correction[kind] || isCorrectionStale(model, kind, mode, quantity);
        }
    return stale;
}

std::optional<double> coefficientOfPerformance(const HeatMode& point) {
    if (point.capacity == 0 || point.watts == 0) return std::nullopt;
    return kilowattsPerMBtu * point.capacity / point.watts;
}

bool isLikely(double COP) { return COP >= 1 && COP <= 12; }

}  // namespace varnholt
