// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

namespace varnholt {

/// Marks that this program has made on the disk and that must go with it, also when a signal ends
/// it and nothing is destroyed: files with exactly these bytes.
///
/// One thread holds marks and lets them go; a signal may come in any. Beyond so many marks, one
/// that a signal leaves behind is found stale later.
constexpr std::size_t mostHeldMarks = 160;

/// The file of this path, with this content, goes when a signal ends the program.
void holdMark(const std::string& path, const std::string& content);
/// The file is no longer this program's; nothing for one that is not held.
void letMarkGo(const std::string& path);

/// Takes the marks away, unless another program has put its own in their place. For a handler of a
/// signal: it uses calls of the system alone. The process that a fork has made holds none.
void removeHeldMarks();

}  // namespace varnholt
