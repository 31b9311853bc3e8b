// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

bool isValidUtf8(std::string_view bytes);

/// The bytes of a file as UTF-8 text: as they are when they are valid UTF-8 (a byte order mark is
/// dropped), otherwise taken as Windows-1252, the encoding of old files.
std::string decodeText(std::string_view bytes);

}  // namespace varnholt
