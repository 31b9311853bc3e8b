// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/horizontal_values.h"
#include "design/modCalculations/trench_layout.h"

namespace varnholt {

// What becomes of trench and pipes when one of them is chosen or entered.

modCalculations::TrenchLayout layoutOf(const TrenchValues& trench,
                                       const HorizontalArrangementValues& pipes);

/// Chooses an arrangement. Another one than before begins with one row of pipes; a coil is a single
/// pipe without an offset, and is so whenever it is chosen. The width is set as widthWhenChosen
/// tells, also when the arrangement was chosen already.
/// @param arrangement  a TrenchArrangement; RunTimeError 9 for any other, and nothing is changed
void selectArrangement(std::int16_t arrangement, TrenchValues& trench,
                       HorizontalArrangementValues& pipes);

/// Takes a number of pipes, rounded to a whole one. A single row cannot be offset.
/// Throws RunTimeError 6 beyond 16 bits.
void takePipes(double count, HorizontalArrangementValues& pipes);

/// Lets a coil be the single pipe without an offset that it is, whatever a file holds beside it.
/// Pipes side by side stay as they are.
void settleCoil(HorizontalArrangementValues& pipes);

/// Takes a number of trenches, rounded to a whole one. Throws RunTimeError 6 beyond 16 bits.
void takeTrenches(double count, TrenchValues& trench);

/// Makes the trench as deep as the stack of pipes. Returns whether it had to.
bool deepenTrench(TrenchValues& trench, const HorizontalArrangementValues& pipes);

/// Makes the trench as wide as the pipes. Returns whether it had to.
bool widenTrench(TrenchValues& trench, const HorizontalArrangementValues& pipes);

}  // namespace varnholt
