// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/folders.h"

#include <gtest/gtest.h>

#include "basis/error_of.h"
#include "basis/system/files.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

TEST(Folders, AreMadeWithThoseAboveThem) {
    const TemporaryFolder folder;
    makeFolders(folder.path("a/b/c"));
    EXPECT_TRUE(isFolder(folder.path("a/b/c")));
    makeFolders(folder.path("a/b/c"));  // there already
    replaceWholeFile(folder.path("file"), "");
    EXPECT_FALSE(isFolder(folder.path("file")));
    EXPECT_EQ(errorOf([&] { makeFolders(folder.path("file/below")); }), 76);
}

TEST(Folders, TellTheirFilesByNameAndNotTheirFolders) {
    const TemporaryFolder folder;
    for (const char* name : {"b", "a", "c"}) replaceWholeFile(folder.path(name), "");
    makeFolders(folder.path("below"));
    const std::vector<std::string> expected{folder.path("a"), folder.path("b"), folder.path("c")};
    EXPECT_EQ(filesIn(folder.path()), expected);
    EXPECT_EQ(errorOf([&] { filesIn(folder.path("missing")); }), 76);
    EXPECT_EQ(errorOf([&] { filesIn(folder.path("a")); }), 76);
}

TEST(Folders, TakeANameOnlyFromNothingThatHoldsFiles) {
    const TemporaryFolder folder;
    makeFolders(folder.path("new"));
    EXPECT_TRUE(renameFolder(folder.path("new"), folder.path("named")));
    replaceWholeFile(folder.path("named/file"), "kept");
    makeFolders(folder.path("second"));
    EXPECT_FALSE(renameFolder(folder.path("second"), folder.path("named")));
    EXPECT_EQ(readWholeFile(folder.path("named/file")), "kept");
}

TEST(Folders, AreRemovedWithAllTheyHold) {
    const TemporaryFolder folder;
    makeFolders(folder.path("a/b"));
    replaceWholeFile(folder.path("a/b/file"), "");
    removeFolder(folder.path("a"));
    EXPECT_FALSE(isFolder(folder.path("a")));
    removeFolder(folder.path("a"));  // nothing to do
}

TEST(AbsolutePath, HasNoDotsAndNoSlashAtItsEnd) {
    EXPECT_EQ(absolutePath("/a/./b/../c/"), "/a/c");
    EXPECT_EQ(absolutePath("/"), "/");
    EXPECT_EQ(absolutePath("a"), currentFolder() + "/a");
}

}  // namespace
}  // namespace varnholt
