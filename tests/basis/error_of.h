// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/run_time_error.h"

namespace varnholt {

/// The number of the run-time error that an action ends in, 0 for none.
template <class Action>
int errorOf(Action&& action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace varnholt
