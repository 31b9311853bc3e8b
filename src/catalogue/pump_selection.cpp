// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_selection.h"

#include <array>

#include "basis/run_time_error.h"
#include "basis/units.h"

namespace varnholt {
namespace {

/// A zone without load in a mode is handled as one with this peak, MBtu/hr.
constexpr double leastPeak = 1;

/// What a model contributes in one mode, whatever the number of units.
struct Candidate {
    double byWater = 0;  // the two factors of the capacity of one unit
    double byLoad = 0;
    double flowFactor = 1;
    double firstFlow = 0;
    double flowStep = 0;  // second catalogue flow less the first, gpm
};

using Candidates = std::array<ByMode<Candidate>, selectableModels>;

Candidate candidate(const pump& model, Mode m, double x, double t) {
    const auto& flows = model.ewt[catalogueFlowRow].flowRate;
    const Candidate result{quadratic(model.coefficients.capacity, m, x),
                           cubic(model.coefficients.capacityCorrection, m, t), model.flowCf[0][m],
                           flows[0].flowRate, flows[1].flowRate - flows[0].flowRate};
    if (result.firstFlow != 0 && result.flowStep == 0) throw RunTimeError(11);
    return result;
}

Candidates candidates(std::span<const pump> models, const ByMode<double>& enteringWater,
                      const ByMode<double>& enteringLoad) {
    Candidates result;
    for (std::size_t i = 0; i < models.size(); ++i)
        for (const Mode m : modes) {
            const Candidate one = candidate(models[i], m, enteringWater[m], enteringLoad[m]);
            at(result, static_cast<std::ptrdiff_t>(i))[m] = one;
        }
    return result;
}

/// By how much `units` units exceed the peak, MBtu/hr.
double excess(const Candidate& one, double units, double peak, double flowPerTon) {
    double total = units * one.byWater * one.byLoad;
    if (total > 0) {
        const double each = total / units;
        const double slope = one.firstFlow != 0 ? (one.flowFactor * each - each) / one.flowStep : 0;
        const double correction =
            peak / total < overloadRatio
                ? slope * (peak / units / mbtuPerTon * flowPerTon - one.firstFlow)
                : 0;
        total = total + units * correction;
    }
    return total - peak;
}

}  // namespace

PumpSelection AutoFindBestPump(std::span<const pump> models, const Gains& gains,
                               const EvaluationConditions& conditions) {
    PumpSelection selection;
    selection.elt = conditions.temporaryInletTemp;
    if (!conditions.updating)
        selection.elt = designLoadTemps(conditions.design,
                                        models.empty() ? std::int16_t{0} : models[0].pumpType);
    const ByMode<double> peak{peakLoad(gains, cooling, leastPeak),
                              peakLoad(gains, heating, leastPeak)};
    const double flowPerTon = conditions.design.flowRate;
    const Candidates all = candidates(models, conditions.design.inletTemp, selection.elt);
    for (std::int16_t n = 1; n <= mostUnits; ++n)
        for (std::size_t i = 0; i < models.size(); ++i)
            if (excess(all[i][cooling], n, peak[cooling], flowPerTon) > 0 &&
                excess(all[i][heating], n, peak[heating], flowPerTon) > 0) {
                selection.index = i;
                selection.number = n;
                return selection;
            }
    return selection;
}

MiniPump autoSelectPump(std::span<const pump> models, const Gains& gains, const MiniPump& current,
                        EvaluationConditions conditions) {
    const PumpSelection selection = AutoFindBestPump(models, gains, conditions);
    const pump& model = at(models, static_cast<std::ptrdiff_t>(selection.index));
    conditions.samePumpUpdated = conditions.updating && model.name == current.name;
    MiniPump searched = current;
    searched.elt = selection.elt;
    searched.elf = {};
    return evaluatePump(model, selection.number, gains, searched, conditions);
}

}  // namespace varnholt
