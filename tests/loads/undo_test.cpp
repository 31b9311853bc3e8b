// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of change in the Zone Manager is undone and redone.
#include "loads/undo_fixture.h"

namespace varnholt {
namespace {

class UndoInTheZoneManager : public LoadsUndo {
 protected:
    UndoInTheZoneManager() {
        addZone(window, 15, 10);
        window.type("LOZoneReferenceText", "South");
        addZone(window, 35, 30);
        for (const char* field : {"LOGainsText(1)", "LOGainsText(7)"}) window.leave(field);
    }
};

TEST_F(LoadsUndo, OfTheFirstZoneEmptiesTheWindow) {
    expectOneStep("[2950] Zone 1", [this] { window.click("LONewCommand"); });
    undo();
    EXPECT_EQ(window.zoneNumber(), 0);
    EXPECT_EQ(window.document().zoneCount, 0);
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_FALSE(enabled(window, "LORemoveCommand"));
    EXPECT_FALSE(saveIsEnabled());
    EXPECT_FALSE(canUndo());
}

TEST_F(LoadsUndo, HasNothingToUndoInANewWindow) {
    EXPECT_FALSE(canUndo());
    EXPECT_EQ(undoCaption(), "Undo");
}

TEST_F(UndoInTheZoneManager, OfNewCopyAndRemove) {
    expectOneStep("[2950] Zone 3", [this] { window.click("LONewCommand"); });
    window.choose("LOZoneList", 0);
    expectOneStep("[2951] Zone 4", [this] { window.click("LOCopyCommand"); });
    window.choose("LOZoneList", 1);
    expectOneStep("[2952] Zone 2", [this] { window.click("LORemoveCommand"); });
}

TEST_F(UndoInTheZoneManager, OfRenumber) {
    window.click("LONewCommand");
    window.choose("LOZoneList", 0);
    window.click("LORemoveCommand");
    expectOneStep("[2953]", [this] { window.click("LORenumberCommand"); });
}

TEST_F(UndoInTheZoneManager, OfARenumberThatChangesNothingIsNoStep) {
    const std::string before = undoCaption();
    window.click("LORenumberCommand");
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(UndoInTheZoneManager, OfTheLastZonesRemovalBringsTheFileBack) {
    setSaved(window, "two.zon");
    window.click("LORemoveCommand");
    expectOneStep("[2952] Zone 1", [this] { window.click("LORemoveCommand"); });
    undo();
    EXPECT_EQ(window.file().name, "two.zon");
    EXPECT_TRUE(window.file().exists);
    EXPECT_EQ(shown(window, "LOWorkingZoneLabel"), "two.zon");
}

TEST_F(UndoInTheZoneManager, OfClearBringsZonesAndFileBack) {
    setSaved(window, "two.zon");
    expectOneStep("[2954]", [this] { window.click("LOClearCommand"); });
    undo();
    EXPECT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(window.file().name, "two.zon");
    EXPECT_FALSE(saveIsEnabled());
    typeAndLeave("LOGainsText(0)", "9");
    platform.answers = {Answer::no};
    window.click("LOClearCommand");
    undo();
    EXPECT_TRUE(saveIsEnabled());
    EXPECT_EQ(window.ZoneList()[1].gains[0][cooling], 9);
}

TEST_F(UndoInTheZoneManager, OfAClearThatHasSavedFirstBringsTheSavedZonesBack) {
    platform.answers = {Answer::yes};
    platform.picks.emplace_back(zoneFile("two.zon"));
    window.click("LOClearCommand");
    ASSERT_EQ(window.zoneNumber(), 0);
    undo();
    EXPECT_EQ(window.zoneNumber(), 2);
    EXPECT_EQ(window.file().name, "two.zon");
    EXPECT_FALSE(saveIsEnabled());
}

TEST_F(UndoInTheZoneManager, OfAClearThatWasCancelledIsNoStep) {
    const std::string before = undoCaption();
    platform.answers = {Answer::cancel};
    window.click("LOClearCommand");
    EXPECT_EQ(undoCaption(), before);
}

struct FieldCase {
    const char* field;
    const char* typed;
    const char* name;
};

TEST_F(UndoInTheZoneManager, OfEachFieldIsOneStepAVisit) {
    window.click("LOCustomPumpCheck");
    const FieldCase cases[] = {
        {"LOGainsText(0)", "12", "[2820], [2824]"},
        {"LOGainsText(7)", "8.5", "[2821], [2827]"},
        {"LOHoursText(0)", "1200", "[2828], [2839]"},
        {"LOHoursText(1)", "900", "[2828], [2840]"},
        {"LODaysperWeekText", "5", "[2830]"},
        {"LOZoneReferenceText", "North", "[2850]"},
        {"LOPumpNameText", "Old one", "[2836]"},
        {"LONumberOfUnitsText(1)", "3", "[2852]"},
        {"LOCapacityText(0)", "24", "[2842], [2839]"},
        {"LOPowerText(1)", "2", "[2843], [2840]"},
        {"LOCOPText(0)", "13", "[2845], [2839]"},
        {"LOFlowRateText(0)", "6", "[2847], [2839]"},
        {"LOPLFText(1)", "0.5", "[2848], [2840]"},
        {"LOInletTempText(0)", "90", "[2870], [2839]"},
        {"LOInletTempText(1)", "45", "[2870], [2840]"},
        {"FLFlowRateText", "2.5", "[2871]"},
        {"HPLoadInletText(0)", "65", "[2888]"},
        {"HPLoadInletText(3)", "105", "[2840]"},
    };
    for (const auto& [field, typed, name] : cases) {
        SCOPED_TRACE(field);
        expectOneStep(name, [this, field = field, typed = typed] {
            window.type(field, "1");
            typeAndLeave(field, typed);
        });
    }
}

TEST_F(UndoInTheZoneManager, OfAFieldThatIsStillBeingTypedIn) {
    window.type("LOGainsText(0)", "1");
    window.type("LOGainsText(0)", "12");
    undo();
    EXPECT_EQ(window.ZoneList()[1].gains[0][cooling], 0);
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "0.0");
    window.leave("LOGainsText(0)");
    EXPECT_EQ(window.ZoneList()[1].gains[0][cooling], 0);
}

TEST_F(UndoInTheZoneManager, OfAFieldTypedBackToItsStartIsNoStep) {
    const std::string before = undoCaption();
    window.type("LOGainsText(1)", "3");
    window.type("LOGainsText(1)", "35");
    window.leave("LOGainsText(1)");
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(UndoInTheZoneManager, OfAPasteIsOneStep) {
    platform.clipboardText = "12.5";
    expectOneStep("[2820], [2824]", [this] { window.key("LOGainsText(0)", "Ctrl+V"); });
    expectOneStep("[2870], [2839]", [this] { window.key("LOInletTempText(0)", "Ctrl+V"); });
    EXPECT_EQ(window.conditions().inletTemp[cooling], 12.5);
}

TEST_F(UndoInTheZoneManager, OfACustomPump) {
    window.click("LOAutoSelectCommand");
    expectOneStep("[2864]", [this] { window.click("LOCustomPumpCheck"); });
}

TEST_F(UndoInTheZoneManager, OfSelectingClearingAndAutoSelectingAPump) {
    expectOneStep("[2834] Zone 2", [this] { window.click("LOAutoSelectCommand"); });
    EXPECT_EQ(pumpOf(1).name, "Air-40");
    window.click("LOSelectCommand");
    choose("LOPumpNameCombo", "Air-10");
    window.click("LOSelectPumpCommand");
    EXPECT_EQ(undoCaption(), "Undo [2853] Zone 2");
    EXPECT_EQ(pumpOf(1).name, "Air-10");
    undo();
    EXPECT_EQ(pumpOf(1).name, "Air-40");
    EXPECT_EQ(shown(window, "LOPumpNameText"), "Air-40");
    expectOneStep("[2833] Zone 2", [this] { window.click("LOClearPumpsCommand"); });
}

TEST_F(UndoInTheZoneManager, OfAutoSelectAllIsOneStepForAllZones) {
    expectOneStep("[2960]", [this] { window.click("LOAutoSelectAllCommand"); });
    EXPECT_EQ(pumpOf(0).name, "Air-20");
    EXPECT_EQ(pumpOf(1).name, "Air-40");
    undo();
    EXPECT_EQ(pumpOf(0).name, "No Pump");
    EXPECT_EQ(pumpOf(1).name, "No Pump");
}

TEST_F(UndoInTheZoneManager, OfUpdatePumps) {
    window.click("LOAutoSelectAllCommand");
    typeAndLeave("LOGainsText(1)", "15");  // the smaller model is enough from now on
    typeAndLeave("LOGainsText(7)", "10");
    expectOneStep("[2961]", [this] { window.click("LOUpdatePumpsCommand"); });
    EXPECT_EQ(pumpOf(1).name, "Air-20");
}

TEST_F(UndoInTheZoneManager, OfTheReturnFromTheDetails) {
    window.click("LOAutoSelectCommand");
    window.click("LODetailsCommand");
    expectOneStep("[2889], [2839]", [this] { typeAndLeave("LOInletLoadsTempText(0)", "63"); });
    expectOneStep("[2890], [2839]", [this] { typeAndLeave("LOInletLoadsFlowText(0)", "500"); });
    typeAndLeave("LONumberOfUnitsText(1)", "2");
    const LoadsDocument before = window.document();
    window.click("LOReturnCommand");  // two units have twice the capacity
    EXPECT_EQ(undoCaption(), "Undo [2854] Zone 2");
    EXPECT_EQ(pumpOf(1).capacity[cooling], 80);
    undo();
    EXPECT_TRUE(window.document() == before);
    EXPECT_EQ(shown(window, "LOCapacityText(0)"), "40.0");
    redo();
    EXPECT_EQ(pumpOf(1).capacity[cooling], 80);
}

TEST_F(UndoInTheZoneManager, OfTheActiveSeriesShowsTheModelsOfTheOneBefore) {
    expectOneStep("[2859]", [this] { window.choose("HPSeriesCombo", 1); });
    EXPECT_EQ(window.activeSeries(), "FirstWater");
    undo();
    EXPECT_EQ(window.activeSeries(), "FirstAir");
    EXPECT_EQ(window.control("HPPumpList").items(),
              (std::vector<std::string>{"Air-10", "Air-20", "Air-40"}));
    EXPECT_EQ(window.catalogue.PumpList(activeSlot, 0).name, "Air-10");
}

TEST_F(UndoInTheZoneManager, HasNoStepForWhatOnlyShowsOrBrowses) {
    const std::string before = undoCaption();
    window.choose("LOZoneList", 0);
    window.click("MetricCheck");
    window.click("MetricCheck");
    window.click("LOSelectCommand");
    choose("LOSeriesCombo", "Water");
    window.click("LOCancelCommand");
    window.click("LODetailsCommand");
    window.click("LOReturnCommand");
    window.click("LOSummaryCommand");
    window.click("LOReturnFromSummaryCommand");
    window.choose("HPPumpList", 1);
    EXPECT_EQ(undoCaption(), before);
}

TEST_F(UndoInTheZoneManager, ShowsTheZoneThatItChanges) {
    window.choose("LOZoneList", 0);
    typeAndLeave("LOGainsText(0)", "1");
    window.choose("LOZoneList", 1);
    typeAndLeave("LOGainsText(0)", "2");
    undo();
    EXPECT_EQ(window.selectedZone(), 1);
    undo();
    EXPECT_EQ(window.selectedZone(), 0);
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "0.0");
    redo();
    EXPECT_EQ(window.selectedZone(), 0);
    EXPECT_EQ(shown(window, "LOGainsText(0)"), "1.0");
    redo();
    EXPECT_EQ(window.selectedZone(), 1);
}

TEST_F(UndoInTheZoneManager, KeepsTheSummaryOnShowAndUpToDate) {
    typeAndLeave("LOGainsText(1)", "45");
    window.click("LOSummaryCommand");
    EXPECT_EQ(shown(window, "LOPeakLoadLabel(0)"), "60.0");  // 15 and 45
    const ShownControls before = shownBy(window);
    undo();
    EXPECT_EQ(shown(window, "LOPeakLoadLabel(0)"), "50.0");
    EXPECT_FALSE(enabled(window, "LORemoveCommand"));
    redo();
    EXPECT_EQ(differences(before, shownBy(window)), "");
}

TEST_F(UndoInTheZoneManager, WorksInMetricAsInEnglish) {
    window.click("MetricCheck");
    expectOneStep("[2820], [2824]", [this] { typeAndLeave("LOGainsText(0)", "2.931"); });
    EXPECT_NEAR(window.ZoneList()[1].gains[0][cooling], 10, 1e-12);
    window.click("MetricCheck");
    undo();
    EXPECT_EQ(window.ZoneList()[1].gains[0][cooling], 0);
    EXPECT_EQ(window.units(), UnitSystem::english);
}

TEST_F(UndoInTheZoneManager, ToTheBeginningAndBackIsExact) {
    std::vector<LoadsDocument> moments{window.document()};
    const std::string first = undoCaption();
    const auto then = [&](const std::function<void()>& action) {
        action();
        moments.push_back(window.document());
    };
    then([this] { window.click("LOAutoSelectAllCommand"); });
    then([this] { typeAndLeave("LOInletTempText(0)", "92"); });
    then([this] { typeAndLeave("LOGainsText(1)", "50"); });
    then([this] { window.click("LOCopyCommand"); });
    then([this] { window.choose("HPSeriesCombo", 1); });
    then([this] { window.click("LOClearPumpsCommand"); });
    then([this] { window.click("LORemoveCommand"); });
    for (std::size_t i = moments.size(); i-- > 1;) {
        EXPECT_TRUE(window.document() == moments[i]) << i;
        undo();
    }
    EXPECT_TRUE(window.document() == moments[0]);
    EXPECT_EQ(undoCaption(), first);
    for (std::size_t i = 1; i < moments.size(); ++i) {
        redo();
        EXPECT_TRUE(window.document() == moments[i]) << i;
    }
    EXPECT_FALSE(canRedo());
}

TEST_F(LoadsUndo, WorksInTheAverageBlockToo) {
    frmAvgBlock& single = block();
    addZone(single, 15, 10);
    single.leave("LOGainsText(7)");
    single.click("LOSelectCommand");
    single.click("LOSelectPumpCommand");
    EXPECT_EQ(single.ZoneList()[0].pump.name, "Air-10");
    undo();
    EXPECT_EQ(single.ZoneList()[0].pump.name, "No Pump");
    for (int i = 0; i < 3; ++i) undo();
    EXPECT_EQ(single.zoneNumber(), 0);
    EXPECT_TRUE(enabled(single, "LONewCommand"));
    EXPECT_FALSE(canUndo());
    redo();
    EXPECT_EQ(single.zoneNumber(), 1);
    EXPECT_FALSE(enabled(single, "LONewCommand"));
}

}  // namespace
}  // namespace varnholt
