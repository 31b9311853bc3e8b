// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/bore_length.h"

namespace varnholt::modCalculations {

/// Round figures: 100 MBtu/hr either way, pumps of 10 kW, more heat into the ground than out of it.
inline LengthTerms roundTerms() {
    LengthTerms terms;
    terms.annualGroundLoad = -2;
    terms.peakLoad = {100, 100};
    terms.peakDemand = {10, 10};
    terms.partLoadFactor = {0.5, 0.25};
    terms.groundResistance = {0.3, 0.2, 0.1};
    terms.boreResistance = 0.2;
    terms.shortCircuitFactor = 1.04;
    terms.groundTemp = {60, 60};
    terms.inletTemp = {85, 50};
    terms.outletTemp = {95, 44};
    return terms;
}

}  // namespace varnholt::modCalculations
