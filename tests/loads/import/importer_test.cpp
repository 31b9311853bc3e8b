// SPDX-License-Identifier: GPL-3.0-or-later
// The importer: reading, showing, typing and pasting.
#include "loads/import/import_fixture.h"

namespace varnholt {
namespace {

class Importer : public ImportTest {};

constexpr const char* importField = "txtImport1";

TEST_F(Importer, StandsOnceAndIsAccountedFor) {
    frmImport1& form = importer();
    EXPECT_TRUE(main.frmImport1Exists);
    EXPECT_EQ(&importer(), &form);
    form.click("cmdImport(1)");
    EXPECT_FALSE(main.frmImport1Exists);
    EXPECT_TRUE(main.windowsNamed("frmImport1").empty());
}

TEST_F(Importer, IsEmptyAtFirst) {
    frmImport1& form = importer();
    EXPECT_EQ(caption(form, "lblTotal(12)"), "0.0");
    EXPECT_EQ(caption(form, "lblHours"), "0");
    EXPECT_EQ(caption(form, "lblPLF(0)"), "0.00");
    EXPECT_EQ(caption(form, "lblTitle(9)"), " ");
    EXPECT_EQ(caption(form, "lblTitle(10)"), " ");
    EXPECT_FALSE(enabled(form, "optDesignDay(1)"));
}

TEST_F(Importer, ReadsTheFirstLoadOfAFileAsCooling) {
    frmImport1& form = importerWithFile();
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 20000);
    EXPECT_EQ(value(form, "totalLoads(11,1)"), 21000);
    EXPECT_EQ(value(form, "peakLoads(6,0)"), 80000);
    EXPECT_EQ(value(form, "yearTotal(0)"), 306000);
    EXPECT_EQ(value(form, "yearTotal(1)"), 318000);
    EXPECT_EQ(value(form, "peakMax(1)"), 90000);
    EXPECT_EQ(value(form, "eqvHours(0)"), 3825);
    EXPECT_NEAR(value(form, "eqvHours(1)"), 3533.3333333, 1e-6);
    EXPECT_EQ(value(form, "fileType"), 2);
    EXPECT_EQ(std::get<std::string>(form.values().read("importfileName")), "north");
    EXPECT_EQ(caption(form, "lblTitle(9)"), "north");
    EXPECT_EQ(caption(form, "lblTitle(10)"), "700");
}

TEST_F(Importer, AsksForAFileFromTheFolderOfZones) {
    texts.known[1510] = "the filter";
    frmImport1& form = importer();
    platform.picks.emplace_back(std::nullopt);
    form.click("cmdImport(2)");
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_EQ(platform.dialogs[0].folder, folder.path() + "/zones");
    EXPECT_EQ(platform.dialogs[0].filter, "the filter");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Importer, ComputesTheYearsFiguresItself) {
    SampleYear year;
    year.energies[0][12] = 1;
    year.peaks[0][12] = 1e6;
    frmImport1& form = importerWithFile(year);
    EXPECT_EQ(value(form, "yearTotal(0)"), 306000);
    EXPECT_EQ(value(form, "peakMax(0)"), 80000);
    EXPECT_EQ(value(form, "eqvHours(0)"), 3825);
}

TEST_F(Importer, ShowsTheModeOnScreenInItsColours) {
    frmImport1& form = importerWithFile();
    EXPECT_EQ(caption(form, "lblTotal(0)"), "20000.0");
    EXPECT_EQ(caption(form, "lblPeak(6)"), "80.0");
    EXPECT_EQ(caption(form, "lblTotal(12)"), "306000.0");
    EXPECT_EQ(caption(form, "lblPeak(12)"), "80.0");
    EXPECT_EQ(caption(form, "lblHours"), "3825");
    // July: 26000/(80 * 24 * 31); January: 20000/(50 * 24 * 31) = 20000/37200
    EXPECT_EQ(caption(form, "lblPLF(6)"), "0.44");
    EXPECT_EQ(caption(form, "lblPLF(0)"), "0.54");
    const auto back = [&](const char* name) { return form.control(name).backcolor(); };
    // Red, green and blue, the blue in the highest byte.
    EXPECT_EQ(back("lblTotal(12)"), 224 + 256 * (224 + 256 * 255));
    EXPECT_EQ(back("lblPeak(0)"), 224 + 256 * (224 + 256 * 255));
    EXPECT_EQ(back("lblHours"), 224 + 256 * (224 + 256 * 255));
    EXPECT_EQ(back(importField), 224 + 256 * (224 + 256 * 255));
    EXPECT_EQ(back("lblPLF(3)"), 192 + 256 * (192 + 256 * 255));
    EXPECT_TRUE(form.control("cmdCoolHeat(0)").checked());
    form.click("cmdCoolHeat(1)");
    EXPECT_EQ(caption(form, "lblTotal(0)"), "32000.0");
    EXPECT_EQ(back("lblTotal(12)"), 255 + 256 * (208 + 256 * 208));
    EXPECT_EQ(back(importField), 255 + 256 * (208 + 256 * 208));
    EXPECT_EQ(back("lblPLF(3)"), 255 + 256 * (160 + 256 * 160));
    EXPECT_FALSE(form.control("cmdCoolHeat(0)").checked());
    EXPECT_TRUE(form.control("cmdCoolHeat(1)").checked());
}

TEST_F(Importer, ShowsMetricUnits) {
    texts.known[5104] = "kilowatts";
    texts.known[5105] = "kilowatt hours";
    frmImport1& form = importerWithFile();
    EXPECT_EQ(caption(form, "lblTitle(5)"), "[5109]");
    EXPECT_EQ(caption(form, "lblTitle(7)"), "[2822]");
    form.click("MetricCheck");
    // 20000 * 0.2931; 80000 * 0.2931/1000
    EXPECT_EQ(caption(form, "lblTotal(0)"), "5862.0");
    EXPECT_EQ(caption(form, "lblPeak(6)"), "23.4");
    EXPECT_EQ(caption(form, "lblTitle(5)"), "kilowatt hours");
    EXPECT_EQ(caption(form, "lblTitle(7)"), "kilowatts");
    EXPECT_EQ(caption(form, "lblHours"), "3825");
}

TEST_F(Importer, MarksThePeakMonthWithTheMostEnergy) {
    SampleYear year;
    year.peaks[0][9] = 80000;  // October has more energy than July
    frmImport1& form = importerWithFile(year);
    for (int month = 0; month < 12; ++month) {
        EXPECT_EQ(form.element("lblPeak", month).bold(), month == 9) << month;
        EXPECT_EQ(form.element("lblPLF", month).bold(), month == 9) << month;
    }
    EXPECT_NEAR(main.import1TransferPLFm[cooling], 29000.0 / 59520, 1e-12);
}

TEST_F(Importer, MarksTheFirstOfMonthsThatAreAlike) {
    SampleYear year;
    year.peaks[0][9] = 80000;
    year.energies[0][9] = year.energies[0][6];
    frmImport1& form = importerWithFile(year);
    EXPECT_TRUE(form.control("lblPeak(6)").bold());
    EXPECT_FALSE(form.control("lblPeak(9)").bold());
}

TEST_F(Importer, ComputesLoadFactorsOfTheModeOnScreenOnly) {
    frmImport1& form = importerWithFile();
    EXPECT_NEAR(main.import1TransferPLFm[cooling], firstFactor, 1e-12);
    EXPECT_EQ(main.import1TransferPLFm[heating], 0);
    EXPECT_FALSE(form.control("lblNotLookedAt(0)").visible());
    EXPECT_TRUE(form.control("lblNotLookedAt(1)").visible());
    form.click("cmdCoolHeat(1)");
    EXPECT_NEAR(main.import1TransferPLFm[heating], secondFactor, 1e-12);
    EXPECT_FALSE(form.control("lblNotLookedAt(1)").visible());
}

TEST_F(Importer, RefusesOtherFilesAndKeepsWhatItHasAfterAFailure) {
    frmImport1& form = importerWithFile();
    const ImportedLoads before = form.loads();
    pick("a.csv");
    form.click("cmdImport(2)");
    EXPECT_EQ(lastMessage(), "not a.csv");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::plain);
    writeFile(zoneFile("bad.gth"), "title\r\n1,2,3");
    platform.picks.emplace_back(zoneFile("bad.gth"));
    form.click("cmdImport(2)");
    EXPECT_EQ(lastMessage(), "62 - Input past end of file");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    EXPECT_EQ(form.loads(), before);
}

