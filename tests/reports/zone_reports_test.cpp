// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of the loads windows, whole: every text is its own number in brackets.
#include <gtest/gtest.h>

#include <algorithm>

#include "loads/loads_fixture.h"
#include "reports/csv_report.h"
#include "reports/install.h"
#include "reports/report_shelf.h"

namespace varnholt {
namespace {

class ZoneReports : public LoadsTest {
 protected:
    ZoneReports() : shelf(folder.path() + "/Data/vht.db") {
        shelf.dayIsGiven = true;
        installReports(main, shelf);
    }

    /// Prints with the option of that index.
    const Report& print(ZoneWindow& window, int option) {
        platform.onModal = [option](Form& form) {
            form.click(elementName("LOPrintOption", static_cast<std::size_t>(option)));
            form.click("cmdOK");
        };
        main.activate(window);
        main.click("mnuFilePrint");
        return *shelf.last();
    }
    /// All texts that the control of the band prints.
    static std::vector<std::string> textsOf(const Report& report, const std::string& section,
                                            const std::string& control) {
        std::vector<std::string> texts;
        for (const ReportEntry& entry : entriesOf(report))
            if (entry.section == section && entry.control == control) texts.push_back(entry.text);
        return texts;
    }
    static std::string textOf(const Report& report, const std::string& section,
                              const std::string& control) {
        const std::vector<std::string> texts = textsOf(report, section, control);
        return texts.size() == 1 ? texts.front() : "printed " + std::to_string(texts.size());
    }
    /// Lengths of the rules of that name.
    static std::vector<double> rules(const Report& report, const std::string& control) {
        std::vector<double> lengths;
        for (const ReportBand& band : report.bands)
            for (const ReportRow& row : band.rows)
                for (const ReportItem& item : row.items)
                    if (item.control == control) lengths.push_back(item.length);
        return lengths;
    }
    /// The first columns that the control stands in.
    static std::vector<int> columnsOf(const Report& report, const std::string& control) {
        std::vector<int> columns;
        for (const ReportBand& band : report.bands)
            for (const ReportRow& row : band.rows)
                for (const ReportItem& item : row.items)
                    if (item.control == control) columns.push_back(item.first);
        return columns;
    }

    ReportShelf shelf;
};

constexpr int shortOption = 0, longOption = 1, equipment = 2, loadsOption = 3, names = 4;

TEST_F(ZoneReports, AreFiveAndKnownByTheirTitles) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    texts.known[9334] = "Zone Report - Loads ";
    const std::pair<const char*, const char*> expected[] = {{"rptZoneSM", "[9331]"},
                                                            {"rptZone", "[9332]"},
                                                            {"rptZoneEQ", "[9333]"},
                                                            {"rptZoneLO", "Zone Report - Loads "},
                                                            {"rptZoneNM", "[9335]"}};
    for (int option = 0; option < 5; ++option) {
        const Report& report = print(window, option);
        EXPECT_EQ(report.object, expected[option].first);
        EXPECT_EQ(report.caption, expected[option].second);
        EXPECT_EQ(window.LOPrintOption, option + 1);
    }
}

TEST_F(ZoneReports, NameThemselvesAndTheDayInTheirHead) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    texts.known[9101] = "Report";
    texts.known[9215] = "Equipment";
    EXPECT_EQ(textOf(print(window, equipment), "ReportHeader", "TitleLabel"),
              "Report Zone Equipment  -  2026-01-15");
    EXPECT_EQ(textOf(print(window, shortOption), "ReportHeader", "TitleLabel"),
              "Report Zone   -  2026-01-15");
}

TEST_F(ZoneReports, HaveEveryBand) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    const Report& report = print(window, longOption);
    for (int section = 0; section < static_cast<int>(reportSections); ++section) {
        if (static_cast<ReportSection>(section) == ReportSection::Zones_Footer) continue;
        EXPECT_TRUE(std::any_of(report.bands.begin(), report.bands.end(),
                                [&](const ReportBand& band) {
                                    return band.section == static_cast<ReportSection>(section);
                                }))
            << nameOf(static_cast<ReportSection>(section));
    }
    EXPECT_TRUE(std::is_sorted(
        report.bands.begin(), report.bands.end(),
        [](const ReportBand& a, const ReportBand& b) { return a.section < b.section; }));
    EXPECT_EQ(textOf(report, "PageFooter", "PageNumberLabel"), "1 / 1");
}

