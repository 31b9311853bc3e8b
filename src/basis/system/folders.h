// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace varnholt {

bool isFolder(const std::string& path);

/// The paths of the files in a folder, by name; its folders are left out. Throws RunTimeError 76
/// for a folder that is not there, 70 for one that may not be read.
std::vector<std::string> filesIn(const std::string& folder);

/// The paths of the folders in a folder, by name. Throws as filesIn does.
std::vector<std::string> foldersIn(const std::string& folder);

/// Makes a folder and those above it that are missing. Throws RunTimeError 61, 70, 75, 76.
void makeFolders(const std::string& path);

/// Gives a folder another name in one step. False when that cannot be, for instance since a
/// folder with files has the name.
bool renameFolder(const std::string& from, const std::string& to);

/// Takes a folder away with all that it holds, as far as that can be.
void removeFolder(const std::string& path);

/// The folder in which the program was started; empty when it is gone.
std::string currentFolder();

/// A path from the root, taken from the current folder where it is relative, without "." and ".."
/// and without a slash at its end.
std::string absolutePath(const std::string& path);

}  // namespace varnholt
