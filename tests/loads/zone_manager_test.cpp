// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/loads_fixture.h"

namespace varnholt {
namespace {

class ZoneManagerTest : public LoadsTest {};
using Strings = std::vector<std::string>;

TEST_F(ZoneManagerTest, StartsEmptyWithItsDefaults) {
    const frmZoneManage& window = manager();
    EXPECT_EQ(window.caption(), "[2930]");
    EXPECT_EQ(window.inletTemp, (ByMode<double>{85, 50}));
    EXPECT_EQ(window.flowRate, 3);
    EXPECT_EQ(window.inletLoadAirTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.inletLoadWaterTemp, (ByMode<double>{55, 100}));
    EXPECT_EQ(window.temporaryInletTemp, (ByMode<double>{67, 70}));
    EXPECT_EQ(window.zoneCount, 0);
    EXPECT_EQ(window.zoneNumber, 0);
    EXPECT_EQ(window.workingZoneDirectory, folder.path() + "/zones");
    EXPECT_EQ(window.activeSeries, "FirstAir");
    EXPECT_EQ(window.information.currentDate, (Date{2026, 1, 15}));
    EXPECT_FALSE(window.control("LOZoneFrame").visible());
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(shown(window, "LOInletTempText(0)"), "85.0");
    EXPECT_EQ(shown(window, "FLFlowRateText"), "3.0");
}

TEST_F(ZoneManagerTest, IsOneWindowHoweverOftenItIsCalled) {
    const frmZoneManage& window = manager();
    EXPECT_TRUE(main.frmZoneManageWindowExists);
    block();
    EXPECT_EQ(main.windows().size(), 2U);
    EXPECT_EQ(&manager(), &window);
    EXPECT_EQ(main.activeWindow(), &window);
    EXPECT_EQ(main.windows().size(), 2U);
}

}  // namespace
}  // namespace varnholt
