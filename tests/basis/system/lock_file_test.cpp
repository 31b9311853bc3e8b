// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/lock_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "basis/file_system.h"
#include "basis/system/end_signals.h"
#include "basis/system/last_words.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class Locks : public testing::Test {
 protected:
    Locks() : path(folder / "school.vht") { replaceWholeFile(path, ""); }

    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
    /// Another process that marks the file and waits; returns when the mark is there.
    pid_t lockElsewhere(const std::string& file) {
        int marked[2];
        EXPECT_EQ(::pipe(marked), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            const LockAttempt attempt = lockFile(file);
            const char answer = attempt.holder ? 'n' : 'y';
            if (::write(marked[1], &answer, 1) == 1) ::pause();
            ::_exit(0);
        }
        char answer = 0;
        EXPECT_EQ(::read(marked[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        ::close(marked[0]);
        ::close(marked[1]);
        return child;
    }
    /// Another process that has two files open, of which it closes the first, and is then ended by
    /// a signal; the signal.
    int endElsewhere(const std::function<void()>& end) const {
        const pid_t child = ::fork();
        if (child == 0) {
            // Tests that run in the background would ignore some of them.
            for (const int signal : {SIGTERM, SIGHUP, SIGINT}) ::signal(signal, SIG_DFL);
            { const LockAttempt closed = lockFile(folder / "closed.vht"); }
            const LockAttempt first = lockFile(path);
            const LockAttempt second = lockFile(folder / "house.vht");
            if (filesInFolder() == 3) end();
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
    static void kill(pid_t child) {
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
    }

    TemporaryFolder folder;
    std::string path;
};

TEST_F(Locks, LastAsLongAsTheFileIsOpen) {
    {
        const LockAttempt attempt = lockFile(path);
        EXPECT_FALSE(attempt.holder.has_value());
        EXPECT_EQ(filesInFolder(), 2U);
    }
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(Locks, TellWhoHasTheFileOpen) {
    const pid_t child = lockElsewhere(path);
    fs::create_symlink("school.vht", folder / "link.vht");
    for (const std::string& name : {path, folder / "link.vht"}) {
        const LockAttempt attempt = lockFile(name);
        ASSERT_TRUE(attempt.holder.has_value());
        EXPECT_EQ(attempt.holder->process.number, child);
        EXPECT_EQ(attempt.holder->process.host, thisProcess().host);
        EXPECT_EQ(attempt.holder->user, userName());
    }
    kill(child);
}

TEST_F(Locks, LeaveNothingBehindWhereTheDiskIsFull) {
    struct rlimit before {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto ignored = ::signal(SIGXFSZ, SIG_IGN);
    const struct rlimit small { 4, before.rlim_max };
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const LockAttempt attempt = lockFile(path);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    ::signal(SIGXFSZ, ignored);
    EXPECT_FALSE(attempt.holder.has_value());
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(Locks, OfAProgramThatWasKilledAreTakenAway) {
    kill(lockElsewhere(path));
    EXPECT_EQ(filesInFolder(), 2U);
    const LockAttempt attempt = lockFile(path);
    EXPECT_FALSE(attempt.holder.has_value());
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(Locks, GoWithAProgramThatASignalEnds) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(signal);
        EXPECT_EQ(endElsewhere([&] {
                      const EndSignals signals;
                      EndSignals::endBy(signal);
                  }),
                  signal);
        EXPECT_EQ(filesInFolder(), 1U);
        // While the program waits, nothing but the handler runs.
        EXPECT_EQ(endElsewhere([&] {
                      EndSignals signals;
                      signals.setWaiting(true);
                      ::raise(signal);
                  }),
                  signal);
        EXPECT_EQ(filesInFolder(), 1U);
    }
}

TEST_F(Locks, GoWithAProgramThatFailsInItsOwnCode) {
    for (const int signal : {SIGSEGV, SIGABRT}) {
        EXPECT_EQ(endElsewhere([&] {
                      const LastWords words;
                      ::raise(signal);
                  }),
                  signal);
        EXPECT_EQ(filesInFolder(), 1U) << signal;
    }
}

TEST_F(Locks, OfAnotherProgramStayWhenASignalEndsThisOne) {
    // Somebody has taken the mark away by hand, and another program has made its own since.
    EXPECT_EQ(endElsewhere([&] {
                  for (const auto& entry : fs::directory_iterator(folder.path()))
                      if (entry.path().filename().string().starts_with(".varnholt-lock"))
                          std::ofstream(entry.path()) << "another's";
                  EndSignals::endBy(SIGTERM);
              }),
              SIGTERM);
    EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(Locks, OfAProcessAreNotThoseOfItsChildren) {
    const LockAttempt attempt = lockFile(path);
    const pid_t child = ::fork();
    if (child == 0) EndSignals::endBy(SIGTERM);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(Locks, ThatNameWhatCanBeNoProcessAreTakenAway) {
    std::string mark;
    {
        const LockAttempt attempt = lockFile(path);
        for (const auto& entry : fs::directory_iterator(folder.path()))
            if (entry.path() != path) mark = entry.path().string();
    }
    for (const char* number : {"0", "-5", "999999999999", "x"}) {
        std::ofstream(mark) << "Varnholt Lock\n"
                            << thisProcess().host << '\n'
                            << number << "\n1\nanna\n";
        const LockAttempt attempt = lockFile(path);
        EXPECT_FALSE(attempt.holder.has_value()) << number;
        EXPECT_EQ(filesInFolder(), 2U);
    }
}

TEST_F(Locks, OfFilesWithTheLongestNamesAreMadeToo) {
    const std::string longest = folder / (std::string(251, 'n') + ".vht");
    replaceWholeFile(longest, "");
    const LockAttempt attempt = lockFile(longest);
    EXPECT_EQ(filesInFolder(), 3U);
}

TEST_F(Locks, AreDoneWithoutWhereTheFolderIsNone) {
    const LockAttempt attempt = lockFile(folder / "nowhere/school.vht");
    EXPECT_FALSE(attempt.holder.has_value());
}

}  // namespace
}  // namespace varnholt
