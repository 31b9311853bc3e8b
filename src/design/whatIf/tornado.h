// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>

#include "design/borehole_results.h"
#include "design/whatIf/cases.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// What the designer chooses and may choose otherwise.
enum Lever : std::size_t {
    coolingLimit = 0,     ///< of the entering water, 5 degF less and more
    heatingLimit = 1,     ///< the same
    boreSpacing = 2,      ///< 5 ft less and more
    predictionYears = 3,  ///< halved and doubled
    flowPerTon = 4,       ///< 0.5 gpm less and more
    leverCount = 5
};

/// Lengths at the low and the high end of each quantity, ft; noLength where there is none.
template <std::size_t count>
struct Ends {
    std::array<double, count> low{}, high{};

    friend bool operator==(const Ends&, const Ends&) = default;
};

/// What a case needs, ft.
using NeedOfCase = std::function<double(const CaseFactors&)>;

/// The needs with one quantity alone at its one-in-ten values, what is tied to it moving along. A
/// tied quantity's own ends are what its leader leaves of them.
Ends<quantityCount> tornado(const Cases& cases, const NeedOfCase& need);

/// The quantities by the difference of their ends, the longest first; of equal ones the first.
std::array<std::size_t, quantityCount> tornadoRanks(const Ends<quantityCount>& ends);

/// The design with one lever at its low (-1) or high (+1) end. A choice that nothing can be made
/// of, a separation of 0 or less say, stays in it: it has no length.
BoreholeInputs withLever(BoreholeInputs design, Lever lever, int end);

}  // namespace varnholt
