// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "basis/run_time_error.h"
#include "basis/system/descriptor.h"
#include "basis/system/file_source.h"
#include "basis/system/system_error.h"

namespace varnholt {

namespace fs = std::filesystem;

bool fileExists(const std::string& path) { return DiskFiles().stamp(path).has_value(); }

std::string readWholeFile(const std::string& path, const ReadingLimits& limits) {
    return DiskFiles::read(path, limits).bytes;
}

std::string readOwnFile(const std::string& path) {
    constexpr std::size_t anyLength = std::size_t{1} << 40;
    return readWholeFile(path, {anyLength, {}});
}

std::string readFileStart(const std::string& path, std::size_t most) {
    const auto readStart = [path, most] {
        const Descriptor file = openForReading(path);
        if (!file.isOpen()) throwFileError(errno, path);
        return readToEnd(file, path, most);
    };
    const auto bytes = patiently<std::string>(upTo(std::chrono::milliseconds(1'200)), readStart);
    if (!bytes) throwFileError(EIO, path);
    return *bytes;
}

void copyFile(const std::string& from, const std::string& to) {
    constexpr std::size_t anyLength = std::size_t{1} << 40;
    const std::string bytes = readWholeFile(from, {anyLength, upTo(std::chrono::seconds(30))});
    const Descriptor file(uninterrupted([&] {
        return ::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    }));
    if (!file.isOpen()) throwFileError(errno, to);
    if (writeAll(file.number(), bytes)) return;
    const int reason = errno;
    ::unlink(to.c_str());
    throwFileError(reason, to);
}

bool removeFile(const std::string& path) { return ::unlink(path.c_str()) == 0; }

namespace {

/// What whoever called the program has opened for it, such as a pipe of the shell's, or what ends
/// at once.
bool isCallersOwnInput(const std::string& path) {
    return path == "/dev/stdin" || path == "/dev/null" || path.starts_with("/dev/fd/") ||
           path.starts_with("/proc/self/fd/");
}

}  // namespace

std::unique_ptr<std::istream> openInput(const std::string& path) {
    if (isCallersOwnInput(path)) {
        auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
        // A folder opens, but nothing can be read from it.
        if (!*file || (file->peek(), file->bad())) return nullptr;
        return file;
    }
    try {
        return std::make_unique<std::istringstream>(readWholeFile(path));
    } catch (const RunTimeError&) {
        return nullptr;
    }
}

bool samePath(const std::string& a, const std::string& b) {
    if (a == b) return true;
    // Folders that do not answer are told by their names alone.
    constexpr std::chrono::milliseconds patience(300);
    return patiently<bool>(
               upTo(patience),
               [a, b] {
                   std::error_code error;
                   const fs::path first = fs::weakly_canonical(fs::absolute(a, error), error);
                   const fs::path second = fs::weakly_canonical(fs::absolute(b, error), error);
                   return first == second;
               })
        .value_or(false);
}

}  // namespace varnholt
