// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/soil_tab.h"
#include "design/surface_water_values.h"

namespace varnholt {

/// The soil around the buried headers of a surface water design, and its temperature there.
class HeaderSoilTab : public SoilTab {
 public:
    HeaderSoilTab(GroundDesign& design, HeaderSoilValues& soil);

    void setUnitLabels() override;
    void showCorrected();

 private:
    void addHeaders();
    void SOSoilTypeCombo_Click();
    /// The temperature at the headers' depth follows everything else on the page.
    void correct();

    HeaderSoilValues& soil_;
};

}  // namespace varnholt
