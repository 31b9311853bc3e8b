// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "scripts/random_session.h"

namespace varnholt {
namespace {

class RandomSessions : public testing::TestWithParam<int> {};

TEST_P(RandomSessions, RunAgainAsScripts) {
    const RandomSession session(GetParam());
    const ScriptOutcome outcome = session.run(VARNHOLT_BIN_DIR "/varnholt-script");
    EXPECT_EQ(outcome.status, 0) << outcome.faults;
    EXPECT_NE(outcome.transcript, "");
}

INSTANTIATE_TEST_SUITE_P(All, RandomSessions, testing::Range(1, 6));

}  // namespace
}  // namespace varnholt
