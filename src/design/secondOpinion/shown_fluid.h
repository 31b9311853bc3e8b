// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/secondOpinion/field_sizing.h"
#include "design/secondOpinion/second_opinion.h"

namespace varnholt::secondOpinion {

/// Water entering the units with the mean fluid of a mode, degF: the units' range lies evenly about
/// the mean.
double enteringWater(const FieldTerms& terms, Mode mode, double meanFluid);

/// What is told for bores of one depth: the g-function, the fluid's months and the table of years.
/// @param g       at that depth
/// @param result  in: shownDepth; out: everything that follows from it
void showFluid(const FieldTerms& terms, const DepthFunction& g, double lastHour,
               SecondOpinion& result);

}  // namespace varnholt::secondOpinion
