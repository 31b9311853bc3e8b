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

std::vector<std::string> filesIn(const std::string& folder) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    std::vector<std::string> files;
    std::error_code ignored;
    for (; !error && entries != fs::directory_iterator(); entries.increment(error))
        if (entries->is_regular_file(ignored)) files.push_back(entries->path().string());
    if (error) throwFileError(error.value() == ENOENT ? ENOTDIR : error.value(), folder);
    std::sort(files.begin(), files.end());
    return files;
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
