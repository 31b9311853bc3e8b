// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

#include "design/secondOpinion/g_function_memory.h"

namespace varnholt::secondOpinion {

/// A length of bore that agrees with the g-function of its own depth.
struct SettledDepth {
    enum State {
        waiting,  ///< for a g-function that the memory has to compute first
        settled,
        tooDeep,       ///< no depth up to the greatest one is enough
        notComputable  ///< a length came out as no number
    };
    State state = waiting;
    double length = 0;  ///< of all bores, ft
};

/// What a search for a depth needs to know.
struct DepthSearch {
    double bores = 1;
    double startDepth = 0;                          ///< ft; a guess
    std::size_t deepestRung = rungOfGreatestDepth;  ///< greatest depth that is tried
};

/// Looks for the depth at which a field is as long as its g-function asks for. The search goes from
/// rung to rung until the depth lies between two of them, and there by secant steps to 1E-4 at
/// least. A length of less than 10 ft a bore, even one below 0, is that with the g-function of
/// 10 ft.
/// @param lengthWith  the length of all bores that a g-function asks for, ft
SettledDepth settleDepth(GFunctionMemory& memory, const DepthSearch& search,
                         const std::function<double(const DepthFunction&)>& lengthWith);

}  // namespace varnholt::secondOpinion
