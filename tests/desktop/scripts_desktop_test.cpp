// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <utility>

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

/// The script's transcripts: by the windows, by the forms.
std::pair<std::string, std::string> transcriptsOf(const std::string& script) {
    const TemporaryFolder folder;
    const std::string file = folder / "long.vscript";
    std::ofstream(file) << script;
    std::string transcripts[2];
    const std::string programs[2] = {"env QT_QPA_PLATFORM=offscreen " VARNHOLT_BIN_DIR
                                     "/varnholt --script",
                                     VARNHOLT_BIN_DIR "/varnholt-script"};
    for (int i = 0; i < 2; ++i) {
        const std::string out = folder / std::to_string(i);
        const std::string command = programs[i] + " '" + file + "' --program-folder '" +
                                    folder.path() + "' --locale 409 >'" + out + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        transcripts[i] = wholeFile(out);
    }
    return {transcripts[0], transcripts[1]};
}

TEST(ScriptsInWindows, KeepATextLongerThanAFieldOfTheToolkitTakes) {
    // The toolkit's own limit is 32,767 characters.
    const std::string text(40000, 'x');
    std::string script = "click Varnmain.NewBorehole\n";
    for (const char* field : {"INProjectNameText", "FLFluidTypeCombo", "INCommentsRichTextBox"})
        script += "type frmBHDesign." + std::string(field) + " " + text + "\nprint frmBHDesign." +
                  field + "\n";
    const auto [windows, forms] = transcriptsOf(script);
    EXPECT_EQ(windows, forms);
    EXPECT_GT(forms.size(), 3 * text.size());
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
