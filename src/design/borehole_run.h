// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/borehole_results.h"
#include "design/design_values.h"
#include "design/modCalculations/temperature_penalty.h"

namespace varnholt {

/// What the roll-up of the loads needs to know of a design.
struct LoadsInputs {
    modCalculations::Zones zones;
    modCalculations::ExtraPower extraPower{};  ///< kW
    ByMode<double> inletTemp{};                ///< degF
    double flowRate = 0;                       ///< gpm per ton
    modCalculations::Fluid fluid;
    bool hybridOn = false;
    std::int16_t hybridPercent = 0;
};

/// The steps of a run that turn zones into demand, flow and temperatures, each reading what the
/// ones before it found. They are the same for every kind of ground loop.
class LoadsRun {
 public:
    LoadsRun(const LoadsInputs& inputs, LoadsRollUp& rollUp);

    void calcPeakLoads();
    bool hasLoad() const;
    /// Takes the tower's share from the peak cooling load, when there is a tower.
    void prepareHybrid();
    void calcPeakDemand();
    void calcPartLoadFactors();
    void calcSystemCOP();
    void calcUnitOutletTemps();
    /// Gives the tower's share back to the peak cooling load.
    void restorePeakLoad();

    const modCalculations::Hybrid& hybrid() const { return hybrid_; }

 protected:
    const LoadsInputs& inputs() const { return inputs_; }

 private:
    LoadsInputs inputs_;
    LoadsRollUp& rollUp_;
    modCalculations::Hybrid hybrid_;
};

/// What the bores need to know besides.
struct BoreholeInputs {
    LoadsInputs loads;
    SoilValues soil;
    BoreValues bore;
    ArrangementValues arrangement;
    double coolingRange = 0;  ///< of the tower, degF
};

/// One run of the borehole design. The document keeps its results when the last step has passed.
class BoreholeRun : public LoadsRun {
 public:
    explicit BoreholeRun(const BoreholeInputs& inputs);
    BoreholeRun(const BoreholeRun&) = delete;
    BoreholeRun& operator=(const BoreholeRun&) = delete;

    void calculateLoadTonHours();
    /// And the tower that goes with it.
    void calcAnnualGroundLoad();
    void calcGroundResistances();
    void initTemperaturePenalty();
    void calcBoreLengths();
    void countNeighbours();
    void calcTemperaturePenalty();
    /// Repeats penalty and length until the lengths settle.
    void iterate();

    const BoreholeResults& results() const { return results_; }
    const modCalculations::CoolingTower& tower() const { return tower_; }

 private:
    modCalculations::LengthTerms lengthTerms() const;
    modCalculations::PenaltySite penaltySite() const;

    BoreholeInputs inputs_;
    BoreholeResults results_;
    modCalculations::CoolingTower tower_;
};

}  // namespace varnholt
