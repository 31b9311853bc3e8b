// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/load_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "loads/import/import_fixture.h"

namespace varnholt {
namespace {

/// Loads in kW by the hour of the year, from 0: cooling 10 in the afternoon hours 13 to 16, 2 in
/// the others; heating 5 in January, 1 else.
double coolingAt(int hour) { return hour % 24 >= 12 && hour % 24 < 16 ? 10 : 2; }
double heatingAt(int hour) { return hour < 744 ? 5 : 1; }

std::string hoursText(int hours, const std::function<std::string(int)>& row,
                      const std::string& head = "Date/Time,Cooling [kW],Heating [kW]\r\n") {
    std::string text = head;
    for (int hour = 0; hour < hours; ++hour) text += row(hour) + "\r\n";
    return text;
}
std::string plainRow(int hour) {
    return "h" + std::to_string(hour + 1) + "," + shortestText(coolingAt(hour)) + "," +
           shortestText(heatingAt(hour));
}

struct Read {
    TableChoices choices;
    TableReading reading;
};
Read read(
    const std::string& text,
    const std::function<void(TableChoices&)>& correct = [](TableChoices&) {}) {
    const TableText table(text);
    const TableFormat format = table.guessedFormat();
    const auto rows = table.rows(format);
    Read result{guessedChoices(rows, format, TableUnit::mbtuPerHour), {}};
    correct(result.choices);
    result.reading = readLoads(rows, result.choices);
    return result;
}

TEST(LoadTables, OfHoursBecomeMonths) {
    const Read table = read(hoursText(8760, plainRow));
    EXPECT_EQ(table.choices.layout, TableLayout::hourly);
    EXPECT_EQ(table.choices.unit, TableUnit::kilowatts);
    EXPECT_EQ(table.choices.dateColumn, 0u);
    EXPECT_EQ(table.choices.coolingColumn, 1u);
    EXPECT_EQ(table.choices.heatingColumn, 2u);
    ASSERT_TRUE(table.reading.years);
    const MonthlyLoads& cool = (*table.reading.years)[cooling];
    // A day has 4 * 10 + 20 * 2 = 80 kWh; February 28 of them, over 0.2931 kWh/MBtu.
    EXPECT_NEAR(cool.totalLoads[1], 28 * 80 / 0.2931, 1e-6);
    EXPECT_NEAR(cool.yearTotal, 365 * 80 / 0.2931, 1e-6);
    EXPECT_NEAR(cool.peakMax, 10 / 0.2931 * 1000, 1e-6);
    EXPECT_NEAR(cool.eqvHours, 2920, 1e-9);  // 365 * 80/10
    const MonthlyLoads& heat = (*table.reading.years)[heating];
    EXPECT_NEAR(heat.totalLoads[0], 744 * 5 / 0.2931, 1e-6);
    EXPECT_NEAR(heat.totalLoads[11], 744 / 0.2931, 1e-6);
    EXPECT_EQ(heat.peakMonth(), 0u);
    EXPECT_EQ(table.reading.without, std::vector<std::size_t>{1});
    EXPECT_EQ(table.reading.taken, 8760u);
}

TEST(LoadTables, OfALeapYearLeaveOutThe29February) {
    // The rows of that day, and of no other, hold 100.
    const auto row = [](int hour) {
        return std::to_string(hour >= 1416 && hour < 1440 ? 100 : 1) + ",0";
    };
    const Read table = read(hoursText(8784, row, "Cooling kW,Heating kW\r\n"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_NEAR((*table.reading.years)[cooling].peakMax, 1000 / 0.2931, 1e-6);
    EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 8760 / 0.2931, 1e-6);
    // Line 1 has the names, so the hour 1417 stands in line 1418.
    EXPECT_EQ(table.reading.leapDay, (std::pair<std::size_t, std::size_t>{1418, 1441}));
    EXPECT_EQ(table.reading.taken, 8784u);
}

TEST(LoadTables, TellTheMeansOfThePeakDayByBlocks) {
    // The hour that ends at 9 o'clock of day 100 has the greatest load of cooling; heating has its
    // greatest in the last hour of the year.
    const auto row = [](int hour) {
        const int day = hour / 24, ending = hour % 24 + 1;
        const int cool = day == 99 ? (ending == 9 ? 50 : ending) : 1;
        const int heat = hour == 8759 ? 60 : 2;
        return std::to_string(cool) + "," + std::to_string(heat);
    };
    const Read table = read(hoursText(8760, row, "Cooling MBtu,Heating MBtu\r\n"));
    ASSERT_TRUE(table.reading.peakDays);
    const DayLoads& cool = (*table.reading.peakDays)[cooling];
    EXPECT_DOUBLE_EQ(cool[0], (50 + 10 + 11 + 12) / 4.0);
    EXPECT_DOUBLE_EQ(cool[1], (13 + 14 + 15 + 16) / 4.0);
    EXPECT_DOUBLE_EQ(cool[2], (17 + 18 + 19 + 20) / 4.0);
    // 21 to 24, and 1 to 8: 90 + 36
    EXPECT_DOUBLE_EQ(cool[3], 126 / 12.0);
    const DayLoads& heat = (*table.reading.peakDays)[heating];
    EXPECT_DOUBLE_EQ(heat[0], 2);
    EXPECT_DOUBLE_EQ(heat[3], (60 + 11 * 2) / 12.0);
}

TEST(LoadTables, AreCutByTheSeparatorAndTheDecimalMarkThatFit) {
    struct Case {
        const char* name;
        char separator, decimal;
        std::function<std::string(int)> row;
    };
    const Case cases[] = {
        {"comma", ',', '.', [](int) { return std::string("1.5,2.5"); }},
        {"semicolon", ';', '.', [](int) { return std::string("1.5;2.5"); }},
        {"semicolon and decimal comma", ';', ',', [](int) { return std::string("1,5;2,5"); }},
        {"tab", '\t', '.', [](int) { return std::string("1.5\t2.5"); }},
        {"tab and decimal comma", '\t', ',', [](int) { return std::string("1,5\t2,5"); }},
        {"quotes", ',', '.', [](int) { return std::string("\"1.5\",\"2.5\""); }},
        {"blanks", ',', '.', [](int) { return std::string(" 1.5 ,  2.5"); }},
    };
    for (const Case& c : cases) {
        const Read table = read(hoursText(8760, c.row, ""));
        EXPECT_EQ(table.choices.format.separator, c.separator) << c.name;
        EXPECT_EQ(table.choices.format.decimal, c.decimal) << c.name;
        ASSERT_TRUE(table.reading.years) << c.name;
        EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 8760 * 1.5, 1e-6) << c.name;
        EXPECT_NEAR((*table.reading.years)[heating].yearTotal, 8760 * 2.5, 1e-6) << c.name;
    }
}

TEST(LoadTables, MayComeInOtherEncodings) {
    const std::string text = hoursText(8760, plainRow);
    const auto expected = *read(text).reading.years;
    EXPECT_EQ(*read("\xEF\xBB\xBF" + text).reading.years, expected);
    std::string accents = text;
    accents.replace(0, 4, "\xC9t\xE9");  // Windows-1252
    EXPECT_EQ(*read(accents).reading.years, expected);
    std::string wide = "\xFF\xFE";
    for (const char c : text) wide += std::string{c, '\0'};
    EXPECT_EQ(*read(wide).reading.years, expected);
    std::string lineFeeds = text;
    std::erase(lineFeeds, '\r');
    EXPECT_EQ(*read(lineFeeds).reading.years, expected);
}

TEST(LoadTables, AreConvertedFromTheirUnit) {
    struct Case {
        const char* head;
        TableUnit unit;
        double mbtu;  // of the number 3600
    };
    const double kilowattHours = 1 / 0.2931;
    for (const Case& c : {Case{"Cooling kW", TableUnit::kilowatts, 3600 * kilowattHours},
                          Case{"Cooling kWh", TableUnit::kilowattHours, 3600 * kilowattHours},
                          Case{"Cooling [W](Hourly)", TableUnit::watts, 3.6 * kilowattHours},
                          Case{"Cooling [J](Hourly)", TableUnit::joules, 0.001 * kilowattHours},
                          Case{"Cooling Btu/hr", TableUnit::btuPerHour, 3.6},
                          Case{"Cooling kBtu/h", TableUnit::mbtuPerHour, 3600},
                          Case{"Cooling tons", TableUnit::tons, 43200},
                          Case{"Cooling", TableUnit::mbtuPerHour, 3600}}) {
        const Read table = read(hoursText(
            8760, [](int) { return std::string("3600"); }, std::string(c.head) + "\r\n"));
        EXPECT_EQ(table.choices.unit, c.unit) << c.head;
        ASSERT_TRUE(table.reading.years) << c.head;
        EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 8760 * c.mbtu, 8760 * c.mbtu * 1e-9)
            << c.head;
    }
}

TEST(LoadTables, WithOneSignedColumnHoldBothModes) {
    const auto row = [](int hour) { return std::to_string(hour % 2 == 0 ? 7 : -3); };
    const Read table = read(hoursText(8760, row, "Load\r\n"));
    EXPECT_TRUE(table.choices.oneSignedColumn);
    ASSERT_TRUE(table.reading.years);
    EXPECT_DOUBLE_EQ((*table.reading.years)[cooling].yearTotal, 4380 * 7);
    EXPECT_DOUBLE_EQ((*table.reading.years)[heating].yearTotal, 4380 * 3);
    EXPECT_TRUE(table.reading.negative.empty());
    const Read turned = read(hoursText(8760, row, "Load\r\n"), [](TableChoices& choices) {
        std::swap(choices.coolingColumn, choices.heatingColumn);
    });
    EXPECT_DOUBLE_EQ((*turned.reading.years)[heating].yearTotal, 4380 * 7);
}

TEST(LoadTables, TakeAColumnThatIsAllNegativeByItsMagnitude) {
    const Read table = read(hoursText(
        8760, [](int) { return std::string("1,-2"); }, "Cooling kW,Heating kW\r\n"));
    EXPECT_FALSE(table.choices.oneSignedColumn);
    ASSERT_TRUE(table.reading.years);
    EXPECT_NEAR((*table.reading.years)[heating].yearTotal, 8760 * 2 / 0.2931, 1e-6);
    EXPECT_TRUE(table.reading.negative.empty());
}

TEST(LoadTables, CountASingleNegativeLoadAsZeroAndTellItsLine) {
    const Read table = read(hoursText(
        8760, [](int hour) { return std::string(hour == 4 ? "-1,2" : "1,2"); },
        "Cooling kW,Heating kW\r\n"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_EQ(table.reading.negative, std::vector<std::size_t>{6});
    EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 8759 / 0.2931, 1e-6);
}

TEST(LoadTables, TellTheLinesThatHoldNoLoad) {
    std::string text = "School\r\n\r\n" + hoursText(8760, plainRow);
    text.insert(text.find("h100,"), "rest,n/a,n/a\r\n,,\r\n");
    const Read table = read(text);
    ASSERT_TRUE(table.reading.years);
    // Names and title in lines 1 to 3; the hundredth hour would stand in line 103.
    EXPECT_EQ(table.reading.without, (std::vector<std::size_t>{1, 2, 3, 103, 104}));
}

TEST(LoadTables, CountAnEmptyCellAsZeroAndTellItsLine) {
    const Read table = read(hoursText(
        8760, [](int hour) { return std::string(hour == 4 ? ",2" : "1,2"); },
        "Cooling kW,Heating kW\r\n"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_EQ(table.reading.blanks, std::vector<std::size_t>{6});
}

TEST(LoadTables, OfAnyOtherNumberOfRowsAreNotTaken) {
    for (const int hours : {1, 8759, 8761, 8783, 8785}) {
        const Read table = read(hoursText(hours, plainRow));
        EXPECT_FALSE(table.reading.years) << hours;
        EXPECT_TRUE(table.reading.wrongCount) << hours;
        EXPECT_EQ(table.reading.taken, static_cast<std::size_t>(hours));
        EXPECT_EQ(table.reading.lastLine, static_cast<std::size_t>(hours) + 1);
    }
    EXPECT_FALSE(read("").reading.years);
    EXPECT_TRUE(read("").reading.noColumn);
    EXPECT_FALSE(read("only text\r\nand more").reading.years);
}

std::string monthsText(const std::string& head, const std::string& row) {
    std::string text = head + "\r\n";
    for (const char* month :
         {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"})
        text += month + row + "\r\n";
    return text;
}

TEST(LoadTables, OfMonthsTakeThePeaksBesideTheEnergies) {
    const Read table =
        read(monthsText("Month,Cooling kWh,Cooling peak kW,Heating kWh,Heating peak kW",
                        ",2931,29.31,586.2,58.62"));
    EXPECT_EQ(table.choices.layout, TableLayout::monthly);
    EXPECT_EQ(table.choices.coolingColumn, 1u);
    EXPECT_EQ(table.choices.heatingColumn, 3u);
    ASSERT_TRUE(table.reading.years);
    EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 120000, 1e-6);
    EXPECT_NEAR((*table.reading.years)[cooling].peakMax, 100000, 1e-6);
    EXPECT_NEAR((*table.reading.years)[heating].yearTotal, 24000, 1e-6);
    EXPECT_NEAR((*table.reading.years)[heating].peakMax, 200000, 1e-6);
    EXPECT_FALSE(table.reading.withoutPeaks);
    EXPECT_FALSE(table.reading.peakDays);
}

TEST(LoadTables, OfMonthsTakeThePeaksWhereverTheirNamesStand) {
    // Peaks of 29.31 and 58.62 kW are 100 and 200 MBtu/hr, by 0.2931 kW per MBtu/hr.
    for (const auto& [names, figures] :
         {std::pair{"Month,Cooling kWh,Heating kWh,Peak cooling kW,Peak heating kW",
                    ",2931,586.2,29.31,58.62"},
          std::pair{"Month,Max. heating kW,Max. cooling kW,Cooling kWh,Heating kWh",
                    ",58.62,29.31,2931,586.2"},
          std::pair{
              "Month,Cooling kWh,Cooling peak day,Cooling peak kW,Heating kWh,Heating peak kW",
              ",2931,21,29.31,586.2,58.62"}}) {
        const Read table = read(monthsText(names, figures));
        ASSERT_TRUE(table.reading.years) << names;
        EXPECT_NEAR((*table.reading.years)[cooling].yearTotal, 120000, 1e-6) << names;
        EXPECT_NEAR((*table.reading.years)[heating].yearTotal, 24000, 1e-6) << names;
        EXPECT_NEAR((*table.reading.years)[cooling].peakMax, 100000, 1e-6) << names;
        EXPECT_NEAR((*table.reading.years)[heating].peakMax, 200000, 1e-6) << names;
        EXPECT_FALSE(table.reading.withoutPeaks) << names;
    }
}

TEST(LoadTables, OfMonthsLeaveThePeaksOfTheOtherModeAlone) {
    const Read table =
        read(monthsText("Month,Cooling kWh,Heating kWh,Peak cooling kW", ",2931,586.2,29.31"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_NEAR((*table.reading.years)[cooling].peakMax, 100000, 1e-6);
    EXPECT_EQ((*table.reading.years)[heating].peakMax, 0);
    EXPECT_TRUE(table.reading.withoutPeaks);
}

TEST(LoadTables, OfMonthsWithoutPeaksSaySo) {
    const Read table = read(monthsText("Month,Cooling kWh,Heating kWh", ",2931,586.2"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_TRUE(table.reading.withoutPeaks);
    EXPECT_EQ((*table.reading.years)[cooling].peakMax, 0);
}

TEST(LoadTables, OfMonthsInJoulesHavePeaksInWatts) {
    const Read table = read(monthsText("Month,Cooling [J],Cooling peak [W]", ",3600000000,1000"));
    ASSERT_TRUE(table.reading.years);
    EXPECT_NEAR((*table.reading.years)[cooling].totalLoads[0], 1000 / 0.2931, 1e-6);
    EXPECT_NEAR((*table.reading.years)[cooling].peakMax, 1000 / 0.2931, 1e-6);
}

TEST(LoadTables, OfEndlessLinesAreReadNoFurtherThanTheyMatter) {
    EXPECT_FALSE(read(std::string(2'000'000, ',')).reading.years);
    EXPECT_FALSE(read(std::string(2'000'000, '\n')).reading.years);
    EXPECT_FALSE(read(std::string(2'000'000, '1')).reading.years);
    EXPECT_FALSE(read(std::string(2'000'000, '"')).reading.years);
    const TableText wide(std::string(2'000'000, ';'));
    EXPECT_LE(wide.rows({';', '.'})[0].cells.size(), 512u);
    EXPECT_LE(TableText(std::string(2'000'000, '\n')).lines().size(), 100'000u);
    // 16,000 lines of 512 cells are more than the 8 million cells that are kept.
    std::string many;
    for (int line = 0; line < 16'000; ++line) many += std::string(511, ';') + '\n';
    EXPECT_LT(TableText(many).rows({';', '.'}).size(), 15'700u);
}

TEST(TableNumbers, MayHaveTheirThousandsGrouped) {
    EXPECT_EQ(numberIn("1,234.5", '.'), 1234.5);
    EXPECT_EQ(numberIn("1.234.567,5", ','), 1234567.5);
    EXPECT_EQ(numberIn("-12,345", '.'), -12345);
    for (const char* text : {"1,23", "1,2345", ",123", "1.5,000", "1,234,56", "a1,234"})
        EXPECT_FALSE(numberIn(text, '.')) << text;
    EXPECT_FALSE(numberIn("", '.'));
    EXPECT_FALSE(numberIn("1e999", '.'));
    EXPECT_FALSE(numberIn(std::string(100, '1'), '.'));
}

// The preview.

class TablePreview : public ImportTest {
 protected:
    void pickTable(const std::string& name, const std::string& text) {
        writeFile(zoneFile(name), text);
        platform.picks.emplace_back(zoneFile(name));
    }
    /// Opens the preview over the importer, and does something in it.
    frmImport1& preview(const std::function<void(Form&)>& act) {
        frmImport1& form = importer();
        platform.onModal = [&](Form& dialog) {
            shownOnce = true;
            EXPECT_EQ(dialog.formName(), "frmImportTable");
            act(dialog);
        };
        form.click("cmdImport(5)");
        return form;
    }
    bool shownOnce = false;
};

void takeTable(Form& dialog) { dialog.click("TIImportCommand"); }

TEST_F(TablePreview, ShowsWhatItHasFound) {
    pickTable("office.csv", hoursText(8760, plainRow));
    preview([](Form& dialog) {
        EXPECT_EQ(dialog.control("TISourceLabel").caption(), "office");
        EXPECT_EQ(dialog.control("TILayoutCombo").index(), 0);
        EXPECT_EQ(dialog.control("TISeparatorCombo").index(), 0);
        EXPECT_EQ(dialog.control("TIDecimalCombo").index(), 0);
        EXPECT_EQ(dialog.control("TIUnitCombo").index(), 0);
        EXPECT_EQ(dialog.control("TICoolingColumnCombo").text(), "Cooling [kW]");
        EXPECT_EQ(dialog.control("TIHeatingColumnCombo").text(), "Heating [kW]");
        EXPECT_EQ(dialog.control("TIDateColumnCombo").text(), "Date/Time");
        EXPECT_FALSE(dialog.control("TISignCheck").checked());
        // 2/0.2931 and 5/0.2931 MBtu/hr
        EXPECT_EQ(dialog.control("TIRowsList").items()[0], "2\th1\t6.8\t17.1");
        EXPECT_TRUE(dialog.control("TIImportCommand").enabled());
        dialog.click("TICancelCommand");
    });
    EXPECT_TRUE(shownOnce);
}

TEST_F(TablePreview, BringsTheYearIntoTheImporter) {
    pickTable("office.csv", hoursText(8760, plainRow));
    frmImport1& form = preview(takeTable);
    EXPECT_NEAR(value(form, "yearTotal(0)"), 365 * 80 / 0.2931, 1e-6);
    EXPECT_NEAR(value(form, "eqvHours(0)"), 2920, 1e-9);
    EXPECT_EQ(form.loads().importfileName, "office");
    EXPECT_EQ(form.loads().fileType, 0);
    EXPECT_EQ(caption(form, "lblTitle(9)"), "office");
    EXPECT_EQ(caption(form, "lblTitle(10)"), " ");
    EXPECT_TRUE(enabled(form, "optDesignDay(1)"));
    EXPECT_TRUE(form.control("optDesignDay(0)").checked());
}

TEST_F(TablePreview, ChangesNothingAfterACancel) {
    frmImport1& form = importerWithFile();
    const ImportedLoads before = form.loads();
    pickTable("office.csv", hoursText(8760, plainRow));
    platform.onModal = [](Form& dialog) { dialog.click("TICancelCommand"); };
    form.click("cmdImport(5)");
    EXPECT_EQ(form.loads(), before);
    platform.picks.emplace_back(std::nullopt);
    form.click("cmdImport(5)");
    EXPECT_EQ(form.loads(), before);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TablePreview, LetsTheUserCorrectWhatWasFound) {
    pickTable("plain.csv", hoursText(
                               8760, [](int) { return std::string("3,4,5"); }, ""));
    frmImport1& form = preview([](Form& dialog) {
        dialog.choose("TICoolingColumnCombo", 3);
        dialog.choose("TIHeatingColumnCombo", 0);
        dialog.choose("TIUnitCombo", static_cast<int>(TableUnit::tons));
        takeTable(dialog);
    });
    EXPECT_DOUBLE_EQ(value(form, "yearTotal(0)"), 8760 * 5 * 12.0);
    EXPECT_EQ(value(form, "yearTotal(1)"), 0);
}

TEST_F(TablePreview, CutsAgainByAnotherSeparator) {
    pickTable("plain.csv", hoursText(
                               8760, [](int) { return std::string("1,5;2,5"); }, ""));
    preview([](Form& dialog) {
        EXPECT_EQ(dialog.control("TISeparatorCombo").index(), 1);
        EXPECT_EQ(dialog.control("TIDecimalCombo").index(), 1);
        dialog.choose("TISeparatorCombo", 0);
        // The comma cannot be both.
        EXPECT_EQ(dialog.control("TIDecimalCombo").index(), 0);
        EXPECT_EQ(dialog.control("TICoolingColumnCombo").items().size(), 4u);
        dialog.choose("TIDecimalCombo", 1);
        EXPECT_EQ(dialog.control("TISeparatorCombo").index(), 1);
        EXPECT_EQ(dialog.control("TICoolingColumnCombo").items().size(), 3u);
        dialog.click("TICancelCommand");
    });
}

TEST_F(TablePreview, KeepsAWrongNumberOfRowsFromBeingImported) {
    pickTable("short.csv", hoursText(8759, plainRow));
    texts.known[1579] = "%1 rows, line %2.";
    texts.known[1582] = "%1 without: %2.";
    preview([](Form& dialog) {
        EXPECT_FALSE(dialog.control("TIImportCommand").enabled());
        EXPECT_EQ(dialog.control("TIMessageLabel").caption(),
                  "8759 rows, line 8760. 1 without: 1.");
        dialog.choose("TICoolingColumnCombo", 0);
        dialog.choose("TIHeatingColumnCombo", 0);
        EXPECT_EQ(dialog.control("TIMessageLabel").caption(), "[1576]");
        dialog.click("TICancelCommand");
    });
}

TEST_F(TablePreview, TakesATableFromTheClipboardWithoutAskingForAFile) {
    platform.clipboardText = monthsText("Month\tCooling kWh\tkW", "\t2931\t29.31");
    frmImport1& form = preview(takeTable);
    EXPECT_NEAR(value(form, "yearTotal(0)"), 120000, 1e-6);
    EXPECT_NEAR(value(form, "peakMax(0)"), 100000, 1e-6);
    EXPECT_EQ(form.loads().importfileName, "");
    EXPECT_FALSE(enabled(form, "optDesignDay(1)"));
    EXPECT_TRUE(platform.dialogs.empty());
}

TEST_F(TablePreview, TakesAnotherFileOrTheClipboardInstead) {
    pickTable("a.csv", hoursText(10, plainRow));
    frmImport1& form = preview([&](Form& dialog) {
        pickTable("b.csv", hoursText(8760, plainRow));
        dialog.click("TIOpenCommand");
        EXPECT_EQ(dialog.control("TISourceLabel").caption(), "b");
        platform.clipboardText = "abc";
        dialog.click("TIPasteCommand");
        EXPECT_EQ(dialog.control("TISourceLabel").caption(), "[1544]");
        EXPECT_FALSE(dialog.control("TIImportCommand").enabled());
        platform.clipboardText.clear();
        pickTable("b.csv", hoursText(8760, plainRow));
        dialog.click("TIOpenCommand");
        takeTable(dialog);
    });
    EXPECT_EQ(form.loads().importfileName, "b");
}

TEST_F(TablePreview, TellsAFileThatIsMissing) {
    platform.picks.emplace_back(zoneFile("missing.csv"));
    importer().click("cmdImport(5)");
    EXPECT_EQ(lastMessage(), "53 - File not found");
}

TEST_F(TablePreview, LeadsToADesignDayFromHours) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    const auto row = [](int hour) {
        const int day = hour / 24, ending = hour % 24 + 1;
        return std::to_string(day == 99 ? ending : 1) + "," + std::to_string(hour == 8759 ? 60 : 2);
    };
    pickTable("a.csv", hoursText(8760, row, "Cooling MBtu,Heating MBtu\r\n"));
    frmImport1& form = preview(takeTable);
    form.click("optDesignDay(1)");
    form.click("cmdImport(4)");
    const Zone& zone = window.ZoneList()[0];
    expectGains(zone, cooling, {10.5, 14.5, 18.5, 10.5});
    expectGains(zone, heating, {2, 2, 2, 82.0 / 12});
    // 364 days of 24 and one of 300 MBtu, over 18.5: 9036/18.5 = 488.4
    EXPECT_EQ(zone.hours[cooling], 488);
    // 8759 hours of 2 and one of 60, over 82/12: 17578/6.8333 = 2572.4
    EXPECT_EQ(zone.hours[heating], 2572);
    EXPECT_EQ(zone.days, 7);
    EXPECT_EQ(form.dayChart().loads[cooling][2], 18.5);
    // Other values have no hours behind them.
    form.click("lblTotal(0)");
    form.type("txtImport1", "5");
    EXPECT_FALSE(enabled(form, "optDesignDay(1)"));
    EXPECT_TRUE(form.control("optDesignDay(0)").checked());
}

}  // namespace
}  // namespace varnholt
