// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "basis/system/file_source.h"

namespace varnholt {

// Paths are UTF-8 texts with forward slashes.

/// Whether the file can be opened for reading.
bool fileExists(const std::string& path);

/// The whole file. Throws RunTimeError 53 (no such file), 76 (no such folder), 70 (no right), 75
/// (no regular file, or longer than the limits allow), 57 (read fault, or a file that could not be
/// read in the time).
std::string readWholeFile(const std::string& path, const ReadingLimits& limits = {});

/// The whole file, however long: one that this program has read or written before. Throws as
/// readWholeFile.
std::string readOwnFile(const std::string& path);

/// The file's first bytes, no more than so many, however long it is. Throws as readWholeFile.
std::string readFileStart(const std::string& path, std::size_t most);

/// Replaces a file whole: the bytes go to a new file beside it, are flushed to the disk, and take
/// the name in one step, so that at every moment either the old or the new file is there,
/// complete. Symbolic links are followed to their file, which keeps its owner and group, where that
/// is allowed, its rights, extended attributes and access control lists. A file with several names
/// is written in place, after a copy of it was kept (see kept_copy.h). What saves that were killed
/// have left in the folder is taken away.
///
/// Returns the file's stamp. Throws RunTimeError 61 (disk full), 70 (no right), 57, 76, and 75 for
/// what is no file: folders, devices, pipes, links that lead nowhere or in a circle. The old file
/// is then as it was.
FileStamp replaceWholeFile(const std::string& path, std::string_view bytes);

/// The same, unless the file has another stamp than it is known by: another program has changed it.
/// Nothing is written then, and nothing returned. A file that is gone has no stamp to differ.
std::optional<FileStamp> replaceKnownFile(const std::string& path, std::string_view bytes,
                                          const KnownFile& known);

/// Copies a file to a name that is not taken. The owner may read and write the copy, though the
/// original may be read-only. Throws RunTimeError as reading and replacing do.
void copyFile(const std::string& from, const std::string& to);

/// Takes a file away. False when that cannot be, and for one that is not there.
bool removeFile(const std::string& path);

/// A text to be read line by line: a regular file of no more bytes than any that is read, or what
/// the caller of the program has opened for it ("/dev/stdin", "/dev/fd/3"), as it comes. Null when
/// it cannot be read, and for pipes and devices by their names, which may never end.
std::unique_ptr<std::istream> openInput(const std::string& path);

/// Whether two paths name the same file, links and ".." resolved where the files exist.
bool samePath(const std::string& a, const std::string& b);

}  // namespace varnholt
