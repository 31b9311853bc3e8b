// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "scripts/script_run.h"

namespace varnholt {
namespace {

/// What `./run` does where there is no display, from an empty home folder.
class Tour : public testing::Test {
 protected:
    int shell(const std::string& command) const {
        const int status = std::system(("cd '" + home.path() + "' && " + command).c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    int runTour() const {
        return shell("XDG_DATA_HOME=\"$PWD/data\" " VARNHOLT_BIN_DIR
                     "/varnholt-script --locale 409 " VARNHOLT_SOURCE_DIR
                     "/examples/tour.vscript >transcript 2>faults");
    }

    TemporaryFolder home;
};

TEST_F(Tour, RunsOnWhatTheFirstStartPutIntoTheUsersFolder) {
    EXPECT_EQ(runTour(), 0) << wholeFile(home / "faults");
    const std::string transcript = wholeFile(home / "transcript");
    EXPECT_EQ(transcript.find("message"), std::string::npos) << transcript;
    EXPECT_EQ(transcript.find("question"), std::string::npos) << transcript;
}

TEST_F(Tour, ItsTableHasACaptionAndFiguresInEveryRow) {
    ASSERT_EQ(runTour(), 0);
    ASSERT_EQ(shell("awk -f " VARNHOLT_SOURCE_DIR "/scripts/results.awk transcript >table"), 0);
    std::ifstream table(home / "table");
    int rows = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.find(':') == std::string::npos) continue;
        std::istringstream behindCaption(line.substr(line.find(':') + 1));
        double figure = 0;
        EXPECT_TRUE(behindCaption >> figure) << line;
        ++rows;
    }
    // Twelve results, two of the second opinion, five figures of the tower, three results twice,
    // fourteen of the pond, ten of the house and three of the offices.
    EXPECT_EQ(rows, 52);
}

}  // namespace
}  // namespace varnholt
