// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/program_folder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

constexpr int pathAccessError = 75;

/// A file of an installed tree may be read-only; the user's copy is the user's to change.
void copyFile(const fs::path& from, const fs::path& to) {
    fs::copy_file(from, to);
    fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::add);
}

/// Copies the files of a folder, or only those with the extension. A folder that is not there has
/// no files.
void copyFiles(const fs::path& from, const fs::path& to, const char* extension = nullptr) {
    fs::create_directories(to);
    if (!fs::is_directory(from)) return;
    for (const fs::directory_entry& entry : fs::directory_iterator(from)) {
        const fs::path& file = entry.path();
        if (entry.is_regular_file() && (extension == nullptr || file.extension() == extension))
            copyFile(file, to / file.filename());
    }
}

void fill(const fs::path& folder, const InstalledFiles& from) {
    copyFiles(from.examples, folder / "work files", ".vht");
    copyFiles(from.examples, folder / "zones", ".zon");
    copyFiles(fs::path(from.resources) / "pumps", folder / "pumps");
    copyFiles(fs::path(from.resources) / "help", folder / "OnlineHelp");
    fs::create_directories(folder / "Data");
}

/// Gives the filled folder its name, unless another start of the program was faster.
void takeName(const fs::path& filled, const fs::path& folder) {
    std::error_code error;
    fs::rename(filled, folder, error);
    if (!error) return;
    const bool madeByAnother = fs::is_directory(folder);
    std::error_code ignored;
    fs::remove_all(filled, ignored);
    if (!madeByAnother) throw RunTimeError(pathAccessError);
}

}  // namespace

InstalledFiles installedFilesOf(const std::string& executable) {
    const fs::path shared = fs::path(executable).parent_path().parent_path() / "share/varnholt";
    std::error_code ignored;
    if (fs::is_directory(shared, ignored)) return {shared, shared / "examples"};
    return {VARNHOLT_RESOURCE_DIR, VARNHOLT_EXAMPLE_DIR};
}

InstalledFiles installedFiles() {
    std::error_code ignored;
    return installedFilesOf(fs::read_symlink("/proc/self/exe", ignored));
}

std::string userProgramFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') return fs::path(data) / "varnholt";
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : "/") / ".local/share/varnholt";
}

void fillProgramFolder(const std::string& path, const InstalledFiles& from) {
    const fs::path folder = fs::path(path + "/").parent_path();  // Without a slash at its end.
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    const fs::path filling = folder.string() + ".new-" + std::to_string(getpid());
    try {
        fs::create_directories(filling);
        fill(filling, from);
    } catch (const fs::filesystem_error&) {
        fs::remove_all(filling, ignored);
        throw RunTimeError(pathAccessError);
    }
    takeName(filling, folder);
}

}  // namespace varnholt