TEST_F(Importer, ClearsBothModesAndTheFile) {
    frmImport1& form = importerWithFile();
    form.click("cmdImport(0)");
    EXPECT_EQ(form.loads(), ImportedLoads{});
    EXPECT_EQ(caption(form, "lblTotal(3)"), "0.0");
    EXPECT_EQ(caption(form, "lblHours"), "0");
    EXPECT_EQ(caption(form, "lblTitle(9)"), " ");
    EXPECT_EQ(caption(form, "lblTitle(10)"), " ");
    EXPECT_EQ(main.import1TransferPLFm[cooling], 0);
}

TEST_F(Importer, HasItsValuesAgainWhenItIsOpenedLater) {
    frmImport1& first = importerWithFile();
    first.click("cmdCoolHeat(1)");
    first.click("cmdImport(1)");
    frmImport1& form = importer();
    EXPECT_EQ(form.mode(), heating);
    EXPECT_EQ(value(form, "yearTotal(0)"), 306000);
    EXPECT_EQ(value(form, "peakMax(1)"), 90000);
    // The menu names no file.
    EXPECT_EQ(form.loads().importfileName, "");
    EXPECT_EQ(form.loads().fileType, 0);
}

// Typing.

TEST_F(Importer, PlacesItsFieldOverTheCellThatIsClicked) {
    frmImport1& form = importerWithFile();
    const ImportedLoads before = form.loads();
    form.click("lblPeak(6)");
    EXPECT_EQ(shown(form, importField), "80.0");
    EXPECT_EQ(form.cell().month, 6u);
    form.click("lblTotal(11)");
    EXPECT_EQ(shown(form, importField), "31000.0");
    EXPECT_EQ(form.loads(), before);
    EXPECT_FALSE(form.takesClicks("lblTotal(12)"));
    EXPECT_FALSE(form.takesClicks("lblPeak(12)"));
    EXPECT_FALSE(form.takesClicks("lblPLF(0)"));
}

