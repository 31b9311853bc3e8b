// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/program_folder.h"

#include <fmt/format.h>

#include <stdexcept>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"
#include "basis/system/process.h"
#include "basis/system/temporary_names.h"

namespace varnholt {
namespace {

constexpr int pathAccessError = 75;

/// Copies the files of a folder, or only those with the extension, into a new folder. A folder
/// that is not there has no files.
void copyFiles(const std::string& from, const std::string& to, const std::string& extension = {}) {
    makeFolders(to);
    if (!isFolder(from)) return;
    for (const std::string& file : filesIn(from))
        if (file.ends_with(extension)) copyFile(file, joinPath(to, fileNameOf(file)));
}

/// The same with the folders in it.
void copyTree(const std::string& from, const std::string& to) {
    copyFiles(from, to);
    if (!isFolder(from)) return;
    for (const std::string& folder : foldersIn(from))
        copyTree(folder, joinPath(to, fileNameOf(folder)));
}

/// Remembers what a folder has been given, one word a line.
const std::string suppliedFile = "Data/supplied.txt";
const std::string suppliedWords = "tables\n";

void fill(const std::string& folder, const InstalledFiles& from) {
    copyFiles(from.examples, joinPath(folder, "work files"), ".vht");
    for (const char* extension : {".zon", ".gt1", ".gth", ".csv"})
        copyFiles(from.examples, joinPath(folder, "zones"), extension);
    copyFiles(joinPath(from.resources, "pumps"), joinPath(folder, "pumps"));
    copyFiles(joinPath(from.resources, "help"), joinPath(folder, "OnlineHelp"));
    copyTree(joinPath(from.resources, "tables"), joinPath(folder, "tables"));
    makeFolders(joinPath(folder, "Data"));
    replaceWholeFile(joinPath(folder, suppliedFile), suppliedWords);
}

/// Files that an older program did not have are added; those that are there stay.
void addFiles(const std::string& from, const std::string& to) {
    makeFolders(to);
    if (!isFolder(from)) return;
    for (const std::string& file : filesIn(from)) {
        const std::string copy = joinPath(to, fileNameOf(file));
        if (!fileExists(copy)) copyFile(file, copy);
    }
    for (const std::string& folder : foldersIn(from))
        addFiles(folder, joinPath(to, fileNameOf(folder)));
}

/// Gives the folder of a program that had no reference pages what it lacks, once.
void supply(const std::string& folder, const InstalledFiles& from) {
    const std::string mark = joinPath(folder, suppliedFile);
    if (fileExists(mark)) return;
    try {
        addFiles(joinPath(from.resources, "tables"), joinPath(folder, "tables"));
        addFiles(joinPath(from.resources, "help"), joinPath(folder, "OnlineHelp"));
        makeFolders(folderOf(mark));
        replaceWholeFile(mark, suppliedWords);
    } catch (const RunTimeError&) {
        return;  // The program runs without them; the browser tells what is missing.
    }
}

/// Takes away what starts have left that were killed while they filled a folder.
void removeHalfFilled(const std::string& parent) {
    if (!isFolder(parent)) return;
    try {
        for (const std::string& folder : foldersIn(parent)) {
            const auto maker = makerOfTemporary(fileNameOf(folder));
            if (maker && hasEnded(*maker)) removeFolder(folder);
        }
    } catch (const RunTimeError&) {
        // A folder that cannot be read does not keep the program from its own.
    }
}

/// Gives the filled folder its name, unless another start of the program was faster.
void takeName(const std::string& filled, const std::string& folder) {
    if (renameFolder(filled, folder)) return;
    const bool madeByAnother = isFolder(folder);
    removeFolder(filled);
    if (!madeByAnother) throw RunTimeError(pathAccessError, folder);
}

std::string withoutSlashAtEnd(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

}  // namespace

InstalledFiles installedFilesOf(const std::string& executable) {
    const std::string above = folderOf(folderOf(executable));
    const std::string shared = joinPath(above, "share/varnholt"),
                      built = joinPath(above, "resources");
    const std::string& found = !isFolder(shared) && isFolder(built) ? built : shared;
    return {found, joinPath(found, "examples")};
}

InstalledFiles installedFiles() { return installedFilesOf(executablePath()); }

std::string userProgramFolder() {
    const std::string data = environmentVariable("XDG_DATA_HOME").value_or("");
    if (data.starts_with('/')) return joinPath(data, "varnholt");
    constexpr const char* below = ".local/share/varnholt";
    const std::string home = environmentVariable("HOME").value_or("");
    if (!home.starts_with('/'))
        throw std::runtime_error(fmt::format(
            "the program's folder {} cannot be found, since HOME {}", joinPath("~", below),
            home.empty() ? "is not set" : "is no full path: " + home));
    return joinPath(home, below);
}

void fillProgramFolder(const std::string& path, const InstalledFiles& from) {
    const std::string folder = withoutSlashAtEnd(path);
    if (isFolder(folder)) return supply(folder, from);
    removeHalfFilled(folderOf(folder));
    const std::string filling = temporaryPath(folderOf(folder));
    try {
        makeFolders(filling);
        fill(filling, from);
    } catch (const RunTimeError& error) {
        removeFolder(filling);
        throw RunTimeError(error.number(), folder);
    }
    takeName(filling, folder);
}

}  // namespace varnholt
