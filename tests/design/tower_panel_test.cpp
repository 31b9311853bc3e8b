// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/borehole_window.h"

namespace varnholt {
namespace {

class TowerPanelTest : public BoreholeWindow {
 public:
    const Control& range() const { return design->control("CACoolingRangeUpDown"); }
};

TEST_F(TowerPanelTest, TheLimitsOfTheUpDownsFollowTheUnits) {
    EXPECT_EQ(range().max(), 100);
    inMetric();
    // A difference of 100 deg F.
    EXPECT_NEAR(range().max(), 55.5556, 1e-4);
    EXPECT_NEAR(design->control("CACoolingTowerFlowRateUpDown").max(), 30000 * 3.785412, 1e-6);
    design->slide("CACoolingRangeUpDown", 65);
    inEnglish();
    // The figure is taken from its label, which shows 55.6 deg C.
    EXPECT_NEAR(range().value(), 100.1, 1e-9);
    EXPECT_EQ(range().max(), range().value());
}

TEST_F(TowerPanelTest, AValueBeyondTheLimitsWidensThem) {
    change(*design, [&](BoreholeProject& of) { of.tower.tower.range = 250; });
    inMetric();
    inEnglish();
    EXPECT_EQ(range().max(), 250);
    EXPECT_EQ(range().value(), 250);
    change(*design, [&](BoreholeProject& of) { of.tower.tower.range = -4; });
    inMetric();
    inEnglish();
    EXPECT_EQ(range().min(), -4);
    EXPECT_EQ(range().value(), -4);
}

}  // namespace
}  // namespace varnholt
