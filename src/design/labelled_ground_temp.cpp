// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/labelled_ground_temp.h"

#include "design/ground_design.h"
#include "design/results_tab.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {

GroundTempCurves labelledGroundTemp(const GroundDesign& design, double depth, double diffusivity,
                                    const modCalculations::GroundSwing& swing,
                                    const ByMode<double>& temperatures) {
    const UnitSystem units = design.units();
    GroundTempCurves curves = drawGroundTemp(depth, diffusivity, swing, units);
    const UnitTexts degrees{Text::groundTemperatureUnitsEnglish,
                            Text::groundTemperatureUnitsMetric};
    const UnitTexts length{Text::lengthUnitsEnglish, Text::lengthUnitsMetric};
    curves.depthUnit = design.text(length.in(units));
    curves.temperatureUnit = design.text(degrees.in(units));
    curves.depthLabel = shownWithUnit(quantities::length, design, depth, length);
    for (const Mode mode : modes)
        curves.temperatureLabels[mode] =
            shownWithUnit(quantities::temperature, design, temperatures[mode], degrees);
    return curves;
}

}  // namespace varnholt
