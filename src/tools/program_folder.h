// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

/// Where the program's own files lie, which it reads and never writes.
struct InstalledFiles {
    std::string resources;  ///< language, catalogue, reference pages, help
    std::string examples;   ///< example projects, zone files and scripts

    std::string languageFolder() const { return resources + "/language"; }
};

/// The files that belong to the running program: share/varnholt beside the folder of the
/// executable when it is installed; what the build has made of the source tree, in the folder
/// `resources` there, for a program that runs where it was built.
InstalledFiles installedFiles();
/// The same for an executable at that path.
InstalledFiles installedFilesOf(const std::string& executable);

/// The user's own program folder: $XDG_DATA_HOME/varnholt, or ~/.local/share/varnholt. Throws
/// std::runtime_error where HOME tells no full path.
std::string userProgramFolder();

/// Makes a new program folder with the folders "work files", "zones", "pumps", "Data" and
/// "OnlineHelp" and "tables": the catalogue goes into pumps, the help into OnlineHelp, the
/// reference pages into tables, example zone files and projects into zones and work files. A folder
/// that exists already is left alone, whatever it holds: what the user took away does not come
/// back. Only the folder of a program that had no reference pages yet is given them once, and the
/// help that goes with them; Data/supplied.txt remembers that.
///
/// The folder appears complete or not at all. Throws RunTimeError 61, 70, 75 or 76,
/// with the folder's path, when it cannot be made. What
/// an older folder cannot be given, since it may not be written to, is left out without an error.
void fillProgramFolder(const std::string& folder, const InstalledFiles& from);

}  // namespace varnholt
