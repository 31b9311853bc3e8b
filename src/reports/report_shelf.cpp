// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_shelf.h"

#include <utility>

#include "basis/file_system.h"
#include "reports/csv_report.h"
#include "reports/html_report.h"
#include "script/script_fault.h"

namespace varnholt {

void ReportShelf::show(Report report) {
    last_ = std::make_shared<const Report>(std::move(report));
    if (onShown) onShown(last_);
}

PrintingFacts ReportShelf::facts(const Date& today) const {
    return {today, dayIsGiven ? std::string() : timeOfDay(), !dayIsGiven};
}

bool ReportShelf::save(const std::string& path) const { return saveReport(*last_, path, writePdf); }

bool saveReport(const Report& report, const std::string& path,
                const std::function<void(const Report&, const std::string&)>& writePdf) {
    if (path.ends_with(".html"))
        replaceWholeFile(path, htmlOf(report));
    else if (path.ends_with(".csv"))
        replaceWholeFile(path, csvOf(report));
    else if (!path.ends_with(".pdf"))
        return false;
    else if (writePdf)
        writePdf(report, path);
    else
        throw ScriptFault("a PDF is written by the program with windows alone: varnholt --script");
    return true;
}

}  // namespace varnholt
