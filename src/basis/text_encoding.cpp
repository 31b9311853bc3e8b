// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace varnholt {
namespace {

/// Characters of the bytes 0x80 to 0x9F in Windows-1252; the five unassigned bytes keep their
/// number as control characters.
constexpr std::array<char16_t, 32> windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& text, char16_t c) {
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0 | (c >> 6));
        text += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (c >> 12));
        text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (c & 0x3F));
    }
}

char16_t ofWindows1252(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80] : byte;
}

/// So many bytes at the front are ASCII, in steps of eight: nearly all of every file.
std::size_t plainPrefix(std::string_view bytes) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t eight = 0; length + sizeof eight <= bytes.size(); length += sizeof eight) {
        std::memcpy(&eight, bytes.data() + length, sizeof eight);
        if ((eight & highBits) != 0) break;
    }
    return length;
}

/// Length of the UTF-8 sequence at the front, 0 when it is none.
std::size_t sequenceLength(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    // Overlong forms, surrogates and what lies beyond the last code point.
    if (lead == 0xE0 && byte(1) < 0xA0) return 0;
    if (lead == 0xED && byte(1) > 0x9F) return 0;
    if (lead == 0xF0 && byte(1) < 0x90) return 0;
    if (lead == 0xF4 && byte(1) > 0x8F) return 0;
    return length;
}

}  // namespace

bool isValidUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        bytes.remove_prefix(plainPrefix(bytes));
        if (bytes.empty()) return true;
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string utf8Text(std::string_view bytes) {
    return isValidUtf8(bytes) ? std::string(bytes) : windows1252Text(bytes);
}

std::string windows1252Text(std::string_view bytes) {
    std::string text;
    // A text that grows step by step would take twice its memory on the way.
    text.reserve(windows1252Length(bytes));
    appendWindows1252(text, bytes);
    return text;
}

std::size_t windows1252Length(std::string_view bytes) {
    std::size_t length = 0;
    for (const char c : bytes) {
        const char16_t character = ofWindows1252(c);
        length += character < 0x80 ? 1 : character < 0x800 ? 2 : 3;
    }
    return length;
}

void appendWindows1252(std::string& text, std::string_view bytes) {
    for (const char c : bytes) appendUtf8(text, ofWindows1252(c));
}

std::string carriedText(std::string_view bytes) {
    constexpr char16_t firstCarrier = 0xEF80, firstCarried = 0x80;
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) {
            const auto byte = static_cast<unsigned char>(bytes.front());
            appendUtf8(text, static_cast<char16_t>(firstCarrier + byte - firstCarried));
        } else {
            text += bytes.substr(0, length);
        }
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return text;
}

bool carriesBytes(std::string_view text) { return text.find('\xEE') != text.npos; }

/// U+EF80 to U+EFFF are the bytes EE BE 80 to EE BF BF: the last six bits stand in the third byte,
/// the seventh in the second.
std::string uncarriedText(std::string_view text) {
    if (!carriesBytes(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const bool first = text.starts_with("\xEE\xBE"), second = text.starts_with("\xEE\xBF");
        if ((first || second) && text.size() > 2) {
            const auto last = static_cast<unsigned char>(text[2]);
            bytes += static_cast<char>((first ? 0x80 : 0xC0) | (last & 0x3F));
            text.remove_prefix(3);
        } else {
            bytes += text.front();
            text.remove_prefix(1);
        }
    }
    return bytes;
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
    return bytes;
}

std::string decodeText(std::string_view bytes) { return utf8Text(withoutByteOrderMark(bytes)); }

}  // namespace varnholt
