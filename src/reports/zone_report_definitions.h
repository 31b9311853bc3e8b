// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

#include "reports/report_definition.h"

namespace varnholt {

/// One of the reports that a loads window prints.
struct ZoneReportDefinition {
    const char* object;
    int optionCaption;  ///< of its option in `frmZNOptions`
    int titleText;      ///< of the document
    int titleWords;     ///< in `TitleLabel`; 0 for none
    bool landscape;
    /// The bands between the head of the report and the foot of the page. Those of the zones are
    /// repeated for each.
    std::span<const BandDefinition> bands;
};

constexpr std::size_t zoneReportCount = 5;

/// In the order of the options, which `LOPrintOption` counts from 1.
extern const std::array<ZoneReportDefinition, zoneReportCount> zoneReports;

}  // namespace varnholt
