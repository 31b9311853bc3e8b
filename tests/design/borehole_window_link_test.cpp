// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "borehole_window.h"
#include "loads/link_fixture.h"

namespace varnholt {
namespace {

class LinkedBoreholes : public BoreholeWindow {
 protected:
    LinkedBoreholes() {
        auto window = std::make_unique<PlainLoads>("frmZoneManage", main);
        loads = window.get();
        loads->setZones(handCheckZones());
        main.frmZoneManageWindowExists = true;
        main.open(std::move(window));
        main.activate(*design);
        mnuLink_Click(main);
    }
    PlainLoads* loads = nullptr;
};

TEST_F(LinkedBoreholes, TakeTheZonesAndRollThemUp) {
    EXPECT_EQ(design->loads().zoneNumber, 2);
    EXPECT_EQ(value("peakLoad(0)"), 76);
    EXPECT_EQ(value("totalCapacity(1)"), 78);
    EXPECT_NEAR(value("outletTemp(0)"), 94.92609, 1e-4);
    EXPECT_TRUE(design->isStale());
}

TEST_F(LinkedBoreholes, ShowTheTemperaturesAndTheFlowThatCameAlong) {
    loads->data().conditions.inletTemp = {90, 45};
    loads->data().conditions.flowRate = 2.5;
    loads->data().zones.edit(0).gains[0][0] = 31;
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(textOf("FLInletTempText(0)"), "90.0");
    EXPECT_EQ(textOf("FLInletTempText(1)"), "45.0");
    EXPECT_EQ(textOf("FLFlowRateText"), "2.5");
}

TEST_F(LinkedBoreholes, CalculateWithTheLoadsAsTheyAreNow) {
    calculate();
    loads->data().zones.edit(1).gains[2][0] = 60;
    calculate();
    EXPECT_EQ(value("peakLoad(0)"), 96);
    EXPECT_EQ(captionOf("CAPeakLoadLabel(0)"), "96.0");
    EXPECT_FALSE(design->isStale());
}

TEST_F(LinkedBoreholes, PassATypedTemperatureOn) {
    const int shown = loads->fluidsShown;
    type("FLInletTempText(1)", "48");
    EXPECT_EQ(loads->data().conditions.inletTemp[heating], 48);
    EXPECT_EQ(loads->fluidsShown, shown + 1);
    EXPECT_EQ(loads->pumpsUpdated, 0);
    design->leave("FLInletTempText(1)");
    EXPECT_EQ(loads->pumpsUpdated, 1);
}

TEST_F(LinkedBoreholes, PassTheFallbackOfAnEmptiedFieldOn) {
    typeAndLeave("FLFlowRateText", "2.8");
    EXPECT_EQ(loads->data().conditions.flowRate, 2.8);
    typeAndLeave("FLFlowRateText", "");
    EXPECT_EQ(loads->data().conditions.flowRate, 3);
}

TEST_F(LinkedBoreholes, LeavePumpsThatAreBeingSelectedAlone) {
    loads->selectingPump = true;
    typeAndLeave("FLFlowRateText", "2.8");
    EXPECT_EQ(loads->data().conditions.flowRate, 2.8);
    EXPECT_EQ(loads->pumpsUpdated, 0);
}

TEST_F(LinkedBoreholes, SwitchUnitsTogether) {
    design->click("MetricCheck");
    EXPECT_EQ(loads->units(), UnitSystem::metric);
    EXPECT_EQ(textOf("FLInletTempText(0)"), "29.4");
}

TEST_F(LinkedBoreholes, KeepTheUnitsOfALoadsWindowThatNamesAnotherDesign) {
    frmBHDesign* const first = design;
    main.click("NewBorehole");
    mnuLink_Click(main);  // the loads window names the second design now
    main.activate(*first);
    design->click("MetricCheck");
    EXPECT_FALSE(design->control("MetricCheck").checked());
    EXPECT_EQ(loads->units(), UnitSystem::english);
    EXPECT_EQ(textOf("FLInletTempText(0)"), "85.0");
    EXPECT_TRUE(main.control("English").checked());
}

TEST_F(LinkedBoreholes, ShowTheLightOfTheirLink) {
    EXPECT_TRUE(design->control("imgLinkLight(0)").visible());
    EXPECT_FALSE(design->control("imgLinkLight(6)").visible());
    mnuUnlink_Click(main);
    EXPECT_FALSE(design->control("imgLinkLight(0)").visible());
    EXPECT_TRUE(design->control("imgLinkLight(6)").visible());
}

TEST_F(LinkedBoreholes, KeepZonesAndResultsWhenTheLoadsWindowCloses) {
    calculate();
    const std::vector<std::string> before = resultCaptions();
    main.close(*loads);
    EXPECT_EQ(design->loads().linkType, "");
    EXPECT_EQ(design->ZoneList().size(), 2u);
    EXPECT_EQ(resultCaptions(), before);
    calculate();
    EXPECT_EQ(resultCaptions(), before);
}

}  // namespace
}  // namespace varnholt
