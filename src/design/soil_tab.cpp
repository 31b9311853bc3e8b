// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/soil_tab.h"

#include "design/ground_design.h"

namespace varnholt {

SoilTab::SoilTab(GroundDesign& design, SoilValues& soil) : DesignTab(design) {
    addFrame("SOSoilFrame", 2301);
    addFrame("SOGroundTempFrame", 2302, "SOSoilFrame");
    addField({.control = "SOGroundTempText",
              .stored = &soil.groundTemp,
              .quantity = &quantities::temperature,
              .highest = 212,
              .fallback = 62,
              .beside = {.frame = "SOGroundTempFrame",
                         .label = "SOGroundTempLabel",
                         .caption = {2303, 2303},
                         .unitLabel = "SOGroundTempUnitsLabel",
                         .unit = {2305, 2304},
                         .help = "borehole#soil"}});
    addFrame("SOPropertiesFrame", 2306, "SOSoilFrame");
    addProperties(soil);
    addMenuButton("SOSoilCommand(0)", "SOPropertiesFrame", 2310, "mnuDiffCalc");
    addMenuButton("SOSoilCommand(1)", "SOPropertiesFrame", 2312, "SoilProperties");
}

void SoilTab::addProperties(SoilValues& soil) {
    addField({.control = "SOThermalConductivityText",
              .stored = &soil.conductivity,
              .quantity = &quantities::conductivity,
              .highest = 1000.0,
              .fallback = 1.3,
              .format = "###0.00",
              .beside = {.frame = "SOPropertiesFrame",
                         .label = "SOThermalConductivityLabel",
                         .caption = {2445, 2445},
                         .unitLabel = "SOThermalConductivityUnitsLabel",
                         .unit = {2447, 2446},
                         .help = "borehole#soil"}});
    addField({.control = "SOThermalDiffusivityText",
              .stored = &soil.diffusivity,
              .quantity = &quantities::diffusivity,
              .highest = 1000.0,
              .fallback = 0.75,
              .format = "###0.00",
              .metricFormat = "###0.000",
              .beside = {.frame = "SOPropertiesFrame",
                         .label = "SOThermalDiffusivityLabel",
                         .caption = {2307, 2307},
                         .unitLabel = "SOThermalDiffusivityUnitsLabel",
                         .unit = {2309, 2308},
                         .help = "borehole#soil"}});
}

}  // namespace varnholt
