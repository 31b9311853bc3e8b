// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "loads/modLoads/zone_window.h"
#include "reports/printing_facts.h"
#include "reports/report_database.h"
#include "reports/zone_report_definitions.h"

namespace varnholt {

// The reports of the two loads windows.

/// The window's zones as rows, through the tables of the database: emptied and filled.
std::vector<ZoneRow> FillZoneReportTables(const ZoneWindow& window, ReportDatabase& database);

/// The report that the window's `LOPrintOption` names, filled from the window.
/// @throws RunTimeError 9 where it names none
Report zoneReport(const ZoneWindow& window, ReportDatabase& database, const PrintingFacts& facts);

/// A report with its rows at hand.
Report zoneReport(const ZoneReportDefinition& definition, const ZoneWindow& window,
                  const std::vector<ZoneRow>& rows, const PrintingFacts& facts);

}  // namespace varnholt
