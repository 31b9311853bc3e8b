// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/system/files.h"

namespace varnholt {

/// Folder and name joined by one slash; an empty folder gives the name alone.
std::string joinPath(const std::string& folder, const std::string& name);
/// "school.zon" of "a/b/school.zon".
std::string fileNameOf(const std::string& path);
/// "a/b" of "a/b/school.zon"; empty without a slash.
std::string folderOf(const std::string& path);
/// "school" of "a/b/school.zon".
std::string baseNameOf(const std::string& path);

}  // namespace varnholt
