// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/fitting/test_points.h"

#include <cmath>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

constexpr std::size_t flowPairRow = 3;

/// One quantity of one mode.
/// @param percent  load flow in percent of nominal
double evaluate(const pump& model, const TestInputs& inputs, Mode m, const Polynomial& base,
                const Polynomial& byTemperature, const Polynomial& byFlow, double flowFactor,
                double percent) {
    const double T = inputs.sourceTemperature[m];
    double result = base[2][m] * T * T + base[1][m] * T + base[0][m];
    result = result * cubic(byTemperature, m, inputs.loadTemperature[m]);
    if (model.nominalFlow != 0 && percent != 0) result = result * cubic(byFlow, m, percent);
    const auto& flows = model.ewt[flowPairRow].flowRate;
    const double first = flows[0].flowRate, second = flows[1].flowRate;
    const double atSecond = result * flowFactor;
    const double slope = first != 0 ? divide(atSecond - result, second - first) : 0;
    result = result + (inputs.sourceFlow[m] - first) * slope;
    if (!std::isfinite(result)) throw RunTimeError(6);
    return result;
}

}  // namespace

TestResults EvaluateTestPoints(const pump& model, const TestInputs& inputs) {
    TestResults results;
    const coefficients& curves = model.coefficients;
    for (const Mode m : modes) {
        const double percent =
            model.nominalFlow != 0 ? inputs.loadFlow[m] * 100 / model.nominalFlow : 0;
        results.capacity[m] = evaluate(model, inputs, m, curves.capacity, curves.capacityCorrection,
                                       curves.capacityFlowCorrection, model.flowCf[0][m], percent);
        results.power[m] = evaluate(model, inputs, m, curves.watts, curves.wattsCorrection,
                                    curves.wattsFlowCorrection, model.flowCf[1][m], percent);
        if (results.power[m] != 0)
            results.COP[m] = kilowattsPerMBtu * results.capacity[m] / results.power[m];
    }
    return results;
}

ByMode<double> firstLoadTemperatures(std::int16_t pumpType) {
    constexpr ByMode<double> air{67, 70}, water{55, 100};
    return pumpType == 0 ? air : water;
}

}  // namespace varnholt
