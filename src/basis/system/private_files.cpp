// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/private_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "basis/file_system.h"
#include "basis/system/descriptor.h"
#include "basis/system/folders.h"
#include "basis/system/system_error.h"
#include "basis/system/temporary_names.h"

namespace varnholt {
namespace {

constexpr mode_t ownersAlone = 0600, ownersFolder = 0700;

void flushFolder(const std::string& folder) {
    const Descriptor open(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (open.isOpen() && uninterrupted([&] { return ::fsync(open.number()); }) != 0 && errno == EIO)
        throwFileError(errno, folder);
}

}  // namespace

void makePrivateFolder(const std::string& path) {
    makeFolders(folderOf(path));
    if (uninterrupted([&] { return ::mkdir(path.c_str(), ownersFolder); }) != 0 && errno != EEXIST)
        throwFileError(errno, path);
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) throwFileError(errno, path);
    if (!S_ISDIR(status.st_mode)) throwFileError(ENOTDIR, path);
    if ((status.st_mode & 07777) != ownersFolder && ::chmod(path.c_str(), ownersFolder) != 0)
        throwFileError(errno, path);
}

void writePrivateFile(const std::string& path, std::string_view bytes) {
    const std::string folder = folderOf(path);
    const std::string fresh = temporaryPath(folder);
    Descriptor file(uninterrupted([&] {
        return ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                      ownersAlone);
    }));
    if (!file.isOpen()) throwFileError(errno, path);
    const bool written =
        writeAll(file.number(), bytes) &&
        uninterrupted([&] { return ::fsync(file.number()); }) == 0 && file.close() &&
        uninterrupted([&] { return std::rename(fresh.c_str(), path.c_str()); }) == 0;
    if (written) return flushFolder(folder);
    const int reason = errno;
    ::unlink(fresh.c_str());
    throwFileError(reason, path);
}

bool moveFile(const std::string& from, const std::string& to) {
    return !fileExists(to) &&
           uninterrupted([&] { return std::rename(from.c_str(), to.c_str()); }) == 0;
}

}  // namespace varnholt
