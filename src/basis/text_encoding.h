// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

bool isValidUtf8(std::string_view bytes);

/// Bytes of Windows-1252 as UTF-8 text.
std::string windows1252Text(std::string_view bytes);
/// How many bytes that text has.
std::size_t windows1252Length(std::string_view bytes);
/// The same text behind another.
void appendWindows1252(std::string& text, std::string_view bytes);

/// The bytes as UTF-8 text: as they are when they are valid UTF-8, otherwise taken as Windows-1252,
/// the encoding of old files.
std::string utf8Text(std::string_view bytes);

/// The same for a whole file, whose byte order mark is dropped.
std::string decodeText(std::string_view bytes);

/// The bytes without the byte order mark that may stand before them.
std::string_view withoutByteOrderMark(std::string_view bytes);

// A path may hold bytes that are no UTF-8. In a file of text each of them stands as a character of
// its own, from U+EF80 to U+EFFF for the bytes 0x80 to 0xFF, as the private area is for.

/// The bytes as valid UTF-8, from which the next function brings them back.
std::string carriedText(std::string_view bytes);
std::string uncarriedText(std::string_view text);
/// Whether the text may hold such characters: without them it is the bytes as it stands.
bool carriesBytes(std::string_view text);

}  // namespace varnholt
