// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/surface_water_values.h"

namespace varnholt {

/// The water that the loops lie in: its temperatures, and what is told of it.
class WaterTab : public DesignTab {
 public:
    WaterTab(GroundDesign& design, WaterTemperatures& water, SurfaceWaterDetails& details);

    void setUnitLabels() override;

 private:
    void addTemperature(const std::string& array, std::size_t index, double& stored,
                        const std::string& frame, int frameCaption);
    void addDetails();
    void WASurfaceWaterTypeCombo_Click();

    SurfaceWaterDetails& details_;
};

}  // namespace varnholt
