// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "reports/report_tables.h"

namespace varnholt {

/// The working file of the zone reports: a small relational database whose tables are emptied and
/// filled right before a report is shown, and read back as the hierarchy of project, zones and
/// pumps. It holds nothing between reports.
///
/// The file never keeps a report away. One that is missing or damaged is made anew; where it cannot
/// be used at all, since it is locked, may not be written or has no folder, the report gets the
/// same rows from memory, at once.
class ReportDatabase {
 public:
    /// @param file  its path; it is not touched before it is needed
    explicit ReportDatabase(std::string file);
    ~ReportDatabase();
    ReportDatabase(const ReportDatabase&) = delete;
    ReportDatabase& operator=(const ReportDatabase&) = delete;

    /// Opens the connection if it is closed. False where there is no file to work with.
    bool OpenReportConnection();
    /// Closes the connection and opens it again.
    bool ResetReportData();
    /// Empties the tables, fills them with the rows and reads the project's rows back, in one
    /// transaction: another instance of the program sees all of it or nothing.
    std::vector<ZoneRow> refill(const std::vector<ZoneRow>& rows);
    /// Whether the last refill went through the file.
    bool usedFile() const { return usedFile_; }

 private:
    struct Connection;

    std::vector<ZoneRow> refillFile(const std::vector<ZoneRow>& rows);
    bool takeAwayDamaged(int errorCode);

    std::string file_;
    std::unique_ptr<Connection> connection_;
    bool usedFile_ = false;
};

}  // namespace varnholt
