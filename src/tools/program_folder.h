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
/// executable when it is installed, else what the build has made of the source tree.
InstalledFiles installedFiles();
/// The same for an executable at that path.
InstalledFiles installedFilesOf(const std::string& executable);

/// The user's own program folder: $XDG_DATA_HOME/varnholt, or ~/.local/share/varnholt.
std::string userProgramFolder();

/// Makes a new program folder with the folders "work files", "zones", "pumps", "Data" and
/// "OnlineHelp" and "tables": the catalogue goes into pumps, the help into OnlineHelp, the
/// reference pages into tables, example zone files and projects into zones and work files. A folder
/// that exists already is left alone, whatever it holds: what the user took away does not come
/// back. Only the folder of a program that had no reference pages yet is given them once, and the
/// help that goes with them; Data/supplied.txt remembers that.
///
/// The folder appears complete or not at all. Throws RunTimeError 75 when it cannot be made. What
/// an older folder cannot be given, since it may not be written to, is left out without an error.
void fillProgramFolder(const std::string& folder, const InstalledFiles& from);

}  // namespace varnholt
