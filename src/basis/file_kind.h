// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace varnholt {

/// What a file is for certain. All else counts as unknown, and is read as what it was opened for.
enum class FileKind { unknown, project, zones, defaults, pumpList, pumpSeries, utf16, binary };

/// By the first line, by the mark of a text in UTF-16, or by a NUL byte, which no text has.
FileKind fileKind(std::string_view bytes);

/// Whether the bytes are certainly not of the kind.
inline bool isCertainlyOther(FileKind found, FileKind wanted) {
    return found != FileKind::unknown && found != wanted;
}

}  // namespace varnholt
