// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// The optional cooling tower on the results page: the slider that shifts load to it, its figures,
/// and the three up-downs that trim it.
class TowerPanel : public DesignTab {
 public:
    /// @param year  what the last run found for the tower's hours
    TowerPanel(GroundDesign& design, TowerValues& values,
               std::function<modCalculations::TowerYear()> year);

    void setUnitLabels() override;
    /// Shows the tower as the last run found it. Its labels follow the units alone.
    void showFigures();
    /// Cooling governs: the slider can be used, and everything stands in black.
    void wake();
    /// Heating governs: there is no load to shift.
    void rest();
    /// Takes the tower out of the design, as a plain Calculate does before it runs.
    void drop();

 private:
    /// A figure of the tower: its labels, and the up-down that trims it.
    struct Figure {
        const char* label;
        const char* upDown;  ///< null for a figure that only follows
        UnitTexts caption;
        const Quantity* quantity;
        double modCalculations::CoolingTower::*value;
        const char* format;
    };
    static const Figure figures[4];

    void addFigure(const Figure& figure);
    void CAHybridSlider_Change();
    void CACondenserCapacityUpDown_Change();
    void CACoolingTowerFlowRateUpDown_Change();
    void CACoolingRangeUpDown_Change();
    /// Takes the up-down's figure by way of its label, and the tower that follows from it. A
    /// run-time error leaves the tower and its figures as they were.
    void trim(const Figure& figure,
              const std::function<modCalculations::CoolingTower(double)>& trimmed);
    void showPercent();
    void showTower();
    void showFigure(const Figure& figure, double highest);
    void paint(int colour);

    TowerValues& values_;
    std::function<modCalculations::TowerYear()> year_;
};

}  // namespace varnholt
