// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/desk.h"
#include "loads/modLoads/zone_window.h"
#include "reports/modLoadsReports.h"
#include "reports/modProjectReports.h"
#include "reports/project_reports.h"

namespace varnholt {

/// Reports of a program with real texts, for the tests of paper.
class ReportSamples {
 public:
    explicit ReportSamples(Desk& desk) : desk_(desk) {}

    /// A report of so many zones; LOPrintOption counts from 1.
    std::shared_ptr<const Report> zones(std::size_t count, int option,
                                        const std::string& title = "North wing") {
        desk_.main().click("mnuZoneManage");
        auto& window = dynamic_cast<ZoneWindow&>(*desk_.main().find("frmZoneManage"));
        window.change([&](LoadsDocument& document) {
            std::vector<Zone> zones(count);
            for (std::size_t i = 0; i < count; ++i) fill(zones[i], i, title);
            document.data.zones = zones;
        });
        const std::vector<ZoneRow> rows =
            zoneRows(window.ZoneList(), namesOf(count), window.units() == UnitSystem::metric,
                     window.texts());
        return std::make_shared<const Report>(zoneReport(
            zoneReports.at(static_cast<std::size_t>(option - 1)), window, rows, facts()));
    }

    /// A report of a new borehole design.
    std::shared_ptr<const Report> borehole(int option, const std::string& comments = {}) {
        desk_.main().click("NewBorehole");
        auto& window = dynamic_cast<GroundDesign&>(*desk_.main().activeWindow());
        window.type("INProjectNameText", "School \u00D6stra V\u00E5nga");
        window.type("INDesignerNameText", "A. Designer");
        window.type("INCommentsRichTextBox", comments);
        return std::make_shared<const Report>(
            FillProjectReport(*projectReportOf("frmBHDesign", option), window, facts()));
    }

 private:
    static PrintingFacts facts() { return {{2026, 1, 15}, {}, false}; }
    static std::vector<std::string> namesOf(std::size_t count) {
        std::vector<std::string> names;
        for (std::size_t i = 1; i <= count; ++i) names.push_back("Zone " + std::to_string(i));
        return names;
    }
    static void fill(Zone& zone, std::size_t i, const std::string& title) {
        for (std::size_t block = 0; block < timeBlocks; ++block)
            zone.gains[block] = {10.5 + static_cast<double>(i % 90), 8.25};
        zone.hours = {1200, 900};
        zone.title = title;
        zone.pump.name = "AB-036";
        zone.pump.capacity = {36, 30};
        zone.pump.watts = {2.5, 2.25};
    }

    Desk& desk_;
};

}  // namespace varnholt
