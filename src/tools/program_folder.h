// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

/// Where the program's own files lie, which it reads and never writes.
struct InstalledFiles {
    std::string resources;  ///< language, pictures, catalogue, help
    std::string examples;   ///< example projects, zone files and scripts

    std::string languageFolder() const { return resources + "/language"; }
};

/// The files that belong to the running program: share/varnholt beside the folder of the
/// executable when it is installed, else the source tree that it was built from.
InstalledFiles installedFiles();
/// The same for an executable at that path.
InstalledFiles installedFilesOf(const std::string& executable);

/// The user's own program folder: $XDG_DATA_HOME/varnholt, or ~/.local/share/varnholt.
std::string userProgramFolder();

/// Makes a new program folder with the folders "work files", "zones", "pumps", "Data" and
/// "OnlineHelp": the catalogue goes into pumps, the help into OnlineHelp, example zone files and
/// projects into zones and work files. A folder that exists already is left alone, whatever it
/// holds: what the user took away does not come back.
///
/// The folder appears complete or not at all. Throws RunTimeError 75 when it cannot be made.
void fillProgramFolder(const std::string& folder, const InstalledFiles& from);

}  // namespace varnholt
