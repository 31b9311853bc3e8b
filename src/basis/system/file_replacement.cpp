// SPDX-License-Identifier: GPL-3.0-or-later
// How a file is replaced: under a name of its own until it is complete, or in place.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <climits>
#include <cstdio>
#include <thread>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/descriptor.h"
#include "basis/system/file_attributes.h"
#include "basis/system/kept_copy.h"
#include "basis/system/system_error.h"
#include "basis/system/temporary_names.h"

namespace varnholt {
namespace {

/// The file at the end of symbolic links, or the path itself where nothing is there yet.
std::string targetOf(const std::string& path) {
    constexpr int mostLinks = 40;  // as many as the system itself follows
    std::string target = path;
    for (int link = 0; link < mostLinks; ++link) {
        struct stat status {};
        if (::lstat(target.c_str(), &status) != 0) {
            if (errno != ENOENT) throwFileError(errno, target);
            if (link == 0) return target;
            break;
        }
        if (!S_ISLNK(status.st_mode)) return target;
        std::array<char, PATH_MAX> text{};
        const ssize_t length = ::readlink(target.c_str(), text.data(), text.size());
        if (length < 0) throwFileError(errno, target);
        const std::string next(text.data(), static_cast<std::size_t>(length));
        target = next.starts_with('/') ? next : joinPath(folderOf(target), next);
    }
    throwFileError(ELOOP, path);
}

/// Makes sure that a new name survives a failing power supply too.
void flushFolder(const std::string& folder, const std::string& path) {
    const Descriptor open(
        uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    // A folder that may be written but not read cannot be flushed by itself.
    if (!open.isOpen()) return;
    if (uninterrupted([&] { return ::fsync(open.number()); }) != 0 && errno == EIO)
        throwFileError(errno, path);
}

/// Programs that save into one folder at a moment take turns. Another one that does not end is
/// not waited for, nor is a folder without such locks.
class FolderTurn {
 public:
    explicit FolderTurn(const std::string& folder)
        : folder_(uninterrupted(
              [&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })) {
        using namespace std::chrono_literals;
        constexpr int mostTries = 200;
        for (int attempt = 0; folder_.isOpen() && attempt < mostTries; ++attempt) {
            if (::flock(folder_.number(), LOCK_EX | LOCK_NB) == 0) return;
            if (errno != EWOULDBLOCK && errno != EINTR) return;
            std::this_thread::sleep_for(10ms);
        }
    }

 private:
    Descriptor folder_;
};

/// One replacement of one file.
class Replacement {
 public:
    Replacement(const std::string& path, std::string_view bytes)
        : target_(targetOf(path)), folder_(folderOf(target_)), bytes_(bytes) {
        if (folder_.empty()) folder_ = ".";
        replacing_ = uninterrupted([&] { return ::stat(target_.c_str(), &old_); }) == 0;
        // Whatever is not known to be missing is there.
        if (!replacing_ && errno != ENOENT) throwFileError(errno, target_);
        if (!replacing_) return;
        // A file that may not be written is not replaced, though its folder would allow it.
        if (!S_ISREG(old_.st_mode)) throwFileError(EISDIR, target_);
        if (::access(target_.c_str(), W_OK) != 0) throwFileError(errno, target_);
    }

    const std::string& folder() const { return folder_; }

    FileStamp run() {
        removeLeftovers(folder_);
        const FileStamp stamp =
            replacing_ && old_.st_nlink > 1 ? writeInPlace() : replaceByName(target_, bytes_);
        flushFolder(folder_, target_);
        return stamp;
    }

 private:
    [[noreturn]] void fail(int reason) const { throwFileError(reason, target_); }

    /// Writes the bytes under a name that nobody can guess, and renames.
    FileStamp replaceByName(const std::string& name, std::string_view bytes) const {
        const std::string fresh = temporaryPath(folder_);
        // Until it has the rights of the old file nobody else may look into it.
        const mode_t rights = replacing_ ? 0600 : 0666;
        Descriptor file(uninterrupted([&] {
            return ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                          rights);
        }));
        if (!file.isOpen()) fail(errno == ENOENT ? ENOTDIR : errno);
        struct stat status {};
        const bool isCopy = name != target_;
        const bool written =
            writeAll(file.number(), bytes) &&
            (!replacing_ || isCopy || takeAttributes(file.number(), target_, old_)) &&
            flush(file) && ::fstat(file.number(), &status) == 0 && file.close() &&
            uninterrupted([&] { return std::rename(fresh.c_str(), name.c_str()); }) == 0;
        if (written) return stampOf(status);
        const int reason = errno;
        ::unlink(fresh.c_str());
        fail(reason);
    }

    static bool flush(const Descriptor& file) {
        return uninterrupted([&] { return ::fsync(file.number()); }) == 0;
    }

    FileStamp writeInPlace() const {
        const std::string before = readOwnFile(target_);
        const std::string copy = keptCopyPath(folder_, old_.st_ino, bytes_);
        replaceByName(copy, before);
        flushFolder(folder_, target_);
        Descriptor file(uninterrupted(
            [&] { return ::open(target_.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); }));
        struct stat status {};
        if (file.isOpen() && overwrite(file, bytes_) && ::fstat(file.number(), &status) == 0 &&
            file.close()) {
            ::unlink(copy.c_str());
            return stampOf(status);
        }
        const int reason = errno;
        // What could not be written does not stand in the way of what was there.
        if (!file.isOpen() || overwrite(file, before)) ::unlink(copy.c_str());
        fail(reason);
    }

    static bool overwrite(const Descriptor& file, std::string_view bytes) {
        return uninterrupted([&] { return ::lseek(file.number(), 0, SEEK_SET); }) == 0 &&
               writeAll(file.number(), bytes) &&
               uninterrupted([&] {
                   return ::ftruncate(file.number(), static_cast<off_t>(bytes.size()));
               }) == 0 &&
               flush(file);
    }

    std::string target_, folder_;
    std::string_view bytes_;
    struct stat old_ {};
    bool replacing_ = false;
};

}  // namespace

FileStamp replaceWholeFile(const std::string& path, std::string_view bytes) {
    Replacement replacement(path, bytes);
    const FolderTurn turn(replacement.folder());
    return replacement.run();
}

std::optional<FileStamp> replaceKnownFile(const std::string& path, std::string_view bytes,
                                          const KnownFile& known) {
    Replacement replacement(path, bytes);
    const FolderTurn turn(replacement.folder());
    if (changedStamp(path, known)) return std::nullopt;
    return replacement.run();
}

}  // namespace varnholt
