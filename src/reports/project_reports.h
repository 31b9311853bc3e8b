// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "reports/project_report_definition.h"

namespace varnholt {

// The reports of the kinds of designs: the detailed and the short form of each.

extern const std::array<ProjectReportDefinition, 2> boreholeReports;
extern const std::array<ProjectReportDefinition, 2> horizontalReports;
extern const std::array<ProjectReportDefinition, 2> surfaceWaterReports;

/// The report of a design window for an option of `frmPROptions`; null where there is none.
const ProjectReportDefinition* projectReportOf(const std::string& formName, int option);

}  // namespace varnholt
