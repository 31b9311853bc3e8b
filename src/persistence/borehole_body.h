// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/mode.h"
#include "design/frmBHDesign.h"
#include "persistence/file_items.h"

namespace varnholt {

// The lines of a borehole design's files, written down once for reading and writing. The groups
// that stand in the project file and in the defaults file are described by the same function.

template <class File>
void describeConditions(File& file, frmBHDesign& design) {
    for (const Mode mode : modes) {
        BoreholeFileRemainder& kept = design.remainder;
        items(file, design.inletTemp[mode], design.results.outlet.outletTemp[mode]);
        items(file, design.inletLoadAirTemp[mode], design.inletLoadWaterTemp[mode]);
        // Outside and inside diameter, though they stand among the values of the modes.
        items(file, design.pipe.pipeDiameter[mode], design.minflowRate[mode]);
        items(file, kept.inputFlag[mode], kept.inputNumber[mode], kept.inputDouble[mode]);
    }
}

template <class File>
void describeSite(File& file, frmBHDesign& design) {
    FluidValues& fluid = design.fluid;
    items(file, design.flowRate, fluid.percentAntifreeze, fluid.fluidTypeIndex, fluid.fluidName,
          fluid.density, fluid.specificHeat);
    items(file, design.soil.groundTemp, design.soil.conductivity, design.soil.diffusivity);
    PipeValues& pipe = design.pipe;
    BoreValues& bore = design.bore;
    items(file, pipe.pipeSizeIndex, pipe.pipeSdrIndex, pipe.flowTypeIndex);
    items(file, bore.pipePlacement, bore.uTubeConfig, bore.boreDiameter, bore.groutConductivity);
    items(file, pipe.pipeResistance, bore.boreResistance);
    ArrangementValues& field = design.arrangement;
    items(file, field.patternRows[0], field.patternRows[1], field.boreSeparation,
          field.boresPerCircuit, field.predictionTime);
    std::array<double, 3>& kept = design.remainder.numbers;
    items(file, kept[0], kept[1], kept[2]);
    items(file, design.extraPower.motorEfficiency[0], design.activeSeries);
}

template <class File>
void describeResults(File& file, frmBHDesign& design) {
    BoreholeResults& results = design.results;
    items(file, results.annualGroundLoad);
    for (const Mode mode : modes) {
        BoreholeFileRemainder& kept = design.remainder;
        items(file, results.loads.peakLoad[mode], results.demand.peakDemand[mode]);
        items(file, results.cop.heatPumpCOP[mode], results.cop.systemCOP[mode]);
        items(file, results.outlet.systemFlow[mode], results.lengths.boreLength[mode]);
        items(file, kept.resultFlag[mode], kept.resultNumber[mode], kept.resultDouble[mode]);
    }
}

/// What the cooling tower starts from where no file tells it: its range is what the units add to
/// the loop.
inline void resetCoolingRange(frmBHDesign& design) {
    design.tower.tower.range =
        design.results.outlet.outletTemp[cooling] - design.inletTemp[cooling];
}

template <class File>
void describeTower(File& file, frmBHDesign& design) {
    ExtraPowerValues& power = design.extraPower;
    modCalculations::CoolingTower& tower = design.tower.tower;
    ByMode<double>& penalty = design.results.lengths.temperaturePenalty;
    if (file.since(2.1)) {
        items(file, design.tower.hybridPercent, tower.capacity, tower.capacityMax, tower.flow,
              tower.range, tower.hours);
        for (const Mode mode : modes) items(file, power.motorEfficiency[mode + 1], penalty[mode]);
        items(file, power.extraPower[3], power.extraPower[4], power.extraPower[5],
              power.extraPower[6]);
        return;
    }
    // Before there were towers all extra power was entered otherwise: it is not taken over, the
    // values just read included.
    design.tower = {};
    power = {};
    penalty = {};
    resetCoolingRange(design);
}

/// The body of a project file, behind the head.
template <class File>
void describeBoreholeProject(File& file, frmBHDesign& design) {
    design.linkIsStored = file.since(2.0);
    describeConditions(file, design);
    modCalculations::ExtraPower& extraPower = design.extraPower.extraPower;
    items(file, extraPower[0], extraPower[1], extraPower[2]);
    describeSite(file, design);
    items(file, design.workingZoneFile, design.workingZoneDirectory, design.zoneNumber);
    describeResults(file, design);
    if (design.linkIsStored)
        file.text(design.linkType);
    else
        design.linkType.clear();
    describeTower(file, design);
}

/// The body of the defaults file: what is entered, without the project, its results and its loads.
template <class File>
void describeBoreholeDefaults(File& file, frmBHDesign& design) {
    describeConditions(file, design);
    describeSite(file, design);
}

}  // namespace varnholt
