// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recent_files.h"

#include "persistence/temporary_folder.h"

namespace varnholt {
namespace {

TEST(RecentFiles, StandNewestFirstAndOnce) {
    TemporaryFolder folder;
    for (const char* name : {"a", "b", "c"}) writeBytes(folder / name, "");
    RecentFiles recent(folder / "list");
    recent.add(folder / "a");
    recent.add(folder / "b");
    recent.add(folder / "c");
    recent.add(folder / "a");
    const std::vector<std::string> expected{folder / "a", folder / "c", folder / "b"};
    EXPECT_EQ(recent.files(), expected);
    EXPECT_EQ(RecentFiles(folder / "list").files(), expected);
}

TEST(RecentFiles, AreEightAtMost) {
    TemporaryFolder folder;
    RecentFiles recent(folder / "list");
    for (int i = 0; i < 12; ++i) {
        writeBytes(folder / std::to_string(i), "");
        recent.add(folder / std::to_string(i));
    }
    EXPECT_EQ(recent.files().size(), RecentFiles::most);
    EXPECT_EQ(recent.files().front(), folder / "11");
}

TEST(RecentFiles, LeaveOutWhatIsGone) {
    TemporaryFolder folder;
    writeBytes(folder / "a", "");
    RecentFiles recent(folder / "list");
    recent.add(folder / "a");
    recent.add(folder / "never was");
    EXPECT_EQ(recent.files(), std::vector<std::string>{folder / "a"});
}

TEST(RecentFiles, LiveInTheSessionWhereTheListCannotBeWritten) {
    TemporaryFolder folder;
    writeBytes(folder / "a", "");
    for (const std::string& list : {folder / "no such folder/list", std::string()}) {
        RecentFiles recent(list);
        recent.add(folder / "a");
        EXPECT_EQ(recent.files().size(), 1u);
        recent.clear();
        EXPECT_TRUE(recent.files().empty());
    }
}

}  // namespace
}  // namespace varnholt
