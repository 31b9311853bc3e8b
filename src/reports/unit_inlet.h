// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/text_numbers/borehole.h"
#include "reports/report_definition.h"

namespace varnholt {

// The temperatures of the source, above the columns of the reports with pumps.

inline constexpr double unitInletColumns[] = {34, 18, 14, 22, 14, 78};

// clang-format off
inline constexpr ItemDefinition unitInletItems[] = {
    {0, 0, 1, "UnitInletLabel",             ItemStyle::caption, words(Text::unitInletMetric, Text::unitInletEnglish)},
    {0, 1, 1, "CoolingLabel2",              ItemStyle::columnHead, words(Text::resultsCooling), Tint::cooling},
    {0, 2, 1, "UnitInletCoolingTextLabel",  ItemStyle::figure, shown("LOInletTempText(0)")},
    {0, 3, 1, "HeatingLabel2",              ItemStyle::columnHead, words(Text::resultsHeating), Tint::heating},
    {0, 4, 1, "UnitInletHeatingTextLabel",  ItemStyle::figure, shown("LOInletTempText(1)")},
};
// clang-format on

inline constexpr BandDefinition unitInletBand{ReportSection::PageHeader, unitInletColumns,
                                              unitInletItems};

}  // namespace varnholt