TEST_F(Importer, TakesWhatIsTypedAtOnce) {
    frmImport1& form = importer();
    form.click("lblTotal(6)");
    form.type(importField, "26000");
    EXPECT_EQ(caption(form, "lblTotal(6)"), "26000.0");
    EXPECT_EQ(caption(form, "lblTotal(12)"), "26000.0");
    EXPECT_EQ(shown(form, importField), "26000");
    form.click("lblPeak(6)");
    form.type(importField, "80");
    EXPECT_EQ(value(form, "peakLoads(6,0)"), 80000);
    EXPECT_EQ(value(form, "eqvHours(0)"), 325);  // 26000/80
    EXPECT_EQ(caption(form, "lblPLF(6)"), "0.44");
    EXPECT_NEAR(main.import1TransferPLFm[cooling], firstFactor, 1e-12);
    form.leave(importField);
    EXPECT_EQ(shown(form, importField), "80.0");
}

TEST_F(Importer, ConvertsWhatIsTypedInMetric) {
    frmImport1& form = importer();
    form.click("MetricCheck");
    form.click("lblTotal(0)");
    form.type(importField, "293.1");
    EXPECT_DOUBLE_EQ(value(form, "totalLoads(0,0)"), 1000);
    form.click("lblPeak(0)");
    form.type(importField, "29.31");
    EXPECT_DOUBLE_EQ(value(form, "peakLoads(0,0)"), 100000);
}

TEST_F(Importer, KeepsTheOldValueForTextThatIsNoNumber) {
    frmImport1& form = importer();
    form.click("lblTotal(0)");
    form.type(importField, "70");
    for (const char* text : {"", "-", "abc", "12abc", "1,5"}) {
        form.type(importField, text);
        EXPECT_EQ(value(form, "totalLoads(0,0)"), 70) << text;
    }
    form.leave(importField);
    EXPECT_EQ(shown(form, importField), "70.0");
}

TEST_F(Importer, GoesOnWithEnterDownTheTotalsAndThePeaks) {
    frmImport1& form = importerWithFile();
    form.click("lblTotal(0)");
    form.key(importField, "Enter");
    EXPECT_EQ(form.cell().month, 1u);
    EXPECT_EQ(shown(form, importField), "21000.0");
    form.click("lblTotal(11)");
    form.key(importField, "Enter");
    EXPECT_EQ(form.cell().column, frmImport1::Column::peak);
    EXPECT_EQ(form.cell().month, 0u);
    EXPECT_EQ(shown(form, importField), "50.0");
    form.click("lblPeak(11)");
    form.key(importField, "Enter");
    EXPECT_EQ(form.cell().column, frmImport1::Column::peak);
    EXPECT_EQ(form.cell().month, 11u);
}

TEST_F(Importer, TypesIntoTheModeOnScreen) {
    frmImport1& form = importer();
    form.click("cmdCoolHeat(1)");
    form.click("lblTotal(0)");
    form.type(importField, "5");
    EXPECT_EQ(value(form, "totalLoads(0,1)"), 5);
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 0);
    form.click("cmdCoolHeat(0)");
    EXPECT_EQ(shown(form, importField), "0.0");
}

