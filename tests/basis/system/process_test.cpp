// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/process.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

namespace varnholt {
namespace {

TEST(Process, KnowsItsFileAndItsNumber) {
    EXPECT_EQ(executablePath(), VARNHOLT_BIN_DIR "/test_basis");
    EXPECT_EQ(processNumber(), getpid());
}

TEST(Process, TellsAnEmptyVariableFromOneThatIsNotSet) {
    setenv("VARNHOLT_TEST_VARIABLE", "", 1);
    EXPECT_EQ(environmentVariable("VARNHOLT_TEST_VARIABLE"), "");
    unsetenv("VARNHOLT_TEST_VARIABLE");
    EXPECT_EQ(environmentVariable("VARNHOLT_TEST_VARIABLE"), std::nullopt);
}

}  // namespace
}  // namespace varnholt
