// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/files.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "basis/system/descriptor.h"
#include "basis/system/file_source.h"
#include "basis/system/process.h"
#include "basis/system/system_error.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

std::string resolvedTarget(const std::string& path) {
    std::error_code error;
    if (!fs::is_symlink(path, error)) return path;
    const fs::path target = fs::weakly_canonical(path, error);
    return error ? path : target.string();
}

}  // namespace

bool fileExists(const std::string& path) { return DiskFiles().stamp(path).has_value(); }

std::string readWholeFile(const std::string& path) { return DiskFiles().read(path).bytes; }

std::string readFileStart(const std::string& path, std::size_t most) {
    const Descriptor file = openForReading(path);
    if (!file.isOpen()) throwFileError(errno, path);
    return readToEnd(file, path, most);
}

void replaceWholeFile(const std::string& path, std::string_view bytes) {
    const std::string target = resolvedTarget(path);
    struct stat old {};
    const bool replacing = ::stat(target.c_str(), &old) == 0;
    // A file that may not be written is not replaced, though its folder would allow it.
    if (replacing && (S_ISDIR(old.st_mode) || ::access(target.c_str(), W_OK) != 0))
        throwFileError(S_ISDIR(old.st_mode) ? EISDIR : errno, target);

    const std::string fresh = fmt::format("{}.{}.new", target, processNumber());
    Descriptor file(::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (!file.isOpen()) throwFileError(errno == ENOENT ? ENOTDIR : errno, target);
    const bool written = (!replacing || ::fchmod(file.number(), old.st_mode & 07777) == 0) &&
                         writeAll(file.number(), bytes) && ::fsync(file.number()) == 0 &&
                         file.close() && ::rename(fresh.c_str(), target.c_str()) == 0;
    if (written) return;
    const int reason = errno;
    ::unlink(fresh.c_str());
    throwFileError(reason, target);
}

void copyFile(const std::string& from, const std::string& to) {
    std::error_code error;
    fs::copy_file(from, to, error);
    if (error) throwFileError(error.value(), from);
    fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add,
                    error);
    if (error) throwFileError(error.value(), to);
}

bool removeFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

std::unique_ptr<std::istream> openInput(const std::string& path) {
    auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
    // A folder opens, but nothing can be read from it.
    if (!*file || (file->peek(), file->bad())) return nullptr;
    return file;
}

bool samePath(const std::string& a, const std::string& b) {
    std::error_code error;
    const fs::path first = fs::weakly_canonical(fs::absolute(a, error), error);
    const fs::path second = fs::weakly_canonical(fs::absolute(b, error), error);
    return first == second;
}

}  // namespace varnholt
