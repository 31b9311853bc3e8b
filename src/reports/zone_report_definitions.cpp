// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/zone_report_definitions.h"

#include "forms/text_numbers/reports.h"
#include "reports/zone_report_bands.h"

namespace varnholt {

const std::array<ZoneReportDefinition, zoneReportCount> zoneReports{{
    {"rptZoneSM", Text::shortForm, Text::zoneReportShortTitle, 0, true, shortFormBands},
    {"rptZone", Text::longForm, Text::zoneReportLongTitle, 0, false, longFormBands},
    {"rptZoneEQ", Text::equipmentReport, Text::zoneReportEquipmentTitle, Text::equipmentReport,
     true, equipmentBands},
    {"rptZoneLO", Text::loadsHeading, Text::zoneReportLoadsTitle, Text::loadsHeading, false,
     loadsBands},
    {"rptZoneNM", Text::nameReport, Text::zoneReportNameTitle, Text::nameReport, false, nameBands},
}};

}  // namespace varnholt
