// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace varnholt {

/// Throws the run-time error that a failed system call on a path stands for: 53 (no such file),
/// 76 (no such folder), 61 (disk full), 70 (no right), 57 (read or write fault), else 75. All but
/// the first name the path.
/// @param systemError the call's errno
[[noreturn]] void throwFileError(int systemError, const std::string& path);

}  // namespace varnholt
