// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/stat.h>

#include <string>

namespace varnholt {

/// Gives a file that is to take another one's place what belongs to that one: owner and group
/// where that is allowed, rights, extended attributes and access control lists. Where the group
/// cannot be given, the group that the file has instead gets no more rights than everybody has.
/// False, with errno, when the system reports a fault.
/// @param fresh  the new file, open for writing
/// @param path   the old one, and `old` what the system tells of it
bool takeAttributes(int fresh, const std::string& path, const struct stat& old);

}  // namespace varnholt