// Pasting.

TEST_F(Importer, PastesAColumnFromTheMonthAtWork) {
    frmImport1& form = importer();
    form.click("lblTotal(10)");
    platform.clipboardText = "100\r\n200\r\n300\r\n";
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(10,0)"), 100);
    EXPECT_EQ(value(form, "totalLoads(11,0)"), 200);
    EXPECT_EQ(value(form, "yearTotal(0)"), 300);
    EXPECT_EQ(shown(form, importField), "");
    form.leave(importField);
    EXPECT_EQ(shown(form, importField), "100.0");
}

TEST_F(Importer, PastesPeaksTimesAThousandAndNeverFromKilowatts) {
    frmImport1& form = importer();
    form.click("MetricCheck");
    form.click("lblPeak(0)");
    platform.clipboardText = "80\r";
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "peakLoads(0,0)"), 80000);
    form.click("lblTotal(0)");
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 80);
}

TEST_F(Importer, CountsTwelveLinesOfAPaste) {
    frmImport1& form = importer();
    for (int i = 1; i <= 20; ++i) platform.clipboardText += std::to_string(i) + "\r";
    form.click("lblTotal(0)");
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(11,0)"), 12);
    EXPECT_EQ(value(form, "yearTotal(0)"), 78);  // 1 + 2 + ... + 12
    EXPECT_EQ(value(form, "peakMax(0)"), 0);
}

TEST_F(Importer, PastesNoLineWithoutItsEnd) {
    frmImport1& form = importer();
    form.click("lblTotal(0)");
    platform.clipboardText = "5";
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 0);
    EXPECT_EQ(shown(form, importField), "");
    platform.clipboardText = "5\n6";
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 5);
    EXPECT_EQ(value(form, "totalLoads(1,0)"), 0);
    platform.clipboardText.clear();
    form.key(importField, "Ctrl+V");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 5);
}

TEST_F(Importer, PastesATableIntoTheModeOnScreenAndClearsBoth) {
    frmImport1& form = importerWithFile();
    form.click("cmdCoolHeat(1)");
    platform.clipboardText = "1000\t50\r\n2000\t60\r\nabc\t70\r\n4000\r\n5000\t80";
    form.click("cmdImport(3)");
    EXPECT_EQ(value(form, "totalLoads(0,1)"), 1000);
    EXPECT_EQ(value(form, "peakLoads(1,1)"), 60000);
    EXPECT_EQ(value(form, "totalLoads(2,1)"), 0);
    EXPECT_EQ(value(form, "peakLoads(2,1)"), 70000);
    EXPECT_EQ(value(form, "totalLoads(3,1)"), 4000);
    EXPECT_EQ(value(form, "peakLoads(3,1)"), 0);
    EXPECT_EQ(value(form, "totalLoads(4,1)"), 0);
    EXPECT_EQ(value(form, "eqvHours(1)"), 100);  // (1000 + 2000 + 4000)/70
    EXPECT_EQ(value(form, "yearTotal(0)"), 0);
    EXPECT_EQ(form.loads().importfileName, "");
    EXPECT_EQ(form.loads().fileType, 0);
}

TEST_F(Importer, PastesTwelveRowsOfATable) {
    frmImport1& form = importer();
    for (int i = 1; i <= 13; ++i)
        platform.clipboardText += std::to_string(i) + "\t" + std::to_string(i) + "\r";
    form.click("cmdImport(3)");
    EXPECT_EQ(value(form, "totalLoads(11,0)"), 12);
    EXPECT_EQ(value(form, "peakMax(0)"), 12000);
}

// Undo.

TEST_F(Importer, UndoesCellByCellWhatWasTyped) {
    frmImport1& form = importer();
    form.click("lblTotal(0)");
    form.type(importField, "1");
    form.type(importField, "12");
    form.key(importField, "Enter");
    form.type(importField, "34");
    main.click("mnuUndo");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 12);
    EXPECT_EQ(value(form, "totalLoads(1,0)"), 0);
    EXPECT_EQ(shown(form, importField), "0.0");
    main.click("mnuUndo");
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 0);
}

TEST_F(Importer, UndoesWhatItHasRead) {
    frmImport1& form = importerWithFile();
    main.click("mnuUndo");
    EXPECT_EQ(form.loads(), ImportedLoads{});
    EXPECT_EQ(caption(form, "lblTotal(12)"), "0.0");
    main.click("mnuRedo");
    EXPECT_EQ(caption(form, "lblTotal(12)"), "306000.0");
}

}  // namespace
}  // namespace varnholt
