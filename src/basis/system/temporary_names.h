// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "basis/system/process.h"

namespace varnholt {

// The hidden files that a save keeps for a moment in the folder of the file that is saved. Their
// names have a length of their own, so that also the longest name of a file can be saved.

/// A name in the folder that nobody can guess, and that tells which process uses it.
std::string temporaryPath(const std::string& folder);

/// The process that a name was made by; nothing for any other name.
std::optional<ProcessIdentity> makerOfTemporary(std::string_view name);

/// Takes the files away that saves have left in the folder whose process has ended. What cannot be
/// taken away stays.
void removeLeftovers(const std::string& folder);

}  // namespace varnholt
