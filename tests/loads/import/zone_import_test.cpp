// SPDX-License-Identifier: GPL-3.0-or-later
// The import command of the loads windows, and what the hours calculator hands them.
#include "basis/number_text.h"
#include "loads/import/import_fixture.h"

namespace varnholt {
namespace {

class ImportIntoZone : public ImportTest {};

TEST_F(ImportIntoZone, AsksForAFileOfTheSimulationPrograms) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    texts.known[1510] = "the filter";
    platform.picks.emplace_back(std::nullopt);
    window.click("LOImportCommand");
    ASSERT_EQ(platform.dialogs.size(), 1u);
    EXPECT_FALSE(platform.dialogs[0].saving);
    EXPECT_EQ(platform.dialogs[0].folder, folder.path() + "/zones");
    EXPECT_EQ(platform.dialogs[0].proposedName, "");
    EXPECT_EQ(platform.dialogs[0].filter, "the filter");
    EXPECT_EQ(platform.dialogs[0].filterIndex, 1);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ImportIntoZone, FillsLoadsHoursDaysAndTitleAndLeavesThePump) {
    frmZoneManage& window = manager();
    addZone(window, 5, 5);
    window.click("LOAutoSelectCommand");
    const MiniPump pump = window.ZoneList()[0].pump;
    setSaved(window, "a.zon");
    pick("North wing.gTh");
    window.click("LOImportCommand");
    const Zone& zone = window.ZoneList()[0];
    expectGains(zone, heating, {firstRest, 80, firstRest, firstRest});
    expectGains(zone, cooling, {secondRest, 90, secondRest, secondRest});
    EXPECT_EQ(zone.hours[heating], firstHours);
    EXPECT_EQ(zone.hours[cooling], secondHours);
    EXPECT_EQ(zone.days, 7);
    EXPECT_EQ(zone.title, "North wing");
    EXPECT_EQ(zone.pump, pump);
    EXPECT_EQ(shown(window, "LOGainsText(5)"), "80.0");
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "North wing");
    EXPECT_TRUE(enabled(window, "LOSaveCommand"));
}

TEST_F(ImportIntoZone, GoesIntoTheLastSelectedZoneAndShowsIt) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) addZone(window, 5, 5);
    window.select("LOZoneList", {0, 1});
    pick("a.gt1");
    window.click("LOImportCommand");
    EXPECT_EQ(window.ZoneList()[0].title, "");
    EXPECT_EQ(window.ZoneList()[1].title, "a");
    EXPECT_EQ(window.ZoneList()[2].title, "");
    EXPECT_EQ(window.selectedZone(), 1);
    EXPECT_EQ(shown(window, "LOZoneReferenceText"), "a");
}

TEST_F(ImportIntoZone, OfAnotherExtensionTellsTheFileAndReadsNothing) {
    frmZoneManage& window = manager();
    addZone(window, 5, 5);
    setSaved(window, "a.zon");
    const LoadsDocument before = window.document();
    const std::string dialogFolder = main.TempDirectory;
    pick("a.gt2");
    window.click("LOImportCommand");
    EXPECT_EQ(lastMessage(), "not a.gt2");
    EXPECT_EQ(platform.messages.back().icon, MessageIcon::plain);
    EXPECT_EQ(window.document(), before);
    EXPECT_EQ(main.TempDirectory, dialogFolder);
    EXPECT_FALSE(enabled(window, "LOSaveCommand"));
}

TEST_F(ImportIntoZone, ThatFailsTellsWhyAndChangesNothing) {
    frmZoneManage& window = manager();
    addZone(window, 5, 5);
    setSaved(window, "a.zon");
    const LoadsDocument before = window.document();
    SampleYear tooLong;
    tooLong.energies[0][12] = 1e9;
    struct Case {
        std::string bytes, message;
    };
    for (const Case& c :
         {Case{"title", "62 - Input past end of file"},
          Case{"title\r\nJanuary,1", "13 - Type mismatch"}, Case{tooLong.text(), "6 - Overflow"}}) {
        writeFile(zoneFile("bad.gt1"), c.bytes);
        platform.picks.emplace_back(zoneFile("bad.gt1"));
        window.click("LOImportCommand");
        EXPECT_EQ(lastMessage(), c.message);
        EXPECT_EQ(platform.messages.back().icon, MessageIcon::exclamation);
    }
    platform.picks.emplace_back(zoneFile("missing.gt1"));
    window.click("LOImportCommand");
    EXPECT_EQ(lastMessage(), "53 - File not found");
    EXPECT_EQ(window.document(), before);
    EXPECT_FALSE(enabled(window, "LOSaveCommand"));
}

TEST_F(ImportIntoZone, NeedsASelectedZone) {
    frmZoneManage& window = manager();
    addZone(window, 5, 5);
    window.select("LOZoneList", {});
    const LoadsDocument before = window.document();
    pick("a.gt1");
    window.click("LOImportCommand");
    EXPECT_EQ(lastMessage(), "9 - Subscript out of range");
    EXPECT_EQ(window.document(), before);
}

