// SPDX-License-Identifier: GPL-3.0-or-later
// The figures on show are those of one run, whatever is edited or switched afterwards.
#include "design/design_undo.h"

namespace varnholt {
namespace {

class FiguresOnShow : public DesignUndo {
 protected:
    FiguresOnShow() { calculate(); }
    void switchUnitsTwice() {
        design->click("MetricCheck");
        design->click("MetricCheck");
    }
    /// The figures that a run finds; the tower's trim is the designer's own.
    std::vector<std::string> figures() const {
        std::vector<std::string> found;
        for (const std::string& line : resultCaptions())
            if (!line.starts_with("CACooling") && !line.starts_with("CACondenser"))
                found.push_back(line);
        return found;
    }
};

struct Edit {
    const char* field;
    const char* typed;
};

constexpr Edit edits[] = {{"PAPatternRowsText(0)", "4"}, {"PAPatternRowsText(1)", "5"},
                          {"FLInletTempText(0)", "90"},  {"FLInletTempText(1)", "45"},
                          {"FLFlowRateText", "2.5"},     {"EKWPumpPowerText(1)", "20"},
                          {"EKWPumpPowerText(2)", "10"}, {"SOGroundTempText", "58"},
                          {"FLFluidDensityText", "64"},  {"PABoresPerParallelLoopText", "3"}};

TEST_F(FiguresOnShow, StayThoseOfTheRunAfterAnEditAndTwoUnitSwitches) {
    const std::vector<std::string> before = figures();
    for (const auto& [field, typed] : edits) {
        SCOPED_TRACE(field);
        typeAndLeave(field, typed);
        EXPECT_EQ(figures(), before);
        switchUnitsTwice();
        EXPECT_EQ(figures(), before);
    }
    EXPECT_EQ(captionOf("CABoreholeNumberLabel(0)"), "6");
    EXPECT_EQ(captionOf("CABoreholeLengthLabel(0)"), "318.4");  // 1910.475 ft by 6 bores
    EXPECT_EQ(captionOf("CAUnitInletLabel(0)"), "85.0");
    EXPECT_EQ(captionOf("CAPeakDemandLabel(0)"), "7.6");  // with the pump power of the run
}

TEST_F(FiguresOnShow, AreAllNewAfterTheNextRun) {
    for (const auto& [field, typed] : edits) typeAndLeave(field, typed);
    calculate();
    const std::vector<std::string> after = figures();
    switchUnitsTwice();
    EXPECT_EQ(figures(), after);
    EXPECT_EQ(captionOf("CABoreholeNumberLabel(0)"), "20");
    EXPECT_EQ(captionOf("CAUnitInletLabel(0)"), "90.0");
}

TEST_F(FiguresOnShow, StayThoseOfTheRunWhenTheLoadsChange) {
    const std::vector<std::string> before = figures();
    takeZones({handCheckZones()[0]});
    switchUnitsTwice();
    EXPECT_EQ(figures(), before);
}

TEST_F(FiguresOnShow, StayThoseOfTheLastRunThatCameToAnEnd) {
    const std::vector<std::string> before = figures();
    typeAndLeave("PAPatternRowsText(0)", "4");
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones)
        for (auto& block : zone.gains) block[heating] = 0;
    takeZones(zones);
    calculate();  // a division by zero
    switchUnitsTwice();
    EXPECT_EQ(figures(), before);
}

TEST_F(FiguresOnShow, OfATowerStayWhenTheTowersPowerIsEdited) {
    design->slide("CACoolingRangeUpDown", 10);
    slide(25);
    const std::vector<std::string> before = figures();
    typeAndLeave("EKWPumpPowerText(4)", "5");
    switchUnitsTwice();
    EXPECT_EQ(figures(), before);
}

TEST_F(BoreholeWindow, ShowsTheDesignsOwnFiguresBeforeAFirstRun) {
    typeAndLeave("PAPatternRowsText(0)", "3");
    typeAndLeave("PAPatternRowsText(1)", "2");
    inMetric();
    EXPECT_EQ(captionOf("CABoreholeNumberLabel(0)"), "6");
    EXPECT_EQ(captionOf("CATotalLengthLabel(0)"), "0.0");
}

}  // namespace
}  // namespace varnholt
