// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/files.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "basis/error_of.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
    std::string path(const std::string& name) const { return folder_.path(name); }

    TemporaryFolder folder_;
};

TEST_F(Files, AReplacedFileHoldsTheNewBytesAndNothingElseIsLeft) {
    replaceWholeFile(path("a.txt"), "one");
    replaceWholeFile(path("a.txt"), "two");
    EXPECT_EQ(readWholeFile(path("a.txt")), "two");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()), 1);
}

TEST_F(Files, ReplacingThroughASymbolicLinkKeepsTheLinkAndThePermissions) {
    replaceWholeFile(path("real.txt"), "old");
    ASSERT_EQ(::chmod(path("real.txt").c_str(), 0640), 0);
    fs::create_symlink("real.txt", path("link.txt"));
    replaceWholeFile(path("link.txt"), "new");
    EXPECT_TRUE(fs::is_symlink(path("link.txt")));
    EXPECT_EQ(readWholeFile(path("real.txt")), "new");
    struct stat status {};
    ASSERT_EQ(::stat(path("real.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST_F(Files, MissingFilesAndFoldersHaveTheirOwnErrors) {
    EXPECT_EQ(errorOf([&] { readWholeFile(path("missing.txt")); }), 53);
    EXPECT_EQ(errorOf([&] { readWholeFile(path("nowhere/missing.txt")); }), 76);
    EXPECT_EQ(errorOf([&] { replaceWholeFile(path("nowhere/new.txt"), "x"); }), 76);
    EXPECT_EQ(errorOf([&] { readWholeFile("no such file, named without a folder"); }), 53);
    EXPECT_FALSE(fileExists(path("missing.txt")));
    EXPECT_FALSE(fileExists(folder_.path()));
}

TEST_F(Files, AFolderInPlaceOfTheFileIsRefusedAndStays) {
    fs::create_directory(path("taken"));
    EXPECT_EQ(errorOf([&] { replaceWholeFile(path("taken"), "x"); }), 75);
    EXPECT_EQ(errorOf([&] { readWholeFile(path("taken")); }), 75);
    EXPECT_TRUE(fs::is_directory(path("taken")));
}

TEST_F(Files, ACopyOfAReadOnlyFileCanBeWritten) {
    replaceWholeFile(path("original"), "bytes");
    ASSERT_EQ(::chmod(path("original").c_str(), 0400), 0);
    copyFile(path("original"), path("copy"));
    EXPECT_EQ(readWholeFile(path("copy")), "bytes");
    EXPECT_NE(fs::status(path("copy")).permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(Files, ACopyTakesNoNameThatIsTaken) {
    replaceWholeFile(path("original"), "bytes");
    replaceWholeFile(path("taken"), "other");
    EXPECT_EQ(errorOf([&] { copyFile(path("original"), path("taken")); }), 75);
    EXPECT_EQ(readWholeFile(path("taken")), "other");
    EXPECT_EQ(errorOf([&] { copyFile(path("missing"), path("copy")); }), 53);
}

TEST_F(Files, InputIsReadLineByLineAndAFolderIsNone) {
    replaceWholeFile(path("script"), "one\ntwo\n");
    const std::unique_ptr<std::istream> input = openInput(path("script"));
    ASSERT_NE(input, nullptr);
    std::string line;
    std::getline(*input, line);
    EXPECT_EQ(line, "one");
    EXPECT_EQ(openInput(folder_.path()), nullptr);
    EXPECT_EQ(openInput(path("missing")), nullptr);
    replaceWholeFile(path("empty"), "");
    EXPECT_NE(openInput(path("empty")), nullptr);
}

TEST_F(Files, InputIsNoPipeOrDeviceThatMayNeverEndButWhatTheCallerHasOpened) {
    ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(openInput(path("pipe")), nullptr);
    EXPECT_EQ(openInput("/dev/zero"), nullptr);
    EXPECT_NE(openInput("/dev/null"), nullptr);

    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::write(ends[1], "one\n", 4), 4);
    ::close(ends[1]);
    const std::unique_ptr<std::istream> input = openInput("/dev/fd/" + std::to_string(ends[0]));
    ::close(ends[0]);
    ASSERT_NE(input, nullptr);
    std::string line;
    std::getline(*input, line);
    EXPECT_EQ(line, "one");
}

TEST_F(Files, ACopyThatFindsTheDiskFullSaysSoAndLeavesNothing) {
    replaceWholeFile(path("original"), std::string(5000, 'x'));
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto ignored = ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit small { 1000, before.rlim_max };
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const int error = errorOf([&] { copyFile(path("original"), path("copy")); });
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ::signal(SIGXFSZ, ignored);
    EXPECT_EQ(error, 61);
    EXPECT_FALSE(fs::exists(path("copy")));
}

TEST_F(Files, PathsThatMeetInOneFileAreTheSame) {
    replaceWholeFile(path("a"), "");
    fs::create_symlink("a", path("link"));
    EXPECT_TRUE(samePath(path("a"), path("link")));
    EXPECT_TRUE(samePath(path("a"), path("x/../a")));
    EXPECT_TRUE(samePath(path("missing"), path("./missing")));
    EXPECT_FALSE(samePath(path("a"), path("b")));
}

}  // namespace
}  // namespace varnholt