TEST_F(ZoneReports, CarryTheProjectThatTheWindowIsLinkedWith) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    ProjectInformation information;
    information.projectName = "School";
    information.email = "a@b.example";
    information.currentDate = {2026, 2, 3};
    information.projectStartDate = {2025, 4, 5};
    window.takeProject(information);
    for (int option = 0; option < 5; ++option) {
        const Report& report = print(window, option);
        const auto shown = [&](const char* control) {
            return textOf(report, "ReportHeader", control);
        };
        EXPECT_EQ(shown("VHTTitleLabel"), "[1001]");
        EXPECT_EQ(shown("ProjectNameLabel"), "[2902]");
        EXPECT_EQ(shown("ProjectNameTextLabel"), "School");
        EXPECT_EQ(shown("DateTextLabel"), "2026-02-03");
        EXPECT_EQ(shown("ProjectStartDateTextLabel"), "2025-04-05");
        EXPECT_EQ(shown("EmailLabel"), "[2914]");
        EXPECT_EQ(shown("EmailTextLabel"), "a@b.example");
        EXPECT_EQ(shown("FaxLabel"), "[2913]");
        EXPECT_EQ(shown("FaxTextLabel"), "");
    }
}

TEST_F(ZoneReports, OfTheLongFormPrintLoadsHoursAndPump) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    window.type("LOZoneReferenceText", "North");
    window.type("LOHoursText(0)", "900");
    window.click("LOAutoSelectCommand");
    const Report& report = print(window, longOption);
    const auto zone = [&](const char* control) { return textOf(report, "Zones_Header", control); };
    const auto pump = [&](const char* control) { return textOf(report, "Pumps_Detail", control); };
    EXPECT_EQ(zone("txtZoneNumber"), "Zone 1");
    EXPECT_EQ(zone("txtTitle"), "North");
    EXPECT_EQ(zone("txtLoadsCool1"), "20.0");
    EXPECT_EQ(zone("txtLoadsCool"), "0.0");
    EXPECT_EQ(zone("txtLoadsHeat3"), "15.0");
    EXPECT_EQ(zone("txtCoolingHours"), "900");
    EXPECT_EQ(zone("txtDaysperWeek"), "7");
    EXPECT_EQ(zone("CoolingLabel"), "[2203]");
    EXPECT_EQ(zone("HeatGainsUnitsLabel"), "[4235]");
    EXPECT_EQ(pump("txtName"), "Air-40");  // 20 is not more than a cooling load of 20
    EXPECT_EQ(pump("txtManufacturer"), "First");
    EXPECT_EQ(pump("txtSeries"), "Air");
    EXPECT_EQ(pump("txtPumpTypeLabel"), "[2862]");
    EXPECT_EQ(pump("CapacityLabel"), "[2842]");
    EXPECT_EQ(pump("COPLabel"), "[2845]");
    EXPECT_EQ(pump("LoadTempLabel"), "[9203]");
    EXPECT_EQ(pump("LoadFlowUnitsLabel1"), "[2874]");
    EXPECT_EQ(pump("LoadFlowUnitsLabel2"), "[3215]");
    EXPECT_EQ(textOf(report, "PageHeader", "UnitInletLabel"), "[2110]");
    EXPECT_EQ(textOf(report, "PageHeader", "UnitInletCoolingTextLabel"), "85.0");
    EXPECT_EQ(textOf(report, "PageHeader", "UnitInletHeatingTextLabel"), "50.0");
}

TEST_F(ZoneReports, FollowTheUnitsOfTheWindow) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    window.switchUnits(UnitSystem::metric);
    const Report& report = print(window, longOption);
    EXPECT_EQ(textOf(report, "Zones_Header", "txtLoadsCool1"), "5.9");  // 20 x 0.2931 = 5.862
    EXPECT_EQ(textOf(report, "Zones_Header", "HeatGainsUnitsLabel"), "[4234]");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "CapacityLabel"), "[2841]");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "COPLabel"), "[2844]");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "FlowRateLabel"), "[2846]");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "LoadTempLabel"), "[9202]");
    EXPECT_EQ(textOf(report, "PageHeader", "UnitInletLabel"), "[2109]");
    EXPECT_EQ(textOf(report, "PageHeader", "UnitInletCoolingTextLabel"), "29.4");  // 53 x 5 / 9
    const Report& small = print(window, shortOption);
    EXPECT_EQ(textOf(small, "PageHeader", "FlowRateUnitsLabel"), "[9205]");
    EXPECT_EQ(textOf(small, "PageHeader", "LoadTempUnitsLabel"), "[4231]");
    EXPECT_EQ(textOf(small, "PageHeader", "CapacityUnitsLabel"), "[4234]");
    EXPECT_EQ(textOf(small, "PageHeader", "LoadFlowUnitsLabel1"), "[2873]");
    EXPECT_EQ(textOf(small, "PageHeader", "LoadFlowUnitsLabel2"), "[3214]");
}

