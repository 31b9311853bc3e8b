// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "scripts/script_run.h"

namespace varnholt {
namespace {

class Scripts : public testing::TestWithParam<std::string> {};

TEST_P(Scripts, GiveTheirTranscriptWithoutAScreen) {
    const SystemScript script(GetParam());
    const ScriptOutcome outcome = script.run({VARNHOLT_BIN_DIR "/varnholt-script"});
    EXPECT_EQ(outcome.status, script.expectedStatus()) << outcome.faults;
    EXPECT_EQ(outcome.transcript, script.expectedTranscript()) << outcome.faults;
}

INSTANTIATE_TEST_SUITE_P(All, Scripts, testing::ValuesIn(systemScripts()), scriptTestName);

}  // namespace
}  // namespace varnholt
