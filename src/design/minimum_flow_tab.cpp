// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/minimum_flow_tab.h"

#include "design/ground_design.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {

/// No flow at all is a flow too: it sets no limit to the number of loops.
MinimumFlowTab::MinimumFlowTab(GroundDesign& design, ProjectConditions& conditions)
    : DesignTab(design) {
    addFrame("FLMinFlowFrame", Text::minimumLoopFlow, "FLFluidFrame");
    const ByMode<int> captions{Text::inletTemperatureCooling, Text::inletTemperatureHeating};
    for (const Mode mode : modes)
        addField({.control = elementName("FLMinFlowText", mode),
                  .stored = &conditions.minflowRate[mode],
                  .quantity = &quantities::waterFlow,
                  .highest = 212,
                  .fallback = ProjectConditions().minflowRate[mode],
                  .beside = {.frame = "FLMinFlowFrame",
                             .label = elementName("FLMinFlowLabel", mode),
                             .caption = {captions[mode], captions[mode]},
                             .unitLabel = elementName("FLMinFlowUnitsLabel", mode),
                             .unit = {Text::loopFlowUnitsEnglish, Text::loopFlowUnitsMetric},
                             .help = "surface_water#loops",
                             .accessible = Text::minimumLoopFlow,
                             .distinction = captions[mode]}});
}

}  // namespace varnholt
