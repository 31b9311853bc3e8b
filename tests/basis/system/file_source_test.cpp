// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/file_source.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "basis/run_time_error.h"
#include "basis/system/files.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class FileStamps : public testing::Test {
 protected:
    FileStamps() { write("one"); }

    void write(const std::string& bytes) { replaceWholeFile(path_, bytes); }
    void setAge(fs::file_time_type::duration age) {
        fs::last_write_time(path_, fs::file_time_type::clock::now() - age);
    }
    FileStamp stamp() const { return disk_.stamp(path_).value(); }

    TemporaryFolder folder_;
    std::string path_ = folder_.path("file");
    DiskFiles disk_;
};

TEST_F(FileStamps, OfAFileThatRestsAreEqual) {
    setAge(1min);
    EXPECT_TRUE(isUnchanged(stamp(), stamp()));
    EXPECT_TRUE(isUnchanged(disk_.read(path_).stamp, stamp()));
}

TEST_F(FileStamps, ShowAChangedTimeToTheNanosecond) {
    setAge(1min);
    const FileStamp before = stamp();
    fs::last_write_time(path_, fs::last_write_time(path_) + 1ns);
    EXPECT_EQ(stamp().modified, before.modified + 1);
    EXPECT_FALSE(isUnchanged(before, stamp()));
}

TEST_F(FileStamps, ShowAnotherSizeAndAnotherFileOfTheSameTime) {
    setAge(1min);
    const FileStamp before = stamp();
    const fs::file_time_type time = fs::last_write_time(path_);
    write("two");  // takes the name while the old file is still there, so it is another one
    fs::last_write_time(path_, time);
    EXPECT_NE(stamp().inode, before.inode);
    EXPECT_FALSE(isUnchanged(before, stamp()));
    const FileStamp second = stamp();
    fs::resize_file(path_, 2);
    fs::last_write_time(path_, time);
    EXPECT_EQ(stamp().inode, second.inode);
    EXPECT_FALSE(isUnchanged(second, stamp()));
}

TEST_F(FileStamps, OfAFileThatWasWrittenJustNowProveNothing) {
    EXPECT_FALSE(isUnchanged(stamp(), stamp()));
    setAge(-1h);  // by a clock that goes wrong
    EXPECT_FALSE(isUnchanged(stamp(), stamp()));
}

TEST_F(FileStamps, AreThereOnlyForFilesThatOpen) {
    EXPECT_FALSE(disk_.stamp(folder_.path("missing")));
    EXPECT_FALSE(disk_.stamp(folder_.path()));
    EXPECT_EQ(disk_.read(path_).bytes, "one");
    EXPECT_THROW(disk_.read(folder_.path("missing")), RunTimeError);
}

}  // namespace
}  // namespace varnholt
