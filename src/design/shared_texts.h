// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/mode.h"
#include "forms/numeric_field.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {

// What several windows of a design write the same way.

constexpr UnitTexts lengthUnit{Text::lengthUnitsEnglish, Text::lengthUnitsMetric};
constexpr UnitTexts temperatureUnit{Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric};
/// Captions of figures that belong to the inlet temperature of a mode.
constexpr ByMode<int> inletTemperatureTexts{Text::inletTemperatureCooling,
                                            Text::inletTemperatureHeating};
constexpr double percentOfWhole = 100;

/// Adds a sentence, which may be empty, with a blank between two.
void appendSentence(std::string& sentences, const std::string& sentence);

}  // namespace varnholt
