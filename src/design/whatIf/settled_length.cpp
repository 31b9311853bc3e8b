// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/settled_length.h"

#include <algorithm>

#include "basis/units.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/numbers.h"
#include "design/modCalculations/short_circuit.h"
#include "design/modCalculations/temperature_penalty.h"

namespace varnholt {

using namespace modCalculations;

SettledMode settledMode(const LengthTerms& terms, Mode mode, double penaltyOfOneFoot) {
    SettledMode settled;
    if (terms.peakLoad[mode] == 0) return settled;
    const GroundResistances& ground = terms.groundResistance;
    const double peak = peakGroundLoad(mode, terms.peakLoad[mode], terms.peakDemand[mode]);
    const double bracket =
        terms.annualGroundLoad * ground.annual +
        peak * (terms.boreResistance + terms.partLoadFactor[mode] * ground.monthly +
                ground.shortTerm * terms.shortCircuitFactor);
    settled.heat = finite(1000.0 * bracket + penaltyOfOneFoot);
    settled.difference = temperatureDifference(terms, mode, 0);
    const bool wrongSide = mode == cooling ? settled.difference >= 0 : settled.difference <= 0;
    settled.length =
        wrongSide ? noLength : finite(std::max(0.0, settled.heat / settled.difference));
    return settled;
}

double CaseFigures::need() const { return std::max(length[cooling], length[heating]); }

double penaltyOfLoneFoot(const Soil& soil, double separation, double years,
                         double annualGroundLoad) {
    // A grid of one bore that has four neighbours all the same.
    const PenaltySite site{{1, 1, separation}, {0, 0, 0, 0, 1}, soil, years};
    return calcTemperaturePenalty(site, annualGroundLoad, {1, 0})[cooling];
}

Soil soilOfCase(const SoilValues& soil, const CaseFactors& factors) {
    return {soil.conductivity * factors.conductivity, soil.diffusivity * factors.diffusivity};
}

LengthTerms termsOfCase(const BoreholeInputs& design, const CaseLoads& loads,
                        const PulseTimes& pulses, const CaseFactors& factors) {
    LengthTerms terms;
    terms.annualGroundLoad = loads.annualGroundLoad;
    terms.peakLoad = loads.peakLoad;
    terms.peakDemand = loads.peakDemand;
    terms.partLoadFactor = loads.partLoadFactor;
    terms.groundResistance = calcGroundResistances(pulses, design.bore.boreDiameter / inchesPerFoot,
                                                   soilOfCase(design.soil, factors));
    terms.boreResistance = design.bore.boreResistance * factors.boreResistance;
    terms.shortCircuitFactor =
        shortCircuitFactor(design.arrangement.boresPerCircuit, design.loads.flowRate);
    const double ground = design.soil.groundTemp + factors.groundTemp;
    terms.groundTemp = {ground, ground};
    terms.inletTemp = design.loads.inletTemp;
    terms.outletTemp = loads.outletTemp;
    return terms;
}

CaseFigures classicalFigures(const RolledZones& zones, const BoreholeInputs& design,
                             const CaseFactors& factors, double drawnLength) {
    const CaseLoads loads = loadsOfCase(zones, design.loads, factors);
    const double years = design.arrangement.predictionTime;
    const LengthTerms terms =
        termsOfCase(design, loads, calcPulseTimes(zones.loads().peakBlock, years), factors);
    const auto& [rows, columns] = design.arrangement.patternRows;
    const PenaltySite site{{rows, columns, design.arrangement.boreSeparation},
                           countNeighbours(rows, columns),
                           soilOfCase(design.soil, factors),
                           years};
    // Of the second mode nothing is asked, so it costs nothing.
    const double penalty = calcTemperaturePenalty(site, loads.annualGroundLoad, {1, 0})[cooling];
    CaseFigures figures;
    for (Mode m : modes) {
        const SettledMode settled = settledMode(terms, m, penalty);
        figures.length[m] = settled.length * factors.method;
        if (terms.peakLoad[m] == 0 || drawnLength <= 0) continue;
        figures.entering[m] = terms.groundTemp[m] - settled.heat * factors.method / drawnLength -
                              (terms.outletTemp[m] - terms.inletTemp[m]) / 2;
    }
    return figures;
}

}  // namespace varnholt