TEST_F(ZoneReports, OfTheShortFormHaveALineAPumpUnderTheHeadOfThePage) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    addZone(window, 10, 8);
    const Report& report = print(window, shortOption);
    EXPECT_EQ(textsOf(report, "Pumps_Detail", "txtZoneID"), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(textsOf(report, "Pumps_Detail", "txtLoadsCool1"),
              (std::vector<std::string>{"20.0", "10.0"}));
    EXPECT_EQ(textOf(report, "PageHeader", "CoolingLabel"), "[2102]");
    EXPECT_EQ(textOf(report, "PageHeader", "CoolingLabel2"), "[2102]");
    EXPECT_EQ(textOf(report, "PageHeader", "COPLabel"), "[2844]");
    EXPECT_EQ(textOf(report, "PageHeader", "LoadFlowLabel1"), "[9218]");
    EXPECT_EQ(textOf(report, "PageHeader", "LoadFlowLabel2"), "[9212]");
}

TEST_F(ZoneReports, OfTheLoadsPrintTheDaysOfEveryZone) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    addZone(window, 10, 8);
    const Report& report = print(window, loadsOption);
    EXPECT_EQ(textsOf(report, "Pumps_Detail", "txtDaysperWeek"),
              (std::vector<std::string>{"7", "7"}));
    EXPECT_EQ(textOf(report, "PageHeader", "DaysPerWeekLabel"), "[2829]");
    EXPECT_EQ(textOf(report, "PageHeader", "EightToNoonLabel1"), "[2824]");
    EXPECT_EQ(rules(report, "Line4").size(), 2U);
}

TEST_F(ZoneReports, LeaveTheDaysOutWhereTheWindowHidesThem) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    window.control("LODaysperWeekText").setVisible(false);
    // 6660 twips of 1440 to the inch are 117.475 mm.
    const Report loads = print(window, loadsOption);
    EXPECT_TRUE(textsOf(loads, "Pumps_Detail", "txtDaysperWeek").empty());
    EXPECT_TRUE(textsOf(loads, "PageHeader", "DaysPerWeekLabel").empty());
    for (const char* line : {"Line2", "Line4"}) {
        ASSERT_EQ(rules(loads, line).size(), 1U) << line;
        EXPECT_NEAR(rules(loads, line).front(), 117.475, 1e-9) << line;
    }
    EXPECT_TRUE(textsOf(print(window, longOption), "Zones_Header", "txtDaysperWeek").empty());
}

TEST_F(ZoneReports, OfTheNamesPrintABlankTitleToo) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    const Report& report = print(window, names);
    EXPECT_EQ(textOf(report, "Pumps_Detail", "txtTitle"), " ");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "txtZoneID"), "1");
    EXPECT_EQ(textOf(report, "PageHeader", "ZoneReferenceLabel"), "[2817]");
}

TEST_F(ZoneReports, OfTheEquipmentNameMakerSeriesAndType) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    const Report& report = print(window, equipment);
    EXPECT_EQ(textOf(report, "Pumps_Detail", "txtManufacturer"), " ");
    EXPECT_EQ(textOf(report, "Pumps_Detail", "txtPumpTypeLabel"), "[2864]");
    EXPECT_EQ(textOf(report, "PageHeader", "PumpInfoLabel"), "[4106]");
    EXPECT_EQ(textOf(report, "PageHeader", "PumpDataLabel"), "[9216]");
    EXPECT_EQ(rules(report, "Line3").size(), 1U);
}

/// Under "cfm" for a pump that moves air, under "gpm" for one that moves water.
TEST_F(ZoneReports, PrintTheFlowOfTheLoadBelowItsUnit) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    for (const int type : {0, 1}) {
        window.change([type](LoadsDocument& document) {
            document.data.zones.edit(0).pump.pumpType = static_cast<std::int16_t>(type);
        });
        const char* unit = type == 0 ? "LoadFlowUnitsLabel1" : "LoadFlowUnitsLabel2";
        for (const int option : {shortOption, longOption, equipment}) {
            const Report& report = print(window, option);
            for (const char* flow : {"txtLoadFlowCool", "txtLoadFlowHeat"})
                EXPECT_EQ(columnsOf(report, flow), columnsOf(report, unit)) << option << flow;
        }
    }
}

TEST_F(ZoneReports, OfAnAverageBlockPrintItsOneZone) {
    frmAvgBlock& window = block();
    addZone(window, 200, 150);
    const Report& report = print(window, longOption);
    EXPECT_EQ(textOf(report, "Zones_Header", "txtLoadsCool1"), "200.0");
}

