// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace varnholt {

/// One control of a band of a report, as it was printed.
struct ReportEntry {
    std::string section;
    std::string control;
    std::string text;
};

/// The report that the program showed last, for scripts to read.
class ReportSource {
 public:
    virtual ~ReportSource() = default;
    /// False as long as no report has been shown.
    virtual bool hasReport() const = 0;
    /// Band by band, row by row.
    virtual std::vector<ReportEntry> entries() const = 0;
    /// Writes the report to a file, of the kind that the extension tells. False for an extension
    /// that no kind of file goes with; throws RunTimeError when the file cannot be written.
    virtual bool save(const std::string& path) const = 0;
};

/// The line of a transcript that tells of a report: `report rptBH "Borehole ..."`.
std::string toldReport(const std::string& object, const std::string& caption);

}  // namespace varnholt
