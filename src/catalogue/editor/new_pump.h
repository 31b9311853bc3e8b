// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "basis/shared.h"
#include "catalogue/pump.h"

namespace varnholt {

/// The pumps of a series in their order. Copies of a list share the pumps that they have in common.
using PumpsOfSeries = std::vector<Shared<pump>>;

/// A pump to be filled in: all factors 1, all measured values 0.
///
/// @param before  the last pump of the list, whose type, temperatures and percents it takes; null
///                for the first of a list, which starts with the usual ones of a water-to-air pump
pump newPump(const pump* before);

/// The usual rows of the correction by load-side temperature of a type of pump, degF: [row][mode].
std::array<ByMode<double>, 5> usualLoadTemperatures(std::int16_t pumpType);

/// Orders the pumps by name, upper and lower case alike, by exchange: of pumps with the same name
/// each keeps the place that the exchanges give it.
void sortByName(PumpsOfSeries& pumps);

/// Below zero, zero or above zero as a stands before, beside or behind b in an alphabet in which
/// upper and lower case are the same letter. Letters beyond ASCII are compared by their code, those
/// of Latin, Greek and Cyrillic without their case.
int compareIgnoringCase(std::string_view a, std::string_view b);

}  // namespace varnholt
