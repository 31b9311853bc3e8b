// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/shared_values.h"

#include <string>

#include "design/borehole_results.h"
#include "design/ground_design.h"

namespace varnholt {
namespace {

/// An array of arrays: two indices, elements outside being run-time error 9.
template <class Table>
void addTable(Values& values, const std::string& name, const Table* table) {
    values.add(name, 2, [table](const Values::Indices& i) {
        return static_cast<double>(
            table->at(static_cast<std::size_t>(i[0])).at(static_cast<std::size_t>(i[1])));
    });
}

void addTower(Values& values, const TowerValues& tower) {
    values.add("hybridPercent", &tower.hybridPercent);
    values.add("condenserCapacity", &tower.tower.capacity);
    values.add("condenserCapacityMax", &tower.tower.capacityMax);
    values.add("coolingTowerFlow", &tower.tower.flow);
    values.add("coolingRange", &tower.tower.range);
    values.add("coolingTowerHours", &tower.tower.hours);
}

}  // namespace

void addSharedValues(Values& values, const GroundDesign& design) {
    const FluidValues& fluid = design.fluid;
    values.add("fluidTypeIndex", &fluid.fluidTypeIndex);
    values.add("fluidName", &fluid.fluidName);
    values.add("percentAntifreeze", &fluid.percentAntifreeze);
    values.add("fluidDensity", &fluid.density);
    values.add("specificHeat", &fluid.specificHeat);
    values.add("groundTemp", &design.soil.groundTemp);
    values.add("soilConductivity", &design.soil.conductivity);
    values.add("soilDiffusivity", &design.soil.diffusivity);
    const PipeValues& pipe = design.pipe;
    values.add("pipeSizeIndex", &pipe.pipeSizeIndex);
    values.add("pipeSdrIndex", &pipe.pipeSdrIndex);
    values.add("flowTypeIndex", &pipe.flowTypeIndex);
    values.addArray("pipeDiameter", &pipe.pipeDiameter);
    values.add("pipeResistance", &pipe.pipeResistance);
    values.addArray("extraPower", &design.extraPower.extraPower);
    values.addArray("motorEfficiency", &design.extraPower.motorEfficiency);
    values.addArray("towerMotorEfficiency", &design.extraPower.motorEfficiency);
    addTower(values, design.tower);
}

void addRollUpValues(Values& values, const LoadsRollUp& rollUp) {
    addTable(values, "blockLoad", &rollUp.loads.blockLoad);
    values.addArray("peakLoad", &rollUp.loads.peakLoad);
    values.addArray("peakBlock", &rollUp.loads.peakBlock);
    addTable(values, "weightedBlockLoad", &rollUp.partLoad.weightedBlockLoad);
    values.addArray("dailyLoad", &rollUp.partLoad.dailyLoad);
    values.addArray("partLoadFactor", &rollUp.partLoad.partLoadFactor);
    values.addArray("peakDemand", &rollUp.demand.peakDemand);
    addTable(values, "zoneDemand", &rollUp.demand.zoneDemand);
    addTable(values, "zonePartLoad", &rollUp.demand.zonePartLoad);
    values.addArray("totalCapacity", &rollUp.demand.totalCapacity);
    values.addArray("totalPumpWatts", &rollUp.cop.totalPumpWatts);
    values.addArray("heatPumpCOP", &rollUp.cop.heatPumpCOP);
    values.addArray("systemCOP", &rollUp.cop.systemCOP);
    values.addArray("systemFlow", &rollUp.outlet.systemFlow);
    values.addArray("outletTemp", &rollUp.outlet.outletTemp);
}

void addBoreholeResults(Values& values, const BoreholeResults& results) {
    addTable(values, "zonePeakTons", &results.tonHours.zonePeakTons);
    addTable(values, "loadTonHours", &results.tonHours.loadTonHours);
    values.addArray("annualTonHours", &results.annualTonHours);
    values.add("annualGroundLoad", &results.annualGroundLoad);
    values.add("groundResistance", 1, [&ground = results.groundResistance](const auto& i) {
        const std::array<double, 3> pulses{ground.annual, ground.monthly, ground.shortTerm};
        return pulses.at(static_cast<std::size_t>(i[0]));
    });
    values.addArray("neighbourCount", &results.neighbourCount);
    values.addArray("temperaturePenalty", &results.lengths.temperaturePenalty);
    values.addArray("boreLength", &results.lengths.boreLength);
    values.addArray("previousBoreLength", &results.lengths.previousBoreLength);
    values.add("coolingPeakBeforeHybrid", &results.coolingPeakBeforeHybrid);
}

}  // namespace varnholt
