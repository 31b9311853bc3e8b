// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/modCalculations/settling.h"

namespace varnholt::modCalculations {

/// c of a penalty that is c/L for every length L, in degF ft.
inline double penaltyTimesLength(const PenaltySite& site, double annualGroundLoad) {
    return calcTemperaturePenalty(site, annualGroundLoad, {1, 1})[cooling];
}

/// Terms by whose D lengths are -25 degF in cooling and +10 in heating.
///
/// @param annualGroundLoad  as the penalty takes it
/// @param coolingLoad       MBtu/hr
/// @param heatingLoad       MBtu/hr
inline LengthTerms settlingTerms(double annualGroundLoad, double coolingLoad, double heatingLoad) {
    LengthTerms terms;
    terms.annualGroundLoad = annualGroundLoad;
    terms.peakLoad = {coolingLoad, heatingLoad};
    terms.boreResistance = 1;
    terms.groundTemp = {60, 60};
    terms.inletTemp = {85, 50};
    terms.outletTemp = {85, 50};
    return terms;
}

}  // namespace varnholt::modCalculations
