// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "basis/system/lock_file.h"

namespace varnholt {

/// Another process, which has a file open as long as this object lasts and is then killed: its mark
/// beside the file stays.
class OtherProgram {
 public:
    explicit OtherProgram(const std::string& path) {
        int marked[2];
        EXPECT_EQ(::pipe(marked), 0);
        process_ = ::fork();
        if (process_ == 0) waitWith(path, marked[1]);
        char answer = 0;
        EXPECT_EQ(::read(marked[0], &answer, 1), 1);
        EXPECT_EQ(answer, 'y');
        ::close(marked[0]);
        ::close(marked[1]);
    }
    ~OtherProgram() {
        ::kill(process_, SIGKILL);
        int status = 0;
        ::waitpid(process_, &status, 0);
    }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    int process() const { return process_; }

 private:
    [[noreturn]] static void waitWith(const std::string& path, int marked) {
        const LockAttempt attempt = lockFile(path);
        const char answer = attempt.holder ? 'n' : 'y';
        if (::write(marked, &answer, 1) == 1) ::pause();
        ::_exit(0);
    }

    pid_t process_ = 0;
};

}  // namespace varnholt
