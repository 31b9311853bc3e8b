// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/secondOpinion/field_sizing.h"
#include "design/secondOpinion/g_function_memory.h"
#include "design/secondOpinion/second_opinion.h"

namespace varnholt::secondOpinion {

/// A case made ready for the arithmetic.
struct PreparedCase {
    FieldSite site;
    FieldTerms terms;
    ByMode<YearOfMode> shape;
};

/// Looks for whatever stands against a second opinion, and makes the case ready.
/// @param result  out: the reasons, what comes from the zones, the shape of the year, what the
/// notes
///                tell; without a reason for both modes, the prepared case holds
PreparedCase prepareCase(const SecondOpinionCase& theCase, SecondOpinion& result);

}  // namespace varnholt::secondOpinion
