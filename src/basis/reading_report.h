// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "basis/line_file.h"
#include "basis/run_time_error.h"

namespace varnholt {

/// What the list of a file consists of.
enum class Entries { zones, pumps, manufacturers };

/// How the reading of a file went, for a window to tell.
struct ReadingReport {
    int error = 0;          ///< number of the RunTimeError that ended the reading; 0 for none
    std::size_t line = 0;   ///< the line read last, from 1
    bool leftover = false;  ///< lines follow that nothing in the file accounts for
    /// The first line that is longer than a name may be, and was shortened; 0 for none.
    std::size_t shortenedLine = 0;
    /// The last line, where nothing ends it: it may have lost its own end. 0 where it is ended.
    std::size_t openLine = 0;
    std::vector<UnreadPart> unread;  ///< parts behind the body that cannot be read
    std::size_t stated = 0;          ///< entries of its list, such as zones, by the file's own word
    std::size_t found = 0;           ///< how many of them could be read whole
    std::size_t leftOut = 0;         ///< how many are beyond what the program counts
    Entries entries = Entries::zones;

    /// Everything that the file holds has been read.
    bool isWhole() const {
        return error == 0 && !leftover && shortenedLine == 0 && unread.empty() && leftOut == 0;
    }
};

/// Reads, and fills the report, which may be null. What the reading throws is thrown on.
template <class Read>
void reportReading(const LineFileReader& file, ReadingReport* report, const Read& read) {
    try {
        read();
    } catch (const RunTimeError& error) {
        if (report == nullptr) throw;
        report->error = error.number();
        report->line = file.lineNumber();
        report->shortenedLine = file.shortenedLine();
        throw;
    }
    if (report == nullptr) return;
    report->shortenedLine = file.shortenedLine();
    report->unread = file.unread();
    report->leftover = file.leftoverLine() != 0 || file.holdsMore();
    if (report->leftover)
        report->line = file.leftoverLine() != 0 ? file.leftoverLine() : file.lineNumber() + 1;
    const bool mayBeCut = report->isWhole() && !file.isLineEnded();
    report->openLine = mayBeCut ? file.lineNumber() : 0;
}

}  // namespace varnholt
