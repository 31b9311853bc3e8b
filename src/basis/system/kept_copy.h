// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

// A file with several names cannot be replaced without losing the other names, so it is written in
// place. As long as that takes, what it held before is kept in a hidden file of its folder.

/// What is left of a save that was cut off while it wrote in place.
struct KeptCopy {
    std::string path;           ///< of the copy
    std::int64_t modified = 0;  ///< when the copy was made, ns since 1970
};

/// Where the copy of a file lies while so many bytes are written into it.
/// @param inode  of the file, by which all of its names find the copy
std::string keptCopyPath(const std::string& folder, std::uint64_t inode, std::string_view bytes);

/// The copy of a file whose writing was cut off. Copies of writings that ended, or never began,
/// are taken away. Does not throw.
std::optional<KeptCopy> keptCopyOf(const std::string& path);

/// Puts what the copy holds back into the file, and takes the copy away. Throws as
/// replaceWholeFile.
void restoreKeptCopy(const std::string& path, const KeptCopy& copy);

}  // namespace varnholt
