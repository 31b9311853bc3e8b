// SPDX-License-Identifier: GPL-3.0-or-later
// The importer's controls, in their reading order.
#include <array>

#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "loads/import/frmImport1.h"

namespace varnholt {
namespace {

constexpr const char* transferFrame = "fraTransfer";

constexpr std::array<int, monthsOfYear> monthTexts{
    Text::january, Text::february, Text::march,     Text::april,   Text::may,      Text::june,
    Text::july,    Text::august,   Text::september, Text::october, Text::november, Text::december};

}  // namespace

void frmImport1::addControls() {
    addBar();
    addTable();
    addTransfer();
    add("cmdImport(1)", ControlKind::button, Text::closeWindow);
}

void frmImport1::addBar() {
    add("cmdImport(2)", ControlKind::button).setTooltip(text(Text::readSimulationTip));
    add("cmdImport(5)", ControlKind::button).setTooltip(text(Text::importTableTip));
    add("cmdImport(3)", ControlKind::button).setTooltip(text(Text::pasteMonthsTip));
    add("cmdImport(0)", ControlKind::button, Text::clearPump);
    add("cmdCoolHeat(0)", ControlKind::button, Text::cooling);
    add("cmdCoolHeat(1)", ControlKind::button, Text::heating);
    add("MetricCheck", ControlKind::check, Text::loadsMetricSwitch);
    add("lblTitle(4)", ControlKind::label, Text::importFile);
    add("lblTitle(9)", ControlKind::label);
    add("lblTitle(8)", ControlKind::label, Text::importGenerator);
    add("lblTitle(10)", ControlKind::label);
}

void frmImport1::addTable() {
    constexpr std::array<int, 4> heads{Text::importMonth, Text::importTotal, Text::importPeak,
                                       Text::importFactor};
    for (std::size_t i = 0; i < heads.size(); ++i)
        add(elementName("lblTitle", i), ControlKind::label, heads[i]);
    add("lblTitle(5)", ControlKind::label);
    add("lblTitle(7)", ControlKind::label);
    for (std::size_t month = 0; month < monthsOfYear; ++month) addMonth(month);
    addTotals();
    add("txtImport1", ControlKind::text).helpedBy("importing#months");
    add("imgMonths", ControlKind::image, Text::importMonthsPicture);
}

void frmImport1::addMonth(std::size_t month) {
    add(elementName("lblEqvHours", month), ControlKind::label, monthTexts[month]);
    addCell(elementName("lblTotal", month), monthTexts[month], Text::importTotal, "lblTitle(5)");
    addCell(elementName("lblPeak", month), monthTexts[month], Text::importPeak, "lblTitle(7)");
    addCell(elementName("lblPLF", month), monthTexts[month], Text::importFactor, {});
}

/// A figure of the table, called by its row and its column.
void frmImport1::addCell(const std::string& name, int row, int column, const std::string& unit) {
    add(name, ControlKind::label)
        .unitsIn(unit)
        .setAccessibleName(captionWords(text(row)) + ", " + text(column));
}

void frmImport1::addTotals() {
    add("lblEqvHours(13)", ControlKind::label, Text::importTotalMax);
    addCell("lblTotal(12)", Text::importTotalMax, Text::importTotal, "lblTitle(5)");
    addCell("lblPeak(12)", Text::importTotalMax, Text::importPeak, "lblTitle(7)");
    add("lblEqvHours(14)", ControlKind::label, Text::fullLoadHoursResult);
    add("lblHours", ControlKind::label).captionedBy("lblEqvHours(14)");
}

void frmImport1::addTransfer() {
    add(transferFrame, ControlKind::frame, Text::importTransfer);
    add("lblTransferTarget", ControlKind::label).in(transferFrame);
    add("optDesignDay(0)", ControlKind::option, Text::designDayEven)
        .grouped("optDesignDay")
        .in(transferFrame)
        .setChecked(true);
    add("optDesignDay(1)", ControlKind::option, Text::designDayFromHours)
        .grouped("optDesignDay")
        .in(transferFrame)
        .helpedBy("importing#design-day");
    add("imgDesignDay", ControlKind::image, Text::importDayPicture).in(transferFrame);
    for (const std::size_t mode : {cooling, heating})
        add(elementName("lblNotLookedAt", mode), ControlKind::label,
            mode == cooling ? Text::coolingNotLookedAt : Text::heatingNotLookedAt)
            .in(transferFrame)
            .setVisible(false);
    add("cmdImport(4)", ControlKind::button, Text::importModify).in(transferFrame);
}

}  // namespace varnholt
