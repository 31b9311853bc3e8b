// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/modLoadsReports.h"

#include <algorithm>

#include "basis/run_time_error.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "reports/shared_bands.h"

namespace varnholt {
namespace {

/// The report's own words stand between those of every zone report and the date.
std::string titleOf(const ZoneReportDefinition& definition, const Texts& texts,
                    const PrintingFacts& facts) {
    const std::string own = definition.titleWords == 0 ? "" : texts.text(definition.titleWords);
    return texts.text(Text::reportWord) + " " + texts.text(Text::zone) + " " + own + "  -  " +
           isoText(facts.today);
}

/// "Zone 3  North wing": what a bookmark of the zone says.
std::string bookmarkOf(const ZoneRow& row) {
    const std::string name = printedText(row.zone[fieldNamed(zoneFields, "Name")]);
    const std::string title = printedText(row.zone[fieldNamed(zoneFields, "Title")]);
    return title == " " || title.empty() ? name : name + "  " + title;
}

void addBands(Report& report, std::span<const BandDefinition> definitions, ReportSection section,
              const FillContext& context, std::size_t zone = 0) {
    for (const BandDefinition& definition : definitions) {
        if (definition.section != section) continue;
        report.bands.push_back(fillBand(definition, context));
        report.bands.back().zone = zone;
    }
}

/// The fields that the bands of each zone print.
std::vector<std::string> fieldsOf(std::span<const BandDefinition> definitions,
                                  const FillContext& context) {
    std::vector<std::string> fields;
    for (const BandDefinition& definition : definitions) {
        if (definition.section == ReportSection::PageHeader) continue;
        for (const ItemDefinition& item : definition.items)
            if (isField(item.style) && isPrinted(item.printed, context) &&
                std::find(fields.begin(), fields.end(), item.control) == fields.end())
                fields.emplace_back(item.control);
    }
    return fields;
}

void addZone(Report& report, std::span<const BandDefinition> definitions, const ZoneRow& row,
             FillContext& context) {
    report.zones.push_back(bookmarkOf(row));
    const std::size_t zone = report.zones.size();
    context.zone = &row.zone;
    context.pump = row.pumps.empty() ? nullptr : &row.pumps.front();
    addBands(report, definitions, ReportSection::Zones_Header, context, zone);
    for (const FieldValues& pump : row.pumps) {
        context.pump = &pump;
        addBands(report, definitions, ReportSection::Pumps_Detail, context, zone);
    }
    addBands(report, definitions, ReportSection::Zones_Footer, context, zone);
    context.zone = context.pump = nullptr;
}

}  // namespace

std::vector<ZoneRow> FillZoneReportTables(const ZoneWindow& window, ReportDatabase& database) {
    const std::vector<std::string>& names = window.control("LOZoneList").items();
    const bool metric = window.units() == UnitSystem::metric;
    return database.refill(zoneRows(window.ZoneList(), names, metric, window.texts()));
}

Report zoneReport(const ZoneReportDefinition& definition, const ZoneWindow& window,
                  const std::vector<ZoneRow>& rows, const PrintingFacts& facts) {
    const ProjectInformation& information = window.document().information;
    FillContext context{.window = window, .project = information};
    Report report;
    report.object = definition.object;
    report.caption = window.text(definition.titleText);
    report.landscape = definition.landscape;
    report.projectName = information.projectName;
    report.designer = information.designerName;
    takeFromLanguage(report, context);
    context.metric = window.units() == UnitSystem::metric;
    context.days = window.control("LODaysperWeekText").visible();
    context.title = titleOf(definition, window.texts(), facts);
    context.file = shownFile(window.file().folder, window.file().name, facts);
    context.printedAt = printedAt(facts);

    report.fields = fieldsOf(definition.bands, context);
    for (const BandDefinition& head : reportHead) report.bands.push_back(fillBand(head, context));
    addBands(report, definition.bands, ReportSection::PageHeader, context);
    report.bands.push_back({ReportSection::ProjectID_Header, {}, {}, 0});
    for (const ZoneRow& row : rows) addZone(report, definition.bands, row, context);
    report.bands.push_back({ReportSection::ProjectID_Footer, {}, {}, 0});
    report.bands.push_back(fillBand(pageFoot, context));
    report.bands.push_back({ReportSection::ReportFooter, {}, {}, 0});
    return report;
}

Report zoneReport(const ZoneWindow& window, ReportDatabase& database, const PrintingFacts& facts) {
    const ZoneReportDefinition& definition = at(zoneReports, window.LOPrintOption - 1);
    return zoneReport(definition, window, FillZoneReportTables(window, database), facts);
}

}  // namespace varnholt
