// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/folders.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "basis/system/system_error.h"

namespace varnholt {

namespace fs = std::filesystem;

bool isFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

namespace {

/// The paths of a folder's entries that are of the kind, by name.
template <class IsWanted>
std::vector<std::string> entriesOf(const std::string& folder, const IsWanted& isWanted) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    std::vector<std::string> found;
    for (; !error && entries != fs::directory_iterator(); entries.increment(error))
        if (isWanted(*entries)) found.push_back(entries->path().string());
    if (error) throwFileError(error.value() == ENOENT ? ENOTDIR : error.value(), folder);
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace

std::vector<std::string> filesIn(const std::string& folder) {
    return entriesOf(folder, [](const fs::directory_entry& entry) {
        std::error_code ignored;
        return entry.is_regular_file(ignored);
    });
}

std::vector<std::string> foldersIn(const std::string& folder) {
    return entriesOf(folder, [](const fs::directory_entry& entry) {
        std::error_code ignored;
        return entry.is_directory(ignored);
    });
}

void makeFolders(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) throwFileError(error.value(), path);
}

bool renameFolder(const std::string& from, const std::string& to) {
    std::error_code error;
    fs::rename(from, to, error);
    return !error;
}

void removeFolder(const std::string& path) {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

std::string currentFolder() {
    std::error_code ignored;
    return fs::current_path(ignored).string();
}

std::string absolutePath(const std::string& text) {
    const fs::path path = (fs::path(currentFolder()) / text).lexically_normal();
    // A slash at the end leaves an empty last name.
    return path.has_filename() || !path.has_relative_path() ? path.string()
                                                            : path.parent_path().string();
}

}  // namespace varnholt
