// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "scripts/random_session.h"
#include "scripts/script_run.h"

namespace varnholt {
namespace {

class ScriptsInWindows : public testing::TestWithParam<std::string> {};

TEST_P(ScriptsInWindows, GiveTheSameTranscriptThroughTheRealWidgets) {
    const SystemScript script(GetParam());
    const ScriptOutcome outcome =
        script.run({"env", "QT_QPA_PLATFORM=offscreen", VARNHOLT_BIN_DIR "/varnholt", "--script"});
    EXPECT_EQ(outcome.status, script.expectedStatus()) << outcome.faults;
    EXPECT_EQ(outcome.transcript, script.expectedTranscript()) << outcome.faults;
}

INSTANTIATE_TEST_SUITE_P(All, ScriptsInWindows, testing::ValuesIn(systemScripts()), scriptTestName);

/// The first line in which two transcripts differ, for a message that can be read.
std::string firstDifference(const std::string& windows, const std::string& forms) {
    std::istringstream left(windows), right(forms);
    std::string a, b;
    while (true) {
        const bool more = static_cast<bool>(std::getline(left, a));
        if (more != static_cast<bool>(std::getline(right, b))) return "one ends after: " + b;
        if (!more) return {};
        if (a != b) return "windows: " + a + "\nforms:   " + b;
    }
}

class RandomSessionsInWindows : public testing::TestWithParam<int> {};

TEST_P(RandomSessionsInWindows, GiveTheTranscriptThatTheFormsGive) {
    const RandomSession session(GetParam());
    const ScriptOutcome forms = session.run(VARNHOLT_BIN_DIR "/varnholt-script");
    const ScriptOutcome windows =
        session.run("env QT_QPA_PLATFORM=offscreen " VARNHOLT_BIN_DIR "/varnholt --script");
    EXPECT_EQ(windows.status, forms.status) << windows.faults;
    EXPECT_EQ(windows.faults, forms.faults);
    EXPECT_EQ(firstDifference(windows.transcript, forms.transcript), "");
}

INSTANTIATE_TEST_SUITE_P(All, RandomSessionsInWindows, testing::Range(1, 6));

}  // namespace
}  // namespace varnholt
