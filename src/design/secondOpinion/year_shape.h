// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "basis/mode.h"

namespace varnholt::secondOpinion {

/// How a year's energy and peaks of one mode are spread over its months, January first.
struct YearOfMode {
    std::array<double, 12> share{};  ///< of the energy; the sum is 1 where there is energy
    std::array<double, 12> peak{};   ///< of the design peak, 1 at most
    bool hasEnergy = true;
    bool heldAtGreatest = false;  ///< the greatest share that a month may have was too little
    bool even = false;            ///< the energy is more than the months could hold unevenly
};

/// The year of zones that tell their design day and full-load hours only. The energy follows a
/// power of a cosine that is greatest in July for cooling and in January for heating, and the other
/// way round in the south. The power is the one with which the greatest month's mean is the
/// design month's; the full design peak may come in every month that has half of its energy.
/// @param wanted    share of the greatest month: 730 hours at the design month's mean over the
///                  year's energy
/// @param greatest  share that is taken at most
YearOfMode standardYearOf(Mode mode, double wanted, double greatest, bool southern);

/// The year of months that are known. Only ratios count; what is below 0 is 0.
YearOfMode knownYearOf(const std::array<double, 12>& energies, const std::array<double, 12>& peaks);

}  // namespace varnholt::secondOpinion
