// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

// Files that nobody but their owner may read.

/// Makes a folder and those above it that are missing; it is its owner's alone from then on. Throws
/// as throwFileError.
void makePrivateFolder(const std::string& path);

/// Replaces a file in such a folder in one step, flushed to the disk: it is there complete, or as
/// it was. Throws as throwFileError.
void writePrivateFile(const std::string& path, std::string_view bytes);

/// Gives a file another name, which nothing has yet, in one step. False when that cannot be, for
/// instance since another program was faster.
bool moveFile(const std::string& from, const std::string& to);

}  // namespace varnholt
