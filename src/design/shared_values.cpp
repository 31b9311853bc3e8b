// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/shared_values.h"

#include "design/modCalculations/bore_resistance.h"
#include "design/result_values.h"

namespace varnholt {

void addFluidValues(Values& values, const FluidValues& fluid) {
    values.add("fluidTypeIndex", &fluid.fluidTypeIndex);
    values.add("fluidName", &fluid.fluidName);
    values.add("percentAntifreeze", &fluid.percentAntifreeze);
    values.add("fluidDensity", &fluid.density);
    values.add("specificHeat", &fluid.specificHeat);
}

void addSoilValues(Values& values, const SoilValues& soil) {
    values.add("groundTemp", &soil.groundTemp);
    values.add("soilConductivity", &soil.conductivity);
    values.add("soilDiffusivity", &soil.diffusivity);
}

void addPipeValues(Values& values, const PipeValues& pipe) {
    values.add("pipeSizeIndex", &pipe.pipeSizeIndex);
    values.add("pipeSdrIndex", &pipe.pipeSdrIndex);
    values.add("flowTypeIndex", &pipe.flowTypeIndex);
    values.addArray("pipeDiameter", &pipe.pipeDiameter);
    values.add("pipeResistance", &pipe.pipeResistance);
    // Size, wall, and outside (0) or inside diameter (1).
    values.add("pipeTable", 3, [](const Values::Indices& i) {
        checkIndex(i[2], 2);
        const auto& pair =
            modCalculations::pipeTable(static_cast<int>(i[0]), static_cast<int>(i[1]));
        return i[2] == 0 ? pair.outside : pair.inside;
    });
}

void addExtraPowerValues(Values& values, const ExtraPowerValues& power) {
    values.addArray("extraPower", &power.extraPower);
    values.addArray("motorEfficiency", &power.motorEfficiency);
    values.addArray("towerMotorEfficiency", &power.motorEfficiency);
}

void addTowerValues(Values& values, const TowerValues& tower) {
    values.add("hybridPercent", &tower.hybridPercent);
    values.add("condenserCapacity", &tower.tower.capacity);
    values.add("condenserCapacityMax", &tower.tower.capacityMax);
    values.add("coolingTowerFlow", &tower.tower.flow);
    values.add("coolingRange", &tower.tower.range);
    values.add("coolingTowerHours", &tower.tower.hours);
}

void addRollUpValues(Values& values, const std::function<const LoadsRollUp&()>& rollUp) {
    using R = const LoadsRollUp&;
    ResultValues<LoadsRollUp> of(values, rollUp);
    of.table(
        "blockLoad", [](R r) -> auto& { return r.loads.blockLoad; });
    of.array(
        "peakLoad", [](R r) -> auto& { return r.loads.peakLoad; });
    of.array(
        "peakBlock", [](R r) -> auto& { return r.loads.peakBlock; });
    of.table(
        "weightedBlockLoad", [](R r) -> auto& { return r.partLoad.weightedBlockLoad; });
    of.array(
        "dailyLoad", [](R r) -> auto& { return r.partLoad.dailyLoad; });
    of.array(
        "partLoadFactor", [](R r) -> auto& { return r.partLoad.partLoadFactor; });
    of.array(
        "peakDemand", [](R r) -> auto& { return r.demand.peakDemand; });
    of.table(
        "zoneDemand", [](R r) -> auto& { return r.demand.zoneDemand; });
    of.table(
        "zonePartLoad", [](R r) -> auto& { return r.demand.zonePartLoad; });
    of.array(
        "totalCapacity", [](R r) -> auto& { return r.demand.totalCapacity; });
    of.array(
        "totalPumpWatts", [](R r) -> auto& { return r.cop.totalPumpWatts; });
    of.array(
        "heatPumpCOP", [](R r) -> auto& { return r.cop.heatPumpCOP; });
    of.array(
        "systemCOP", [](R r) -> auto& { return r.cop.systemCOP; });
    of.array(
        "systemFlow", [](R r) -> auto& { return r.outlet.systemFlow; });
    of.array(
        "outletTemp", [](R r) -> auto& { return r.outlet.outletTemp; });
}

void addGroundValues(Values& values, const std::function<const GroundRollUp&()>& rollUp) {
    using R = const GroundRollUp&;
    addRollUpValues(values, [rollUp]() -> const LoadsRollUp& { return rollUp(); });
    ResultValues<GroundRollUp> of(values, rollUp);
    of.table(
        "zonePeakTons", [](R r) -> auto& { return r.tonHours.zonePeakTons; });
    of.table(
        "loadTonHours", [](R r) -> auto& { return r.tonHours.loadTonHours; });
    of.array(
        "annualTonHours", [](R r) -> auto& { return r.annualTonHours; });
    of.number("annualGroundLoad", [](R r) { return r.annualGroundLoad; });
    of.number("coolingPeakBeforeHybrid", [](R r) { return r.coolingPeakBeforeHybrid; });
}

std::array<double, 3> elementsOf(const modCalculations::GroundResistances& resistances) {
    return {resistances.annual, resistances.monthly, resistances.shortTerm};
}

}  // namespace varnholt
