// SPDX-License-Identifier: GPL-3.0-or-later
// What the line at the top of a design tells.
#include "basis/run_time_error.h"
#include "design/design_undo.h"

namespace varnholt {
namespace {

class DesignNotices : public DesignUndo {
 protected:
    DesignNotices() {
        texts.known.insert({{1230, "Results are out of date"},
                            {1231, "Calculate"},
                            {1232, "Ended in an overflow."},
                            {1233, "Ended in error %1."},
                            {1234, "The zone file %1 was not found."},
                            {1235, "Find"},
                            {1236, "Not all of %1 could be read."},
                            {1237, "%1: %2 is refused, %3 to %4, now %5."}});
    }
    const Control& command() const { return design->control("NoticeCommand"); }
    /// The loads of two zones together are more than a double holds.
    void makeRunsOverflow() {
        change(*design, [](BoreholeProject& of) {
            for (std::size_t i = 0; i < of.loads.zones.size(); ++i)
                for (auto& block : of.loads.zones.edit(i).gains) block = {1e308, 1e308};
        });
    }
};

TEST_F(DesignNotices, TellNothingBeforeAFirstRun) {
    EXPECT_EQ(notice(), "");
    EXPECT_FALSE(design->control("NoticeLabel").visible());
    typeAndLeave("SOGroundTempText", "58");
    EXPECT_EQ(notice(), "");
    EXPECT_TRUE(design->isStale());
}

TEST_F(DesignNotices, TellAtOnceThatTheResultsAreOutOfDate) {
    calculate();
    EXPECT_EQ(notice(), "");
    type("SOGroundTempText", "58");
    EXPECT_EQ(notice(), "Results are out of date");
    EXPECT_TRUE(design->control("NoticeLabel").visible());
    EXPECT_EQ(command().caption(), "Calculate");
    EXPECT_TRUE(command().visible());
}

TEST_F(DesignNotices, OfStaleResultsStandAsLongAsTheButtonTellsOfAChange) {
    calculate();
    type("SOGroundTempText", "58");
    type("SOGroundTempText", "62");
    EXPECT_TRUE(design->isStale());
    EXPECT_EQ(notice(), "Results are out of date");
    undo();
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(notice(), "");
    EXPECT_FALSE(command().visible());
}

TEST_F(DesignNotices, OfStaleResultsGoWithTheirAction) {
    calculate();
    typeAndLeave("SOGroundTempText", "58");
    design->click("NoticeCommand");
    EXPECT_EQ(notice(), "");
    EXPECT_EQ(command().caption(), "");
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(undoCaption(), "Undo Calculate");
    EXPECT_NE(captionOf("CATotalLengthLabel(0)"), "1910.5");
    undo();
    EXPECT_EQ(notice(), "Results are out of date");
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
}

TEST_F(DesignNotices, OfStaleResultsGoWithTheButtonAndWithUndo) {
    calculate();
    typeAndLeave("SOGroundTempText", "58");
    undo();
    EXPECT_EQ(notice(), "");
    redo();
    EXPECT_EQ(notice(), "Results are out of date");
    calculate();
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, OfStaleResultsStandForWhateverARunReads) {
    calculate();
    const auto expectStale = [this] {
        EXPECT_EQ(notice(), "Results are out of date");
        undo();
        EXPECT_EQ(notice(), "");
    };
    typeAndLeave("FLFluidDensityText", "64");
    expectStale();
    design->click("PIPlacementOption(2)");
    expectStale();
    design->choose("PIPipeDiameterCombo", 0);
    expectStale();
    typeAndLeave("EKWPumpEfficiencyText(0)", "70");
    expectStale();
    typeAndLeave("PABoresPerParallelLoopText", "3");
    expectStale();
}

TEST_F(DesignNotices, OfStaleResultsAreNoneForWhatARunDoesNotRead) {
    calculate();
    typeAndLeave("INProjectNameText", "School");
    inMetric();
    EXPECT_EQ(notice(), "");
    slide(20);
    EXPECT_EQ(notice(), "");
    design->slide("CACoolingRangeUpDown", 4);
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, TellOfTheOverflowThatNoBoxTells) {
    calculate();
    makeRunsOverflow();
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(notice(), "Ended in an overflow.");
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "1910.5");
    EXPECT_FALSE(command().visible());
}

TEST_F(DesignNotices, OfADroppedErrorStandUntilARunComesToAnEnd) {
    calculate();
    makeRunsOverflow();
    calculate();
    typeAndLeave("INProjectNameText", "School");
    EXPECT_EQ(notice(), "Ended in an overflow.");
    typeAndLeave("SOGroundTempText", "58");
    EXPECT_EQ(notice(), "Ended in an overflow. Results are out of date");
    EXPECT_FALSE(command().visible());  // the first one has no action
    takeZones(handCheckZones());
    calculate();
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, OfADroppedErrorAreUndoneWithTheRunThatEndedInIt) {
    calculate();
    makeRunsOverflow();
    calculate();
    EXPECT_EQ(notice(), "Ended in an overflow.");
    undo();
    EXPECT_EQ(notice(), "Results are out of date");
    redo();
    EXPECT_EQ(notice(), "Ended in an overflow.");
}

TEST_F(DesignNotices, TellOfOtherDroppedErrorsByTheirNumber) {
    calculate();
    change(*design, [](BoreholeProject& of) { of.soil.diffusivity = -1; });  // no square root
    calculate();
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(notice(), "Ended in error " + RunTimeError(5).message() + ".");
}

TEST_F(DesignNotices, OfAnErrorThatABoxHasToldOnlySayThatTheResultsAreOlder) {
    calculate();
    typeAndLeave("PATimeText", "0");
    calculate();
    EXPECT_EQ(platform.messages.back().text, RunTimeError(11).message());
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(notice(), "Results are out of date");
    typeAndLeave("PATimeText", "10");
    calculate();
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, ExplainARefusedValueUntilItsFieldIsLeft) {
    type("SOGroundTempText", "213");
    EXPECT_EQ(notice(), "[2303]: 213 is refused, 0.0 to 212.0, now 62.0.");
    EXPECT_FALSE(command().visible());
    design->leave("SOGroundTempText");
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, ExplainANumberThatOverflowsItsField) {
    type("PABoresPerParallelLoopText", "99999");
    EXPECT_TRUE(design->control("PABoresPerParallelLoopText").refused());
    EXPECT_EQ(value("boresPerCircuit"), 0);
    EXPECT_EQ(notice(), "[2507]: 99999 is refused, 0 to 3, now 0.");
    design->leave("PABoresPerParallelLoopText");
    EXPECT_FALSE(design->control("PABoresPerParallelLoopText").refused());
    EXPECT_EQ(notice(), "");
}

TEST_F(DesignNotices, StandInTheirOrder) {
    calculate();
    makeRunsOverflow();
    calculate();
    design->setMissingZoneFile("school.zon");
    FileDamage damage{"school.vht", {}};
    damage.report.error = 62;
    design->setDamage(damage);
    type("SOGroundTempText", "213");  // 62 again: only the loads are others than those of the run
    type("PATimeText", "15");
    type("SOGroundTempText", "213");
    EXPECT_EQ(notice(),
              "Not all of school.vht could be read. [1242] [1248] [1249] The zone file school.zon "
              "was not found. "
              "Ended in an overflow. [2303]: 213 is refused, 0.0 to 212.0, now 62.0. "
              "Results are out of date");
    EXPECT_FALSE(command().visible());
    design->setDamage({});
    design->refreshNotice();
    EXPECT_EQ(command().caption(), "Find");
    int searches = 0;
    design->files.findZoneFile = [&] { ++searches; };
    design->refreshNotice();
    design->click("NoticeCommand");
    EXPECT_EQ(searches, 1);
}

}  // namespace
}  // namespace varnholt
