// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "reports/printing_facts.h"
#include "reports/report.h"
#include "reports/report_database.h"
#include "script/report_source.h"

namespace varnholt {

/// Where reports are shown: keeps the last one for scripts, and hands each to those who show it.
class ReportShelf : public ReportSource {
 public:
    /// @param databaseFile  the working file of the zone reports
    explicit ReportShelf(std::string databaseFile) : database_(std::move(databaseFile)) {}

    /// Shows a report to the user.
    void show(Report report);

    /// A report is shown: the windows open its preview, a script tells it.
    std::function<void(const std::shared_ptr<const Report>&)> onShown;
    /// Writes a report as PDF; none in a program without windows. Throws RunTimeError.
    std::function<void(const Report&, const std::string& path)> writePdf;
    /// Opens the set-up of page and printer; nothing happens where there is none.
    std::function<void()> onPrintSetup;
    /// The day was given from outside, and with it no time of day: reports tell neither that nor
    /// the folders of files, so that they are the same on every machine.
    bool dayIsGiven = false;

    ReportDatabase& database() { return database_; }
    PrintingFacts facts(const Date& today) const;

    bool hasReport() const override { return last_ != nullptr; }
    std::vector<ReportEntry> entries() const override { return entriesOf(*last_); }
    bool save(const std::string& path) const override;
    const std::shared_ptr<const Report>& last() const { return last_; }

 private:
    ReportDatabase database_;
    std::shared_ptr<const Report> last_;
};

/// Writes a report to a file of the kind that its extension tells: .pdf by `writePdf`, .html, .csv.
/// False for any other. Throws RunTimeError where the file cannot be written.
bool saveReport(const Report& report, const std::string& path,
                const std::function<void(const Report&, const std::string&)>& writePdf);

}  // namespace varnholt
