// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/file_source.h"

#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <utility>

#include "basis/date.h"
#include "basis/system/descriptor.h"
#include "basis/system/files.h"
#include "basis/system/fingerprint.h"
#include "basis/system/system_error.h"

namespace varnholt {
namespace {

// Together they stay below two seconds.
constexpr std::chrono::milliseconds lookingTime(300), readingTime(1'200);

constexpr std::int64_t coarsestStep = 2 * nanosecondsPerSecond;

std::int64_t inNanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * nanosecondsPerSecond + time.tv_nsec;
}

/// Nothing for a folder.
std::optional<FileStamp> stampBehind(const Descriptor& file) {
    struct stat status {};
    if (!file.isOpen() || uninterrupted([&] { return ::fstat(file.number(), &status); }) != 0 ||
        S_ISDIR(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

}  // namespace

FileStamp stampOf(const struct stat& status) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::int64_t modified = inNanoseconds(status.st_mtim);
    return {status.st_dev, status.st_ino, status.st_size, modified,
            inNanoseconds(now) - modified > coarsestStep};
}

bool isUnchanged(const FileStamp& then, const FileStamp& now) {
    return then.settled && then.device == now.device && then.inode == now.inode &&
           then.size == now.size && then.modified == now.modified;
}

KnownFile knownFile(const FileStamp& stamp, std::string_view bytes) {
    return {stamp, fingerprint(bytes)};
}

std::optional<FileStamp> changedStamp(const std::string& path, const KnownFile& known) {
    const std::optional<FileStamp> now = DiskFiles().stamp(path);
    if (!now || isUnchanged(known.stamp, *now)) return std::nullopt;
    const bool looksSame = now->device == known.stamp.device && now->inode == known.stamp.inode &&
                           now->size == known.stamp.size && now->modified == known.stamp.modified;
    if (looksSame && fingerprint(readOwnFile(path)) == known.fingerprint) return std::nullopt;
    return now;
}

std::optional<FileStamp> DiskFiles::stamp(const std::string& path) const {
    return patiently<std::optional<FileStamp>>(upTo(lookingTime),
                                               [path] { return stampBehind(openForReading(path)); })
        .value_or(std::nullopt);
}

FileSource::Content DiskFiles::read(const std::string& path, const ReadingLimits& limits) {
    const auto readAll = [path, most = limits.mostBytes] {
        const Descriptor file = openForReading(path);
        if (!file.isOpen()) throwFileError(errno, path);
        struct stat status {};
        // Without it nobody could tell later whether the file is still the same.
        if (uninterrupted([&] { return ::fstat(file.number(), &status); }) != 0)
            throwFileError(errno, path);
        const FileStamp stamp = stampOf(status);
        if (stamp.size > static_cast<std::int64_t>(most)) throwFileError(EOVERFLOW, path);
        // A file that grows meanwhile is no longer than it was allowed to be.
        return Content{readToEnd(file, path, most), stamp};
    };
    auto content =
        patiently<Content>(limits.patience ? limits.patience : upTo(readingTime), readAll);
    if (!content) throwFileError(EIO, path);
    return std::move(*content);
}

}  // namespace varnholt
