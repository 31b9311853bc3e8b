// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/modProjectReports.h"

#include <array>

#include "design/frmBHDesign.h"
#include "design/frmHZDesign.h"
#include "design/frmSWDesign.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/reports.h"
#include "loads/loads_window.h"
#include "reports/project_report_blocks.h"
#include "reports/shared_bands.h"

namespace varnholt {
namespace {

/// The day of the whole building.
DayDrawing dayOf(const GroundDesign& window) {
    std::array<ByMode<double>, timeBlocks> gains{};
    for (const Zone& zone : window.ZoneList())
        for (std::size_t block = 0; block < timeBlocks; ++block)
            for (const Mode mode : modes) gains[block][mode] += zone.gains[block][mode];
    const bool metric = window.units() == UnitSystem::metric;
    return {chartOf(gains, window.units()),
            {window.text(Text::columnEightToNoon), window.text(Text::columnNoonToFour),
             window.text(Text::columnFourToEight), window.text(Text::columnEightToEight)},
            {window.text(Text::chartCooling), window.text(Text::chartHeating)},
            window.text(metric ? Text::reportLoadUnitsMetric : Text::reportLoadUnitsEnglish)};
}

std::vector<ReportDrawing> drawingsOf(const GroundDesign& window) {
    std::vector<ReportDrawing> drawings;
    if (const auto* bores = dynamic_cast<const frmBHDesign*>(&window)) {
        drawings.push_back({bores->boreDrawing(), window.text(Text::boreDrawing)});
        drawings.push_back({bores->fieldPlan(), window.text(Text::fieldDrawing)});
    }
    if (const auto* trenches = dynamic_cast<const frmHZDesign*>(&window)) {
        drawings.push_back({trenches->trenchDrawing(), window.text(Text::trenchSectionDrawing)});
        drawings.push_back({trenches->trenchPlan(), window.text(Text::trenchPlanDrawing)});
    }
    if (const auto* pond = dynamic_cast<const frmSWDesign*>(&window))
        drawings.push_back({pond->circuitPlan(), window.text(Text::circuitDrawing)});
    DayDrawing day = dayOf(window);
    if (!day.chart.empty())
        drawings.push_back({std::move(day), window.text(Text::buildingDayDrawing)});
    return drawings;
}

/// A tower takes a share of the load that is on show.
bool towerIsShown(const GroundDesign& window) {
    const Values& values = window.values();
    return values.has("hybridPercent") && std::get<double>(values.read("hybridPercent")) > 0;
}

FillContext contextOf(const GroundDesign& window, const std::string& title, bool detailed,
                      const PrintingFacts& facts) {
    FillContext context{.window = window, .project = window.information()};
    context.metric = window.units() == UnitSystem::metric;
    context.tower = towerIsShown(window);
    context.detailed = detailed;
    context.title = title;
    if (window.showsOlderResults()) context.notice = window.text(Text::reportOutOfDate);
    context.file = shownFile(window.directoryName, window.FileName, facts);
    context.printedAt = printedAt(facts);
    context.loads = window.LoadsHome();
    return context;
}

void addHead(Report& report, bool detailed, const FillContext& context) {
    if (!detailed) return report.bands.push_back(fillBand(shortReportHead, context));
    for (const BandDefinition& head : reportHead) report.bands.push_back(fillBand(head, context));
}

}  // namespace

Report FillProjectReport(const ProjectReportDefinition& definition, const GroundDesign& window,
                         const PrintingFacts& facts) {
    Report report;
    report.object = definition.object;
    report.caption = window.text(definition.titleText) + " " + window.text(Text::reportWord);
    report.projectName = window.information().projectName;
    report.designer = window.information().designerName;
    report.numbered = definition.option == detailedForm;
    FillContext context = contextOf(window, report.caption, report.numbered, facts);
    takeFromLanguage(report, context);
    if (report.numbered) report.drawings = drawingsOf(window);

    addHead(report, report.numbered, context);
    report.bands.push_back({ReportSection::PageHeader, {}, {}, 0});
    addParts(report, definition.parts, context);
    addParts(report, lastParts, context);
    for (int section = static_cast<int>(ReportSection::Zones_Header);
         section < static_cast<int>(ReportSection::PageFooter); ++section)
        report.bands.push_back({static_cast<ReportSection>(section), {}, {}, 0});
    report.bands.push_back(fillBand(report.numbered ? pageFoot : shortPageFoot, context));
    report.bands.push_back({ReportSection::ReportFooter, {}, {}, 0});
    return report;
}

}  // namespace varnholt
