// SPDX-License-Identifier: GPL-3.0-or-later
// The summary panel of the Zone Manager.
#include <string>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/units.h"
#include "forms/quantity.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "loads/frmZoneManage.h"
#include "loads/modLoads/building_totals.h"
#include "loads/modLoads/chart_sentences.h"
#include "loads/modLoads/summary_lines.h"

namespace varnholt {
namespace {

constexpr int blockTexts[] = {Text::summaryEightToNoon, Text::summaryNoonToFour,
                              Text::summaryFourToEight, Text::summaryEightToEight};

/// Captions over the list, with their texts in metric units where they differ.
struct Heading {
    int englishText, metricText;
};

constexpr Heading headings[] = {
    {Text::zone, Text::zone},
    {Text::summaryPump, Text::summaryPump},
    {Text::summaryDayLoadsEnglish, Text::summaryDayLoadsMetric},
    {Text::summaryEightToNoon, Text::summaryEightToNoon},
    {Text::summaryNoonToFour, Text::summaryNoonToFour},
    {Text::summaryFourToEight, Text::summaryFourToEight},
    {Text::summaryEightToEight, Text::summaryEightToEight},
    {Text::summaryCapacity, Text::summaryCapacity},
    {Text::summaryCapacityUnitsEnglish, Text::loadUnitsMetric},
    {Text::summaryPower, Text::summaryPower},
    {Text::loadUnitsMetric, Text::loadUnitsMetric},
    {Text::summaryCopEnglish, Text::summaryCopMetric},
    {Text::summaryEer, Text::summaryEer},
    {Text::summaryPartialLoadFactor, Text::summaryPartialLoadFactor},
};
constexpr int headingOfEer = 12;

struct TotalRow {
    const char* name;
    int englishText, metricText;
};

constexpr TotalRow totalRows[] = {
    {"LOTotalCapacity", Text::summaryTotalCapacityEnglish, Text::summaryTotalCapacityMetric},
    {"LOPeakLoad", Text::summaryPeakLoadEnglish, Text::summaryPeakLoadMetric},
    {"LOPeakDemand", Text::summaryPeakDemand, Text::summaryPeakDemand},
    {"LOPumpCOP", Text::summaryHeatPumpCop, Text::summaryHeatPumpCop},
    {"LOPeakLoadPeriod", Text::summaryPeakLoadPeriod, Text::summaryPeakLoadPeriod},
};

}  // namespace

void frmZoneManage::addSummary() {
    const std::string frame = "LOSummaryPicture";
    add(frame, ControlKind::frame, Text::buildingSummary).setVisible(false);
    int index = 0;
    for (const Heading& heading : headings)
        add("LOSummaryLabel(" + std::to_string(index++) + ")", ControlKind::label,
            heading.englishText)
            .in(frame);
    add("LOZoneSummaryList", ControlKind::list)
        .in(frame)
        .setAccessibleName(text(Text::buildingSummary));
    add("LOSummaryModeLabel(0)", ControlKind::label, Text::summaryCooling).in(frame);
    add("LOSummaryModeLabel(1)", ControlKind::label, Text::summaryHeating).in(frame);
    for (const TotalRow& row : totalRows) {
        add(std::string(row.name) + "TitleLabel", ControlKind::label, row.englishText).in(frame);
        for (int m = 0; m < 2; ++m)
            add(std::string(row.name) + "Label(" + std::to_string(m) + ")", ControlKind::label)
                .in(frame);
    }
    add("LOBuildingDayChart", ControlKind::image, Text::buildingDayChart).in(frame);
    add("LOReturnFromSummaryCommand", ControlKind::button, Text::returnToZone)
        .in(frame)
        .setSpokenName(text(Text::returnToZone) + ", " + text(Text::buildingSummary));
}

void frmZoneManage::LOSummaryCommand_Click() {
    if (!settingUnits && control("LOSummaryPicture").visible())
        return LOReturnFromSummaryCommand_Click();
    showSummaryCaptions();
    showTotals();
    showSummaryList();
    control("LOSummaryPicture").setVisible(true);
    enableZoneCommands();
}

void frmZoneManage::LOReturnFromSummaryCommand_Click() {
    control("LOSummaryPicture").setVisible(false);
    enableZoneCommands();
}

void frmZoneManage::rebuildSummary() {
    if (!control("LOSummaryPicture").visible()) return;
    const RaisedFlag rebuilding(settingUnits);
    // A selection for all zones rests until the summary is left.
    const bool selectable = control("LOAutoSelectAllCommand").enabled();
    LOSummaryCommand_Click();
    control("LOAutoSelectAllCommand").setEnabled(selectable);
}

LoadsChart frmZoneManage::buildingDayChart() const {
    return chartOf(totalsOf(ZoneList()).gains, units());
}

std::string frmZoneManage::descriptionOf(const std::string& image) const {
    if (image != "LOBuildingDayChart") return ZoneWindow::descriptionOf(image);
    return describe(buildingDayChart(), loadsCaptions(units(), texts()), texts());
}

std::vector<std::string> frmZoneManage::summaryTableHeads() const {
    const auto head = [this](std::size_t index) {
        const Heading& heading = headings[index];
        return text(units() == UnitSystem::metric ? heading.metricText : heading.englishText);
    };
    std::vector<std::string> heads{head(0), text(Text::zoneColumnLabel), text(Text::modeHead),
                                   head(1), text(Text::numberOfUnits)};
    constexpr std::size_t loads = 2, firstBlock = 3, capacity = 7, power = 9, cop = 11, factor = 13;
    for (std::size_t block = 0; block < timeBlocks; ++block)
        heads.push_back(head(firstBlock + block) + " " + head(loads));
    heads.push_back(head(capacity) + " " + head(capacity + 1));
    heads.push_back(head(power) + " " + head(power + 1));
    const bool metric = units() == UnitSystem::metric;
    heads.push_back(metric ? head(cop) : head(cop) + " " + head(cop + 1));
    heads.push_back(head(factor));
    return heads;
}

std::vector<std::string> frmZoneManage::summaryTableCells(std::size_t line) const {
    const std::size_t position = zoneOfSummaryLine(line);
    if (position >= ZoneList().size()) return {};
    const Zone& zone = ZoneList()[position];
    const Mode m = line % 2 == 0 ? cooling : heating;
    std::vector<std::string> cells = summaryCells(numberOfZone(zone), zone, m, units());
    const int mode = m == cooling ? Text::cooling : Text::heating;
    cells.insert(cells.begin() + 1, {zone.title, text(mode)});
    return cells;
}

void frmZoneManage::showSummaryCaptions() {
    const bool metric = units() == UnitSystem::metric;
    int index = 0;
    for (const Heading& heading : headings)
        element("LOSummaryLabel", index++)
            .setCaption(text(metric ? heading.metricText : heading.englishText));
    element("LOSummaryLabel", headingOfEer).setVisible(!metric);
    for (const TotalRow& row : totalRows)
        control(std::string(row.name) + "TitleLabel")
            .setCaption(text(metric ? row.metricText : row.englishText));
}

void frmZoneManage::showTotals() {
    const BuildingTotals totals = totalsOf(ZoneList());
    const bool metric = units() == UnitSystem::metric;
    for (const Mode m : modes) {
        const int i = static_cast<int>(m);
        const auto load = [&](double value) {
            return formatNumber(quantities::load.shown(value, units()), "###0.0");
        };
        const double cop = totals.cop[m] * (m == cooling && !metric ? mbtuPerKilowatt : 1);
        element("LOPeakLoadPeriodLabel", i).setCaption(text(blockTexts[totals.peakPeriod[m]]));
        element("LOPeakDemandLabel", i).setCaption(formatNumber(totals.peakDemand[m], "##0.0"));
        element("LOTotalCapacityLabel", i).setCaption(load(totals.totalCapacity[m]));
        element("LOPeakLoadLabel", i).setCaption(load(totals.peakLoad[m]));
        element("LOPumpCOPLabel", i).setCaption(formatNumber(cop, "####0.0"));
    }
}

void frmZoneManage::showSummaryList() {
    std::vector<std::string> lines;
    for (const Zone& zone : ZoneList())
        for (const Mode m : modes)
            lines.push_back(summaryLine(numberOfZone(zone), zone, m, units()));
    control("LOZoneSummaryList").setItems(std::move(lines));
}

}  // namespace varnholt
