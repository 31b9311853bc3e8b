// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

// Paths are UTF-8 texts with forward slashes.

/// Whether the file can be opened for reading.
bool fileExists(const std::string& path);

/// The whole file. Throws RunTimeError 53 (no such file), 76 (no such folder), 70 or 75 (no
/// right, or a folder), 57 (read fault).
std::string readWholeFile(const std::string& path);

/// Replaces a file whole: the bytes go to a new file beside it, are flushed to the disk, and take
/// the name in one step, so that at every moment either the old or the new file is there,
/// complete. A symbolic link is followed, the permissions of an existing file are kept.
/// Throws RunTimeError 61 (disk full), 70 (no right), 75, 76; the old file is then as it was.
void replaceWholeFile(const std::string& path, std::string_view bytes);

/// Folder and name joined by one slash; an empty folder gives the name alone.
std::string joinPath(const std::string& folder, const std::string& name);
/// "school.zon" of "a/b/school.zon".
std::string fileNameOf(const std::string& path);
/// "a/b" of "a/b/school.zon"; empty without a slash.
std::string folderOf(const std::string& path);
/// "school" of "a/b/school.zon".
std::string baseNameOf(const std::string& path);
/// Whether two paths name the same file, links and ".." resolved where the files exist.
bool samePath(const std::string& a, const std::string& b);

}  // namespace varnholt
