// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include "basis/run_time_error.h"

namespace varnholt {

/// Runs an action that has to end in the run-time error of this number.
template <class Action>
void expectError(int number, Action action) {
    try {
        action();
        ADD_FAILURE() << "no error where error " << number << " was expected";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), number);
    }
}

}  // namespace varnholt
