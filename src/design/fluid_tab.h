// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/design_values.h"
#include "loads/design_project.h"

namespace varnholt {

/// Fluid temperatures, flow and the solution's properties.
class FluidTab : public DesignTab {
 public:
    FluidTab(GroundDesign& design, FluidValues& fluid, ProjectConditions& conditions);

    void setUnitLabels() override;

 private:
    void addTemperatures();
    void addFlow();
    void addSolution();
    void addProperties();
    void FLFluidTypeCombo_Click();
    void FLFluidTypeCombo_Change();
    void FLFluidTypeCombo_Leave();
    void FLPercentAntifreezeUpDown_Change();
    void takeWater();
    /// Shows which fluid it is: its name, and that water has no percentage.
    void showFluid();
    void showPercent();

    FluidValues& fluid_;
    ProjectConditions& conditions_;
};

}  // namespace varnholt
