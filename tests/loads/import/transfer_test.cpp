// SPDX-License-Identifier: GPL-3.0-or-later
// What the importer writes into zones and into the hours calculator.
#include "loads/import/import_fixture.h"

namespace varnholt {
namespace {

class Transfer : public ImportTest {};

TEST_F(Transfer, NeedsALoadsWindowOrTheCalculator) {
    frmImport1& form = importer();
    EXPECT_FALSE(enabled(form, "cmdImport(4)"));
    calculator();
    EXPECT_TRUE(enabled(form, "cmdImport(4)"));
    main.close(*main.find("frmEqvHoursCalc"));
    EXPECT_FALSE(enabled(form, "cmdImport(4)"));
    manager();
    EXPECT_TRUE(enabled(form, "cmdImport(4)"));
}

TEST_F(Transfer, WritesBothModesIntoTheSelectedZones) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) window.click("LONewCommand");
    window.type("LODaysperWeekText", "5");
    window.select("LOZoneList", {1, 2});
    frmImport1& form = importerWithFile();
    lookAtBoth(form);
    form.click("cmdImport(4)");
    for (const std::size_t zone : {1, 2}) {
        expectGains(window.ZoneList()[zone], cooling, {firstRest, 80, firstRest, firstRest});
        expectGains(window.ZoneList()[zone], heating, {90, secondRest, secondRest, secondRest});
        EXPECT_EQ(window.ZoneList()[zone].hours[cooling], firstHours);
        EXPECT_EQ(window.ZoneList()[zone].hours[heating], secondHours);
        EXPECT_EQ(window.ZoneList()[zone].days, 7);
        EXPECT_EQ(window.ZoneList()[zone].title, "");
    }
    expectGains(window.ZoneList()[0], cooling, {0, 0, 0, 0});
    EXPECT_EQ(window.control("LOZoneList").selected(), (std::vector<int>{1, 2}));
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "80.0");
    EXPECT_TRUE(enabled(window, "LOSaveCommand"));
}

TEST_F(Transfer, OfAModeThatWasNeverShownHasNoRest) {
    frmAvgBlock& window = block();
    window.click("LONewCommand");
    frmImport1& form = importerWithFile();
    form.click("cmdImport(4)");
    expectGains(window.ZoneList()[0], cooling, {firstRest, 80, firstRest, firstRest});
    expectGains(window.ZoneList()[0], heating, {90, 0, 0, 0});
    EXPECT_DOUBLE_EQ(main.import1TransferPLFm[heating], 1.0 / 6);
    EXPECT_EQ(window.ZoneList()[0].hours[heating], secondHours);
}

TEST_F(Transfer, TakesALoadFactorAboveOneForOne) {
    SampleYear year;
    year.energies[0][6] = 1.3 * 59520;
    manager().click("LONewCommand");
    frmImport1& form = importerWithFile(year);
    EXPECT_NEAR(main.import1TransferPLFm[cooling], 1.3, 1e-12);
    form.click("cmdImport(4)");
    expectGains(manager().ZoneList()[0], cooling, {80, 80, 80, 80});
    EXPECT_EQ(main.import1TransferPLFm[cooling], 1);
}

TEST_F(Transfer, OfASixthLeavesThreeBlocksEmptyAndOfALittleMoreASmallLoad) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    frmImport1& form = importer();
    form.click("lblPeak(6)");
    form.type("txtImport1", "80");
    form.click("lblTotal(6)");
    form.type("txtImport1", "9920");  // 80 * 24 * 31/6
    form.click("cmdImport(4)");
    expectGains(window.ZoneList()[0], cooling, {0, 80, 0, 0});
    form.type("txtImport1", "10000");
    form.click("cmdImport(4)");
    // (24 * 80 * 10000/59520 - 320)/20
    EXPECT_NEAR(window.ZoneList()[0].gains[0][cooling], 0.129032, 5e-7);
    EXPECT_EQ(window.ZoneList()[0].gains[0][heating], 0);
}

