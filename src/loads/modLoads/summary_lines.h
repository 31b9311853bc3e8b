// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/mode.h"
#include "basis/units.h"
#include "loads/zone.h"

namespace varnholt {

/// One line of the building's summary, in columns of fixed width: zone, pump, units, the four
/// loads, capacity, power, COP (cooling in English units: EER) and part load factor.
///
/// summaryCells are the same texts by themselves.
std::vector<std::string> summaryCells(const std::string& zoneNumber, const Zone& zone, Mode mode,
                                      UnitSystem units);
std::string summaryLine(const std::string& zoneNumber, const Zone& zone, Mode mode,
                        UnitSystem units);

}  // namespace varnholt
