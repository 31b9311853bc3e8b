// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/install.h"

#include "design/ground_design.h"
#include "reports/frmPROptions.h"
#include "reports/frmZNOptions.h"
#include "reports/modLoadsReports.h"
#include "reports/modProjectReports.h"
#include "reports/project_reports.h"
#include "reports/report_shelf.h"

namespace varnholt {
namespace {

void PrintZoneReport(const ZoneWindow& window, ReportShelf& shelf) {
    shelf.show(zoneReport(window, shelf.database(), shelf.facts(window.platform().today())));
}

void ShowProjectReport(const GroundDesign& window, int option, ReportShelf& shelf) {
    const ProjectReportDefinition* report = projectReportOf(window.formName(), option);
    if (report == nullptr) return;
    shelf.show(FillProjectReport(*report, window, shelf.facts(window.platform().today())));
}

void printLoads(Varnmain& main, const ZoneWindow& window, ReportShelf& shelf) {
    frmZNOptions options(main);
    main.runModal(options);
    if (options.chosen()) PrintZoneReport(window, shelf);
}

void printDesign(Varnmain& main, const GroundDesign& window, ReportShelf& shelf) {
    frmPROptions options(main);
    main.runModal(options);
    if (options.chosen()) ShowProjectReport(window, *options.chosen(), shelf);
}

void mnuFilePrint_Click(Varnmain& main, ReportShelf& shelf) {
    if (const auto* loads = dynamic_cast<const ZoneWindow*>(main.activeWindow()))
        printLoads(main, *loads, shelf);
    else if (const auto* design = dynamic_cast<const GroundDesign*>(main.activeWindow()))
        printDesign(main, *design, shelf);
}

}  // namespace

void installReports(Varnmain& main, ReportShelf& shelf) {
    main.setCommand("mnuFilePrint", CommandNeeds::printable,
                    [&main, &shelf] { mnuFilePrint_Click(main, shelf); });
    main.setCommand("mnuFilePrintSetup", CommandNeeds::nothing, [&shelf] {
        if (shelf.onPrintSetup) shelf.onPrintSetup();
    });
}

}  // namespace varnholt
