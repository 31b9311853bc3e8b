// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/file_source.h"

#include <sys/stat.h>

#include <cerrno>
#include <ctime>

#include "basis/system/descriptor.h"
#include "basis/system/system_error.h"

namespace varnholt {
namespace {

constexpr std::int64_t nanoseconds = 1'000'000'000;  // of a second
constexpr std::int64_t coarsestStep = 2 * nanoseconds;

std::int64_t inNanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * nanoseconds + time.tv_nsec;
}

/// Nothing for a folder.
std::optional<FileStamp> stampOf(const Descriptor& file) {
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || S_ISDIR(status.st_mode))
        return std::nullopt;
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::int64_t modified = inNanoseconds(status.st_mtim);
    return FileStamp{status.st_dev, status.st_ino, status.st_size, modified,
                     inNanoseconds(now) - modified > coarsestStep};
}

}  // namespace

bool isUnchanged(const FileStamp& then, const FileStamp& now) {
    return then.settled && then.device == now.device && then.inode == now.inode &&
           then.size == now.size && then.modified == now.modified;
}

std::optional<FileStamp> DiskFiles::stamp(const std::string& path) const {
    return stampOf(openForReading(path));
}

FileSource::Content DiskFiles::read(const std::string& path) const {
    const Descriptor file = openForReading(path);
    if (!file.isOpen()) throwFileError(errno, path);
    const FileStamp stamp = stampOf(file).value_or(FileStamp{});
    return {readToEnd(file, path), stamp};
}

}  // namespace varnholt