TEST_F(ZoneReports, OfNoZonesPrintOneEmptyZone) {
    const Report& report = print(manager(), longOption);
    EXPECT_EQ(textOf(report, "Zones_Header", "txtZoneNumber"), "");
    EXPECT_TRUE(textsOf(report, "Pumps_Detail", "txtName").empty());
}

TEST_F(ZoneReports, OfNoZonesHaveTheHeadsOfTheirTableAllTheSame) {
    frmZoneManage& window = manager();
    EXPECT_EQ(csvOf(print(window, names)), "txtZoneID,txtTitle,txtName,txtUnitNumber\r\n");
    addZone(window, 20, 15);
    EXPECT_TRUE(csvOf(print(window, names))
                    .starts_with("txtZoneID,txtTitle,txtName,txtUnitNumber\r\n1, ,"));
}

TEST_F(ZoneReports, ShowTheLogoInTheEditionOfAMaker) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    EXPECT_TRUE(textsOf(print(window, names), "ReportHeader", "imgLogo").empty());
    for (const char* address :
         {"www.waterfurnace.com", "https://www.nakrelpa.com/", "http://floridaheatpump.com"}) {
        texts.known[108] = address;
        const Report& report = print(window, names);
        EXPECT_EQ(textOf(report, "ReportHeader", "imgLogo"), address);
        EXPECT_EQ(report.logo, "32003");
    }
    texts.known[108] = "https://www.nakrelpa.com.example";
    EXPECT_TRUE(textsOf(print(window, names), "ReportHeader", "imgLogo").empty());
}

TEST_F(ZoneReports, TakeTheFontOfTheLanguage) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    texts.known[1103] = "Noto Serif";
    EXPECT_EQ(print(window, names).font, "Noto Serif");
}

TEST_F(ZoneReports, TellFileAndDayInTheFootAndTheFolderOnlyToAPerson) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    const Report given = print(window, names);
    EXPECT_EQ(textOf(given, "PageFooter", "FileNameLabel"), "Zone Loads.zon");
    EXPECT_EQ(textOf(given, "PageFooter", "PrintedLabel"), "2026-01-15");
    shelf.dayIsGiven = false;
    const Report own = print(window, names);
    EXPECT_TRUE(textOf(own, "PageFooter", "FileNameLabel").ends_with("/zones/Zone Loads.zon"));
    // "2026-01-15 14:03"
    EXPECT_EQ(textOf(own, "PageFooter", "PrintedLabel").size(), 16U);
}

TEST_F(ZoneReports, AreTheSameWithoutADatabase) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    const auto before = entriesOf(print(window, longOption));
    EXPECT_TRUE(shelf.database().usedFile());
    std::filesystem::remove_all(folder.path() + "/Data");
    writeFile(folder.path() + "/Data", "");
    const auto after = entriesOf(print(window, longOption));
    EXPECT_FALSE(shelf.database().usedFile());
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_EQ(before[i].text, after[i].text);
}

TEST_F(ZoneReports, AreAskedForByTheWindowsOwnButton) {
    frmZoneManage& window = manager();
    EXPECT_FALSE(window.control("LOPrintCommand").enabled());
    addZone(window, 20, 15);
    EXPECT_TRUE(window.control("LOPrintCommand").enabled());
    platform.onModal = [](Form& form) {
        EXPECT_EQ(form.formName(), "frmZNOptions");
        EXPECT_EQ(form.caption(), "[9301]");
        EXPECT_TRUE(form.control("LOPrintOption(0)").checked());
        EXPECT_EQ(form.control("LOPrintOption(2)").caption(), "[9215]");
        EXPECT_EQ(form.control("ZoneReportSelectionFrame").caption(), "[9302]");
        form.click("cmdOK");
    };
    window.click("LOPrintCommand");
    ASSERT_TRUE(shelf.hasReport());
    EXPECT_EQ(shelf.last()->object, "rptZoneSM");
    window.click("LORemoveCommand");
    EXPECT_FALSE(window.control("LOPrintCommand").enabled());
}

TEST_F(ZoneReports, AreNotShownAfterACancel) {
    frmZoneManage& window = manager();
    addZone(window, 20, 15);
    platform.onModal = [](Form& form) { form.click("cmdCancel"); };
    main.click("mnuFilePrint");
    EXPECT_FALSE(shelf.hasReport());
    EXPECT_EQ(window.LOPrintOption, 0);
}

TEST_F(ZoneReports, NeedAWindowWithReports) {
    EXPECT_FALSE(main.control("mnuFilePrint").enabled());
    EXPECT_FALSE(main.control("tbrMain(5)").enabled());
    manager();
    EXPECT_TRUE(main.control("mnuFilePrint").enabled());
    EXPECT_TRUE(main.control("tbrMain(5)").enabled());
}

}  // namespace
}  // namespace varnholt
