// SPDX-License-Identifier: GPL-3.0-or-later
// One piece of unsaved work on its way to the disk.
#include "persistence/recovery/kept_work.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "basis/file_system.h"
#include "persistence/temporary_folder.h"

namespace varnholt {
namespace {

UnsavedWork workWith(const std::string& document) {
    UnsavedWork work;
    work.record.form = "frmBHDesign";
    work.document = [document] { return document; };
    return work;
}

class KeptWorkTest : public testing::Test {
 protected:
    /// The document in the file; empty for no file.
    std::string written() const {
        if (!fileExists(path)) return {};
        const auto record = readRecord(readWholeFile(path));
        return record ? record->document : "damaged";
    }

    TemporaryFolder folder;
    const std::string path = folder / "recovery/1-1-host/1.unsaved";
    std::shared_ptr<LastWords> lastWords = std::make_shared<LastWords>();
    KeptWork kept{path, lastWords, 0};
};

TEST_F(KeptWorkTest, WaitsUntilItIsWritten) {
    EXPECT_FALSE(kept.isWaiting());
    kept.make(workWith("one"));
    EXPECT_TRUE(kept.isWaiting());
    EXPECT_EQ(written(), "");
    kept.write();
    EXPECT_FALSE(kept.isWaiting());
    EXPECT_EQ(written(), "one");
}

TEST_F(KeptWorkTest, IsNotWrittenTwiceForTheSameDocument) {
    kept.make(workWith("one"));
    kept.write();
    kept.make(workWith("one"));
    EXPECT_FALSE(kept.isWaiting());
    kept.make(workWith("two"));
    EXPECT_TRUE(kept.isWaiting());
}

TEST_F(KeptWorkTest, GoesOnWaitingWhenItCannotBeWritten) {
    kept.make(workWith("one"));
    std::filesystem::create_directories(path);
    kept.write();
    EXPECT_TRUE(kept.isWaiting());
    std::filesystem::remove(path);
    kept.write();
    EXPECT_FALSE(kept.isWaiting());
    EXPECT_EQ(written(), "one");
}

TEST_F(KeptWorkTest, IsWrittenNoMoreOnceItIsDropped) {
    kept.make(workWith("one"));
    kept.drop();
    kept.make(workWith("two"));
    EXPECT_FALSE(kept.isWaiting());
    kept.write();
    EXPECT_EQ(written(), "");
}

/// The signals of a program that fails in its own code.
class Fatal : public KeptWorkTest, public testing::WithParamInterface<int> {
 protected:
    /// Does this in another process, which then ends by the signal.
    void failAfter(const std::function<void()>& action) const {
        const pid_t child = ::fork();
        if (child == 0) {
            // The core would tell nothing.
            const rlimit none{};
            ::setrlimit(RLIMIT_CORE, &none);
            action();
            ::raise(GetParam());
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status));
        EXPECT_EQ(WTERMSIG(status), GetParam());
    }
};

TEST_P(Fatal, SignalsWriteWhatWasMadeLast) {
    failAfter([this] {
        kept.makeFolder();
        for (const char* document : {"one", "two", "three"}) kept.make(workWith(document));
    });
    EXPECT_EQ(written(), "three");
}

TEST_P(Fatal, SignalsWriteNothingThatHasBeenDropped) {
    failAfter([this] {
        kept.makeFolder();
        kept.make(workWith("one"));
        kept.drop();
    });
    EXPECT_EQ(written(), "");
}

/// More calls than any stack holds.
int callWithoutEnd(int depth) {
    volatile char room[4096];
    room[0] = static_cast<char>(depth);
    return depth >= 0 ? callWithoutEnd(depth + 1) + room[0] : 0;
}

TEST_F(KeptWorkTest, IsWrittenThoughTheStackHasOverflowed) {
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit none{};
        ::setrlimit(RLIMIT_CORE, &none);
        kept.makeFolder();
        kept.make(workWith("one"));
        ::_exit(callWithoutEnd(0) == 0 ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(written(), "one");
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, Fatal,
                         testing::Values(SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT));

}  // namespace
}  // namespace varnholt
