// SPDX-License-Identifier: GPL-3.0-or-later
// What a name may stand for that is no file to be read, and how long any of it takes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>

#include "basis/run_time_error.h"
#include "basis/system/file_source.h"
#include "basis/system/files.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

class AnyFile : public testing::Test {
 protected:
    static int errorOf(const std::string& path, const ReadingLimits& limits = {}) {
        try {
            readWholeFile(path, limits);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    }
    void writeSparse(const std::string& path, off_t size) {
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        ASSERT_EQ(::ftruncate(file, size), 0);
        ::close(file);
    }

    TemporaryFolder folder;
};

TEST_F(AnyFile, ThatIsNoRegularFileIsRefusedAtOnce) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    const auto start = steady_clock::now();
    for (const std::string& path :
         {folder / "pipe", std::string("/dev/zero"), std::string("/dev/null"),
          std::string("/proc/self/status"), std::string("/proc/kmsg"),
          std::string("/sys/kernel/uevent_seqnum"), folder.path()}) {
        if (!fs::exists(path)) continue;
        const int error = errorOf(path);
        EXPECT_TRUE(error == 75 || error == 70) << path << ": " << error;
        EXPECT_FALSE(fileExists(path)) << path;
    }
    EXPECT_LT(steady_clock::now() - start, milliseconds(500));
}

TEST_F(AnyFile, AtTheEndOfLinksInACircleIsRefused) {
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_EQ(errorOf(folder / "a"), 75);
}

TEST_F(AnyFile, MayBeAsLongAsTheLimitAndNoByteLonger) {
    writeSparse(folder / "at", 1000);
    EXPECT_EQ(errorOf(folder / "at", {1000, {}}), 0);
    writeSparse(folder / "over", 1001);
    EXPECT_EQ(errorOf(folder / "over", {1000, {}}), 75);
    // A giant without a byte on the disk.
    writeSparse(folder / "giant", off_t{1} << 40);
    EXPECT_EQ(errorOf(folder / "giant"), 75);
}

TEST(Patience, EndsAtItsTimeThoughTheWorkGoesOn) {
    auto release = std::make_shared<std::atomic<bool>>(false);
    const auto start = steady_clock::now();
    const auto result = patiently<int>(upTo(milliseconds(100)), [release] {
        while (!release->load()) std::this_thread::sleep_for(milliseconds(1));
        return 1;
    });
    const auto waited = steady_clock::now() - start;
    release->store(true);
    EXPECT_FALSE(result.has_value());
    EXPECT_GE(waited, milliseconds(100));
    EXPECT_LT(waited, milliseconds(1000));
}

TEST(Patience, HandsOverResultsAndFaults) {
    EXPECT_EQ(patiently<int>(upTo(milliseconds(1000)), [] { return 7; }), 7);
    EXPECT_THROW(patiently<int>(upTo(milliseconds(1000)), []() -> int { throw RunTimeError(57); }),
                 RunTimeError);
}

}  // namespace
}  // namespace varnholt
