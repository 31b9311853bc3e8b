// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "basis/system/process.h"

namespace varnholt {

/// Who has a file open.
struct LockHolder {
    ProcessIdentity process;
    std::string user;
};

struct LockAttempt;

/// The mark that a file is open in this program: a hidden file beside it, which names the program's
/// computer, process and user and lasts as long as this object, or until a signal that can be
/// caught ends the program. It keeps nobody from anything.
class FileLock {
 public:
    FileLock() = default;
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;
    ~FileLock() { release(); }

    void release();

 private:
    friend LockAttempt lockFile(const std::string& path);
    explicit FileLock(std::string path) : path_(std::move(path)) {}

    std::string path_;  ///< of the mark; empty for none
};

/// What came of marking a file: the mark, or who has marked it before. Neither where the folder
/// cannot be written, or where this program has marked it already.
struct LockAttempt {
    FileLock lock;
    std::optional<LockHolder> holder;
};

/// Marks a file as open. Marks of programs that have ended are taken away. Does not throw.
LockAttempt lockFile(const std::string& path);

}  // namespace varnholt
