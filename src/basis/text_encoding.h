// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace varnholt {

bool isValidUtf8(std::string_view bytes);

/// Bytes of Windows-1252 as UTF-8 text.
std::string windows1252Text(std::string_view bytes);

/// The bytes as UTF-8 text: as they are when they are valid UTF-8, otherwise taken as Windows-1252,
/// the encoding of old files.
std::string utf8Text(std::string_view bytes);

/// The same for a whole file, whose byte order mark is dropped.
std::string decodeText(std::string_view bytes);

/// The bytes without the byte order mark that may stand before them.
std::string_view withoutByteOrderMark(std::string_view bytes);

}  // namespace varnholt
