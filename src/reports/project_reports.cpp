// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/project_reports.h"

namespace varnholt {

const ProjectReportDefinition* projectReportOf(const std::string& formName, int option) {
    for (const auto* kind : {&boreholeReports, &horizontalReports, &surfaceWaterReports})
        for (const ProjectReportDefinition& report : *kind)
            if (formName == report.formName && option == report.option) return &report;
    return nullptr;
}

}  // namespace varnholt
