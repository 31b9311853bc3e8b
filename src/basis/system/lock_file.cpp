// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/lock_file.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <limits>
#include <utility>

#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/system/descriptor.h"
#include "basis/system/fingerprint.h"
#include "basis/system/held_marks.h"
#include "basis/system/temporary_names.h"

namespace varnholt {
namespace {

constexpr std::string_view title = "Varnholt Lock";

/// Beside the file at the end of all links. The name has a length of its own, whatever the file's.
std::string markOf(const std::string& path) {
    std::error_code error;
    const std::string whole = std::filesystem::weakly_canonical(path, error).string();
    const std::string& file = error ? path : whole;
    const std::string folder = folderOf(file);
    return joinPath(folder.empty() ? "." : folder,
                    fmt::format(".varnholt-lock-{:016x}", fingerprint(fileNameOf(file))));
}

std::string contentOf(const LockHolder& holder) {
    return fmt::format("{}\n{}\n{}\n{}\n{}\n", title, holder.process.host, holder.process.number,
                       holder.process.begun, holder.user);
}

/// Nothing for a mark that tells nothing, such as one that was cut off.
std::optional<LockHolder> holderOf(const std::string& mark) {
    constexpr std::size_t longest = 4'000;
    try {
        LineFileReader file(readFileStart(mark, longest));
        if (file.line() != title) return std::nullopt;
        LockHolder holder;
        holder.process.host = file.line();
        const double number = leadingNumber(file.line()), begun = leadingNumber(file.line());
        holder.user = file.line();
        // What no process can have is no word of this program's.
        constexpr double mostNumber = std::numeric_limits<int>::max(), mostTicks = 1e18;
        if (!(number >= 1 && number <= mostNumber && begun >= 0 && begun <= mostTicks))
            return std::nullopt;
        holder.process.number = static_cast<int>(number);
        holder.process.begun = static_cast<std::uint64_t>(begun);
        return holder;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool isStale(const std::string& mark) {
    const std::optional<LockHolder> holder = holderOf(mark);
    return !holder || hasEnded(holder->process);
}

/// Takes a mark away that is stale, unless another program has made a new one meanwhile.
void removeStale(const std::string& mark) {
    const std::string aside = temporaryPath(folderOf(mark));
    if (std::rename(mark.c_str(), aside.c_str()) != 0) return;
    if (!isStale(aside)) static_cast<void>(::link(aside.c_str(), mark.c_str()) == 0);
    ::unlink(aside.c_str());
}

/// False, with errno and without a file, where it cannot be written whole.
bool writeNew(const std::string& path, const std::string& content) {
    const Descriptor file(uninterrupted([&] {
        return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    }));
    if (!file.isOpen()) return false;
    if (writeAll(file.number(), content)) return true;
    const int reason = errno;
    ::unlink(path.c_str());
    errno = reason;
    return false;
}

/// Makes the mark in one step. False, with errno, where that cannot be.
bool makeMark(const std::string& mark, const std::string& content) {
    const std::string fresh = temporaryPath(folderOf(mark));
    if (!writeNew(fresh, content)) return false;
    const bool made = ::link(fresh.c_str(), mark.c_str()) == 0;
    int reason = errno;
    ::unlink(fresh.c_str());
    // Some file systems give a file no second name.
    if (!made && (reason == EPERM || reason == ENOTSUP || reason == EMLINK)) {
        if (writeNew(mark, content)) return true;
        reason = errno;
    }
    errno = reason;
    return made;
}

}  // namespace

FileLock::FileLock(FileLock&& other) noexcept : path_(std::exchange(other.path_, {})) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
    if (this == &other) return *this;
    release();
    path_ = std::exchange(other.path_, {});
    return *this;
}

void FileLock::release() {
    const std::string mark = std::exchange(path_, {});
    if (mark.empty()) return;
    const std::optional<LockHolder> holder = holderOf(mark);
    if (holder && holder->process == thisProcess()) ::unlink(mark.c_str());
    letMarkGo(mark);
}

LockAttempt lockFile(const std::string& path) {
    const std::string mark = markOf(path);
    const LockHolder self{thisProcess(), userName()};
    constexpr int mostTries = 10;
    for (int attempt = 0; attempt < mostTries; ++attempt) {
        if (makeMark(mark, contentOf(self))) {
            holdMark(mark, contentOf(self));
            return {FileLock(mark), std::nullopt};
        }
        if (errno != EEXIST) return {};
        const std::optional<LockHolder> holder = holderOf(mark);
        if (holder && holder->process == self.process) return {};
        if (holder && !hasEnded(holder->process)) return {FileLock(), holder};
        removeStale(mark);
    }
    return {};
}

}  // namespace varnholt
