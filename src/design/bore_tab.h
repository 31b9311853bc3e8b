// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/pipe_tab.h"

namespace varnholt {

/// The pipe in its bore: U-tubes, placement, bore, grout, and the resistance of it all.
class BoreTab : public PipeTab {
 public:
    BoreTab(GroundDesign& design, PipeValues& pipe, BoreValues& bore);

    void setUnitLabels() override;
    /// Thermal resistance from fluid to bore wall. Nothing happens while a project is being opened.
    void calculateResistance() override;

 protected:
    int configuration() const override;
    bool pipesFit() const override;
    bool checkPipeFit() override;

 private:
    void addConfiguration();
    void addPlacement();
    void addBore();
    void addGrout();
    void addResistance();
    void PIConfigurationOption_Click(int element);
    void PIPlacementOption_Click(int element);
    void PIBoreholeDiameterText_Leave();
    /// The bore's diameter and the pipes' span, as the message about them tells both.
    std::string misfitMessage() const;
    double outsideDiameter() const { return pipe_.pipeDiameter[0]; }
    void showOptions();

    BoreValues& bore_;
};

}  // namespace varnholt