TEST_F(Transfer, OfTooManyHoursIsAnErrorAndWritesNothing) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    SampleYear year;
    year.energies[1][3] = 90.0 * 32768;
    frmImport1& form = importerWithFile(year);
    lookAtBoth(form);
    const LoadsDocument before = window.document();
    const ByMode<double> factors = main.import1TransferPLFm;
    form.click("cmdImport(4)");
    EXPECT_EQ(lastMessage(), "6 - Overflow");
    EXPECT_EQ(window.document(), before);
    EXPECT_EQ(main.import1TransferPLFm, factors);
}

TEST_F(Transfer, WithoutASelectedZoneChangesNothing) {
    frmZoneManage& window = manager();
    frmImport1& form = importerWithFile();
    form.click("cmdImport(4)");
    EXPECT_TRUE(window.ZoneList().empty());
    EXPECT_FALSE(enabled(window, "LOSaveCommand"));
    EXPECT_EQ(caption(form, "lblTransferTarget"), "[1522]");
}

TEST_F(Transfer, GoesToTheWindowThatWasActiveLast) {
    frmAvgBlock& average = block();
    average.click("LONewCommand");
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    frmImport1& form = importerWithFile();
    main.activate(average);
    main.activate(form);
    form.click("cmdImport(4)");
    EXPECT_EQ(average.ZoneList()[0].hours[cooling], firstHours);
    EXPECT_EQ(window.ZoneList()[0].hours[cooling], 0);
}

TEST_F(Transfer, NamesTheZonesAsTheyAreSelected) {
    texts.known[1520] = "into %2";
    texts.known[1522] = "none";
    frmImport1& form = importer();
    frmZoneManage& window = manager();
    EXPECT_EQ(caption(form, "lblTransferTarget"), "none");
    window.click("LONewCommand");
    EXPECT_EQ(caption(form, "lblTransferTarget"), "into Zone 1");
    window.click("LONewCommand");
    window.select("LOZoneList", {0, 1});
    EXPECT_EQ(caption(form, "lblTransferTarget"), "into Zone 1, Zone 2");
}

TEST_F(Transfer, TakesTheModeOnScreenToTheCalculatorWithoutAQuestion) {
    frmEqvHoursCalc& hours = calculator();
    frmImport1& form = importerWithFile();
    form.click("cmdCoolHeat(1)");
    platform.onModal = [](Form&) { ADD_FAILURE() << "a question"; };
    form.click("cmdImport(4)");
    EXPECT_EQ(value(hours, "fullLoad"), 90);
    EXPECT_EQ(value(hours, "monthlyLoads(1)"), 32000);
    EXPECT_EQ(value(hours, "monthlyLoads(12)"), 21000);
    EXPECT_EQ(hours.control("txtEqvHours(13)").text(), "3533");
    EXPECT_EQ(hours.control("txtEqvHours(0)").text(), "90.0");
    EXPECT_NEAR(main.transferPLFm[cooling], secondFactor, 1e-12);
}

TEST_F(Transfer, IsOneStepOfTheLoadsWindow) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 2; ++i) window.click("LONewCommand");
    window.select("LOZoneList", {0, 1});
    const LoadsDocument before = window.document();
    frmImport1& form = importerWithFile();
    form.click("cmdImport(4)");
    const LoadsDocument after = window.document();
    main.activate(window);
    main.click("mnuUndo");
    EXPECT_EQ(window.document(), before);
    main.click("mnuRedo");
    EXPECT_EQ(window.document(), after);
}

TEST_F(Transfer, ShowsTheDayThatWillBeWritten) {
    manager().click("LONewCommand");
    frmImport1& form = importerWithFile();
    lookAtBoth(form);
    const LoadsChart day = form.dayChart();
    EXPECT_NEAR(day.loads[cooling][1], 80, 1e-9);
    EXPECT_NEAR(day.loads[cooling][3], firstRest, 1e-9);
    EXPECT_NEAR(day.loads[heating][0], 90, 1e-9);
    EXPECT_EQ(day.peakBlock[heating], 0u);
    const MonthsChart year = form.monthsChart();
    EXPECT_EQ(year.peakMonth, 6u);
    EXPECT_EQ(year.energies[11], 31000);
    EXPECT_EQ(year.peaks[6], 80);
}

}  // namespace
}  // namespace varnholt
