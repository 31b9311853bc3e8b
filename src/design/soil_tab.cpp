// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/soil_tab.h"

#include "design/ground_design.h"

namespace varnholt {

SoilTab::SoilTab(GroundDesign& design, SoilValues& soil) : DesignTab(design) {
    addFrame("SOSoilFrame", 2301);
    addFrame("SOGroundTempFrame", 2302, "SOSoilFrame");
    addField({"SOGroundTempText", &soil.groundTemp, &quantities::temperature, 0, 212, 62},
             {"SOGroundTempFrame", 2303, 2304, 2305, "SOGroundTempUnitsLabel"});
    addFrame("SOPropertiesFrame", 2306, "SOSoilFrame");
    addField({"SOThermalConductivityText", &soil.conductivity, &quantities::conductivity, 0, 1000.0,
              1.3, "###0.00"},
             {"SOPropertiesFrame", 2445, 2446, 2447, "SOThermalConductivityUnitsLabel"});
    addField({"SOThermalDiffusivityText", &soil.diffusivity, &quantities::diffusivity, 0, 1000.0,
              0.75, "###0.00", "###0.000"},
             {"SOPropertiesFrame", 2307, 2308, 2309, "SOThermalDiffusivityUnitsLabel"});
    addMenuButton("SOSoilCommand(0)", "SOPropertiesFrame", 2310, "mnuDiffCalc");
    addMenuButton("SOSoilCommand(1)", "SOPropertiesFrame", 2312, "SoilProperties");
}

}  // namespace varnholt
