// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/file_kind.h"

#include "basis/text_encoding.h"

namespace varnholt {
namespace {

struct TitleRow {
    std::string_view begin;
    FileKind kind;
};

constexpr TitleRow titles[] = {
    {"Varnholt Data File Version ", FileKind::project},
    {"Zone Data File Version ", FileKind::zones},
    {"Varnholt Initialization File Version ", FileKind::defaults},
    {"Pump List File Version ", FileKind::pumpList},
};

/// The title of a series begins with names and ends in the version, such as 3.0.
bool isSeriesTitle(std::string_view line) {
    constexpr std::string_view words = " List Version ";
    constexpr std::size_t version = 3;
    return line.size() > words.size() + version &&
           line.substr(line.size() - words.size() - version, words.size()) == words;
}

}  // namespace

FileKind fileKind(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return FileKind::utf16;
    if (bytes.find('\0') != bytes.npos) return FileKind::binary;
    const std::string_view text = withoutByteOrderMark(bytes);
    for (const TitleRow& title : titles)
        if (text.starts_with(title.begin)) return title.kind;
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    return isSeriesTitle(line) ? FileKind::pumpSeries : FileKind::unknown;
}

}  // namespace varnholt
