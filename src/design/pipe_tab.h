// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// The pipe: size, wall, flow regime, diameters and the resistance that follows from them. What
/// holds the pipe, a bore or a trench, is added by the tab of the design's kind.
class PipeTab : public DesignTab {
 public:
    void setUnitLabels() override;

    /// Pipe wall and film, from configuration, flow regime and diameters. Nothing happens while a
    /// project is being opened.
    void updatePipeResistance();
    /// The resistance that follows from the pipe's; the same holds.
    virtual void calculateResistance() {}

 protected:
    PipeTab(GroundDesign& design, PipeValues& pipe);

    void addPipeControls(const std::string& frame);

    /// How the pipe's resistance counts the legs.
    virtual int configuration() const = 0;
    /// Whether the pipes go into what holds them.
    virtual bool pipesFit() const { return true; }
    /// The same, with a message when they do not.
    virtual bool checkPipeFit() { return true; }

    /// The chain from the pipe to the results.
    void recompute();

    PipeValues& pipe_;

 private:
    void addDiameter(int side, int caption);
    void PIPipeDiameterCombo_Click();
    void PIPipeResistanceCombo_Click(int combo);
    void PIPipeDiameterText_Change();
    /// The size and wall that a file gave may be none of the table's: then the built-in pipe
    /// counts.
    double tableDiameter(int side) const;
    void takeDiametersFromTable();
    void showPipe();
    void showDiameters();
};

}  // namespace varnholt
