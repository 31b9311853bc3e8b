// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// The program's version as people read it; files carry its first two parts.
inline constexpr const char* programVersion = "3.0.0";

}  // namespace varnholt
