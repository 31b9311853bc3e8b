// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/mode.h"
#include "catalogue/fitting/pump_fit.h"
#include "forms/numeric_field.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {

// What the fields of the editor's tables have in common.

constexpr double coldestField = 0, hottestField = 212;  // degF
constexpr UnitTexts degreeTexts{Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric};
/// The rows of the tables, by which a screen reader tells their fields apart.
constexpr int rowTexts[] = {Text::rowOne, Text::rowTwo, Text::rowThree, Text::rowFour,
                            Text::rowFive};
/// Names of the curves by FittedQuantity and mode, and of their terms.
constexpr ByMode<int> curveTexts[] = {{Text::coolingCapacityCurve, Text::heatingCapacityCurve},
                                      {Text::coolingPowerCurve, Text::heatingPowerCurve}};
constexpr int termTexts[] = {Text::coefficientA, Text::coefficientB, Text::coefficientC,
                             Text::coefficientD};

}  // namespace varnholt
