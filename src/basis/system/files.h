// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <string>
#include <string_view>

namespace varnholt {

// Paths are UTF-8 texts with forward slashes.

/// Whether the file can be opened for reading.
bool fileExists(const std::string& path);

/// The whole file. Throws RunTimeError 53 (no such file), 76 (no such folder), 70 or 75 (no
/// right, or a folder), 57 (read fault).
std::string readWholeFile(const std::string& path);

/// The file's first bytes, no more than so many, however long it is. Throws as readWholeFile.
std::string readFileStart(const std::string& path, std::size_t most);

/// Replaces a file whole: the bytes go to a new file beside it, are flushed to the disk, and take
/// the name in one step, so that at every moment either the old or the new file is there,
/// complete. A symbolic link is followed, the permissions of an existing file are kept.
/// Throws RunTimeError 61 (disk full), 70 (no right), 75, 76; the old file is then as it was.
void replaceWholeFile(const std::string& path, std::string_view bytes);

/// Copies a file to a name that is not taken. The owner may read and write the copy, though the
/// original may be read-only. Throws RunTimeError as reading and replacing do.
void copyFile(const std::string& from, const std::string& to);

/// Takes a file away. False when that cannot be, and for one that is not there.
bool removeFile(const std::string& path);

/// A file, pipe or device to be read line by line as it comes; null when it cannot be read.
std::unique_ptr<std::istream> openInput(const std::string& path);

/// Whether two paths name the same file, links and ".." resolved where the files exist.
bool samePath(const std::string& a, const std::string& b);

}  // namespace varnholt