TEST_F(ImportIntoZone, IsOneImportInTheAverageBlock) {
    frmAvgBlock& window = block();
    EXPECT_FALSE(enabled(window, "LOImportCommand"));
    window.click("LONewCommand");
    pick("a.gt1");
    window.click("LOImportCommand");
    expectGains(window.ZoneList()[0], heating, {firstRest, 80, firstRest, firstRest});
    EXPECT_FALSE(enabled(window, "LOImportCommand"));
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    window.click("LONewCommand");
    EXPECT_TRUE(enabled(window, "LOImportCommand"));
}

TEST_F(ImportIntoZone, OfTheAverageBlockStaysTheOneWhateverIsUndoneAfterIt) {
    frmAvgBlock& window = block();
    window.click("LONewCommand");
    pick("a.gt1");
    window.click("LOImportCommand");
    window.type("LOGainsText(0)", "7");
    window.leave("LOGainsText(0)");
    main.click("mnuUndo");
    EXPECT_EQ(window.ZoneList()[0].title, "a");
    EXPECT_FALSE(enabled(window, "LOImportCommand"));
    // Without the import there is room for one.
    main.click("mnuUndo");
    EXPECT_EQ(window.ZoneList()[0].title, "");
    EXPECT_TRUE(enabled(window, "LOImportCommand"));
    main.click("mnuRedo");
    EXPECT_EQ(window.ZoneList()[0].title, "a");
    EXPECT_FALSE(enabled(window, "LOImportCommand"));
}

TEST_F(ImportIntoZone, IsOneStepOfTheHistory) {
    frmZoneManage& window = manager();
    addZone(window, 5, 5);
    window.leave("LOGainsText(7)");
    const LoadsDocument before = window.document();
    pick("a.gt1");
    window.click("LOImportCommand");
    const LoadsDocument after = window.document();
    main.click("mnuUndo");
    EXPECT_EQ(window.document(), before);
    EXPECT_EQ(shown(window, "LOGainsText(1)"), "5.0");
    main.click("mnuRedo");
    EXPECT_EQ(window.document(), after);
}

TEST_F(ImportIntoZone, IsShownByTheImporterThatIsOpen) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    frmImport1& form = importer();
    pick("north.gth");
    window.click("LOImportCommand");
    EXPECT_EQ(form.loads().importfileName, "north");
    EXPECT_EQ(form.loads().fileType, 1);
    EXPECT_EQ(caption(form, "lblTitle(9)"), "north");
    EXPECT_EQ(caption(form, "lblTitle(10)"), "Analyzer");
    // The second load of the file cools.
    EXPECT_EQ(value(form, "totalLoads(0,0)"), 32000);
    EXPECT_EQ(value(form, "peakMax(0)"), 90000);
    EXPECT_EQ(value(form, "yearTotal(1)"), 306000);
    EXPECT_EQ(value(form, "eqvHours(1)"), 3825);
    EXPECT_NEAR(main.import1TransferPLFm[cooling], secondFactor, 1e-12);
}

// The hours calculator.

class HoursIntoZone : public ImportTest {
 protected:
    /// Answers the question for the mode: 0, 1, or -1 for Cancel.
    void answerMode(int mode) {
        platform.onModal = [mode](Form& form) {
            if (mode < 0) return form.click("cmdCancel");
            form.click(elementName("optMode", static_cast<std::size_t>(mode)));
            form.click("cmdSelect");
        };
    }
    frmEqvHoursCalc& openedFrom(ZoneWindow& window) {
        window.click("LOEqvHoursCommand");
        return dynamic_cast<frmEqvHoursCalc&>(*main.find("frmEqvHoursCalc"));
    }
    /// A peak of 80 MBtu/hr and 26,000 MBtu in July, the greatest month, 20,000 in the others.
    static void typeYear(frmEqvHoursCalc& form) {
        form.type("txtEqvHours(0)", "80");
        for (int i = 1; i <= 12; ++i)
            form.type(elementName("txtEqvHours", static_cast<std::size_t>(i)),
                      i == 7 ? "26000" : "20000");
    }
};

// 246000/80 hours
constexpr int hoursOfYearTyped = 3075;

TEST_F(HoursIntoZone, StartFromTheZonesHours) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    window.type("LOHoursText(0)", "1234");
    frmEqvHoursCalc& form = openedFrom(window);
    EXPECT_EQ(form.control("txtEqvHours(13)").text(), "1234");
}

