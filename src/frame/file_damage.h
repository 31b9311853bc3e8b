// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/file_kind.h"
#include "basis/reading_report.h"
#include "forms/texts.h"

namespace varnholt {

/// What is wrong with a file that was read.
struct FileDamage {
    std::string name;                    ///< of the file
    ReadingReport report;                ///< how far the reading came
    FileKind other = FileKind::unknown;  ///< what it is for certain, if not what it should be

    bool isNone() const { return report.isWhole() && other == FileKind::unknown; }
    /// There is something to tell, though all may be there.
    bool isTold() const { return !isNone() || report.openLine != 0; }
};

/// What a window tells of it, where there is something to tell: the file, the line, what was read.
std::string damageText(const Texts& texts, const FileDamage& damage);

/// What is told of a file of which nothing was taken over, beside the box that gives the error
/// alone.
/// @param error  number of the RunTimeError that ended the reading
std::string unreadableText(const Texts& texts, const std::string& path, int error);

}  // namespace varnholt
