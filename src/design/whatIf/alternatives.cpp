// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/alternatives.h"

#include <algorithm>
#include <cmath>

#include "design/borehole_project.h"
#include "design/borehole_run.h"
#include "design/modCalculations/trench_lengths.h"
#include "forms/text_numbers/what_if.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

/// The year of the zones that a last run was made with; none where it was read from a file.
template <class Results>
EnergyYear yearOf(const Results& results) {
    if (!results.inputs) return {};
    const RolledZones zones(results.inputs->loads.zones);
    EnergyYear year;
    year.annualTonHours = zones.annualTonHours();
    year.peakLoad = zones.loads().peakLoad;
    year.heatPumpCOP = zones.heatPumpCOP();
    year.extraPower = results.inputs->loads.extraPower;
    return year;
}

/// A design whose zones have not been found has its lengths and no year. Its life would cost what
/// it costs to build, and be the cheapest of all.
bool hasLoads(const EnergyYear& year) {
    return year.annualTonHours[cooling] > 0 || year.annualTonHours[heating] > 0;
}

/// The figures, or the reason why there are none where they are no numbers: a file may hold
/// anything.
AlternativeFigures numbersOr(const std::string& name, AlternativeKind kind,
                             const AlternativeFigures& figures) {
    for (const double each : {figures.length, figures.bores, figures.depth, figures.first})
        if (!std::isfinite(each)) {
            AlternativeFigures none;
            none.name = name;
            none.kind = kind;
            none.reason = {Text::whatIfNotComputable, {}};
            return none;
        }
    return figures;
}

}  // namespace

bool operator==(const KeptAlternative& a, const KeptAlternative& b) {
    return a.name == b.name &&
           (a.design == b.design || (a.design && b.design && *a.design == *b.design));
}

LoopAlternative loopOf(const HorizontalResults& results) {
    LoopAlternative loop;
    const Mode mode = results.governingMode;
    loop.pipe = results.totalPipeLength[mode];
    loop.year = yearOf(results);
    if (!results.inputs) return loop;
    const double pipes = results.inputs->arrangement.pipesPerTrench;
    loop.trench = modCalculations::totalTrenchLength(results.requiredLength[mode], pipes);
    const double percent = results.inputs->loads.hybridOn ? results.inputs->loads.hybridPercent : 0;
    loop.year.towerTons =
        towerTons(loop.year.peakLoad[cooling], loop.year.heatPumpCOP[cooling], percent);
    loop.year.towerHours = percent > 0 ? results.tower.hours : 0;
    return loop;
}

LoopAlternative loopOf(const SurfaceWaterResults& results) {
    LoopAlternative loop;
    loop.pipe = std::max(results.loopLength[cooling], results.loopLength[heating]);
    loop.year = yearOf(results);
    return loop;
}

BoreholeInputs keptInputs(const BoreholeProject& kept, const SharedZones& zones) {
    BoreholeInputs inputs = inputsOf(kept, kept.tower.hybridPercent != 0);
    inputs.loads.zones = zones;
    return inputs;
}

AlternativeFigures withoutFigures(const Alternative& alternative, Reason reason) {
    AlternativeFigures figures;
    figures.name = alternative.name;
    figures.kind = alternative.kind;
    figures.reason =
        reason.holds() ? std::move(reason) : Reason{Text::alternativeWithoutLength, {}};
    return figures;
}

AlternativeFigures boreAlternative(const std::string& name, const BoreholeInputs& design,
                                   const RolledZones& zones, const CaseFigures& figures,
                                   const Prices& prices) {
    AlternativeFigures result;
    result.name = name;
    result.bores = boresOf(design);
    if (!figures.hasNeed() || figures.need() <= 0) {
        result.reason = {Text::alternativeWithoutLength, {}};
        return numbersOr(name, AlternativeKind::borehole, result);
    }
    result.length = figures.need();
    result.depth = result.length / result.bores;
    const DesignCost cost = designCost(design, zones, result.depth, prices);
    result.first = cost.firstCost;
    result.life = cost.lifeCost;
    result.energy = cost.yearlyEnergy;
    return numbersOr(name, AlternativeKind::borehole, result);
}

AlternativeFigures loopAlternative(const Alternative& alternative, const Prices& prices) {
    const LoopAlternative& loop = alternative.loop;
    if (!(loop.pipe > 0)) return withoutFigures(alternative, {});
    AlternativeFigures result;
    result.name = alternative.name;
    result.kind = alternative.kind;
    result.length = loop.pipe;
    result.first =
        loopCost(loop.trench, loop.pipe, prices) + loop.year.towerTons * prices.costTower;
    if (hasLoads(loop.year)) {
        result.energy = yearlyEnergy(loop.year, prices);
        result.life =
            lifeCost(result.first, yearlyCost(result.energy, loop.year.towerTons, prices), prices);
    } else {
        result.reason = {Text::alternativeWithoutYear, {}};
    }
    return numbersOr(alternative.name, alternative.kind, result);
}

}  // namespace varnholt