TEST_F(HoursIntoZone, GoToTheModeThatIsChosen) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    window.type("LOGainsText(0)", "9");
    window.type("LODaysperWeekText", "5");
    frmEqvHoursCalc& form = openedFrom(window);
    typeYear(form);
    answerMode(1);
    form.click("cmdCalculate");
    const Zone& zone = window.ZoneList()[0];
    EXPECT_EQ(main.TransferOption, 1);
    // The same load as the first of a simulation file; heating has its peak at 8-12.
    expectGains(zone, heating, {80, firstRest, firstRest, firstRest});
    expectGains(zone, cooling, {9, 0, 0, 0});
    EXPECT_EQ(zone.hours[heating], hoursOfYearTyped);
    EXPECT_EQ(zone.hours[cooling], 0);
    EXPECT_EQ(zone.days, 7);
    EXPECT_NEAR(zone.pump.plf[heating], firstFactor, 1e-12);
    EXPECT_NEAR(main.transferPLFm[heating], firstFactor, 1e-12);
    EXPECT_EQ(main.transferPLFm[cooling], 0);
    EXPECT_EQ(shown(window, "LOHoursText(1)"), "3075");
    EXPECT_EQ(shown(window, "LOPLFText(1)"), "0.44");
    EXPECT_TRUE(enabled(window, "LOSaveCommand"));
}

TEST_F(HoursIntoZone, AreAskedForInTheWordsOfTheDialog) {
    frmAvgBlock& window = block();
    window.click("LONewCommand");
    frmEqvHoursCalc& form = openedFrom(window);
    std::string name, title;
    platform.onModal = [&](Form& dialog) {
        name = dialog.formName();
        title = dialog.caption();
        EXPECT_TRUE(dialog.control("optMode(0)").checked());
        EXPECT_EQ(dialog.control("fraTransferOption").caption(), "[1517]");
        EXPECT_EQ(dialog.control("lblTransferSelect").caption(), "[1516]");
        EXPECT_EQ(dialog.control("cmdSelect").caption(), "[2835]");
        EXPECT_EQ(dialog.control("cmdCancel").caption(), "[2861]");
        dialog.click("cmdSelect");
    };
    typeYear(form);
    form.click("cmdCalculate");
    EXPECT_EQ(name, "frmTransferOptions");
    EXPECT_EQ(title, "[1518]");
    expectGains(window.ZoneList()[0], cooling, {firstRest, 80, firstRest, firstRest});
}

TEST_F(HoursIntoZone, StayWhereTheyAreAfterACancel) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    const LoadsDocument before = window.document();
    frmEqvHoursCalc& form = openedFrom(window);
    typeYear(form);
    main.TransferOption = 1;
    answerMode(-1);
    form.click("cmdCalculate");
    EXPECT_EQ(form.control("txtEqvHours(13)").text(), "3075");
    EXPECT_EQ(main.TransferOption, 1);
    EXPECT_EQ(main.transferPLFm[heating], 0);
    EXPECT_EQ(window.document(), before);
}

TEST_F(HoursIntoZone, BeyondSixteenBitsAreAnErrorAndGoNowhere) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    const LoadsDocument before = window.document();
    frmEqvHoursCalc& form = openedFrom(window);
    typeYear(form);
    form.type("txtEqvHours(0)", "1");
    answerMode(0);
    form.click("cmdCalculate");
    EXPECT_EQ(lastMessage(), "6 - Overflow");
    EXPECT_EQ(window.document(), before);
    EXPECT_EQ(main.transferPLFm[cooling], 0);
}

TEST_F(HoursIntoZone, FillEverySelectedZone) {
    frmZoneManage& window = manager();
    for (int i = 0; i < 3; ++i) window.click("LONewCommand");
    window.select("LOZoneList", {0, 2});
    frmEqvHoursCalc& form = openedFrom(window);
    typeYear(form);
    answerMode(0);
    form.click("cmdCalculate");
    for (const std::size_t zone : {0, 2})
        EXPECT_EQ(window.ZoneList()[zone].hours[cooling], hoursOfYearTyped);
    EXPECT_EQ(window.ZoneList()[1].hours[cooling], 0);
    EXPECT_EQ(window.control("LOZoneList").selected(), (std::vector<int>{0, 2}));
}

TEST_F(HoursIntoZone, GoNowhereOnceTheMenuHasOpenedTheCalculator) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    frmEqvHoursCalc& form = openedFrom(window);
    calculator();
    typeYear(form);
    form.click("cmdCalculate");
    EXPECT_NEAR(main.transferPLFm[cooling], firstFactor, 1e-12);
    EXPECT_EQ(window.ZoneList()[0].hours[cooling], 0);
}

TEST_F(HoursIntoZone, GoNowhereOnceTheLoadsWindowIsClosed) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    frmEqvHoursCalc& form = openedFrom(window);
    platform.answers = {Answer::no};
    main.close(window);
    typeYear(form);
    form.click("cmdCalculate");
    EXPECT_NEAR(main.transferPLFm[cooling], firstFactor, 1e-12);
}

TEST_F(HoursIntoZone, AreOneStepOfTheLoadsWindow) {
    frmZoneManage& window = manager();
    window.click("LONewCommand");
    const LoadsDocument before = window.document();
    frmEqvHoursCalc& form = openedFrom(window);
    typeYear(form);
    answerMode(0);
    form.click("cmdCalculate");
    const LoadsDocument after = window.document();
    main.activate(window);
    main.click("mnuUndo");
    EXPECT_EQ(window.document(), before);
    main.click("mnuRedo");
    EXPECT_EQ(window.document(), after);
}

}  // namespace
}  // namespace varnholt
