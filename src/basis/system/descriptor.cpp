// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/descriptor.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

#include <algorithm>
#include <iterator>

#include "basis/system/system_error.h"

namespace varnholt {
namespace {

/// File systems whose files are windows into the running system: some of them never end, and
/// reading or writing others does something.
constexpr unsigned long systemsOwn[] = {
    PROC_SUPER_MAGIC,   SYSFS_MAGIC,         DEBUGFS_MAGIC,    TRACEFS_MAGIC,
    CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC, SECURITYFS_MAGIC, BPF_FS_MAGIC,
};

/// Whether a file of anybody's can be behind the descriptor. Sets errno where not.
bool holdsAFile(int descriptor) {
    struct stat status {};
    struct statfs place {};
    if (uninterrupted([&] { return ::fstat(descriptor, &status); }) != 0) return false;
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : ENODEV;
        return false;
    }
    if (uninterrupted([&] { return ::fstatfs(descriptor, &place); }) != 0) return false;
    errno = ENODEV;
    return std::find(std::begin(systemsOwn), std::end(systemsOwn),
                     static_cast<unsigned long>(place.f_type)) == std::end(systemsOwn);
}

}  // namespace

Descriptor openForReading(const std::string& path) {
    // A pipe or device that is refused afterwards must not hold the program up before.
    const int opened = uninterrupted(
        [&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); });
    if (opened >= 0 && !holdsAFile(opened)) {
        const int reason = errno;
        ::close(opened);
        errno = reason;
        return Descriptor(-1);
    }
    return Descriptor(opened);
}

std::string readToEnd(const Descriptor& file, const std::string& path, std::size_t most) {
    std::string bytes;
    struct stat status {};
    if (::fstat(file.number(), &status) == 0 && status.st_size > 0)
        bytes.reserve(std::min(static_cast<std::size_t>(status.st_size), most));
    char buffer[65536];
    for (;;) {
        const std::size_t wanted = std::min(sizeof buffer, most - bytes.size());
        const ssize_t got = uninterrupted([&] { return ::read(file.number(), buffer, wanted); });
        if (got < 0) throwFileError(errno, path);
        if (got == 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(got));
    }
}

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written =
            uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        // No progress without an error would go on for ever.
        if (written == 0) errno = EIO;
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace varnholt
