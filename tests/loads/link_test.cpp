// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/link_fixture.h"

namespace varnholt {
namespace {

using Link = LinkTest;

TEST_F(Link, FromADesignTakesTheOnlyLoadsWindow) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(10), zone(20)});
    loads.activeSeries = "AcmeA";
    loads.flowRate = 2.5;
    loads.inletTemp = {80, 45};
    loads.workingZoneFile = "school.zon";
    loads.workingZoneDirectory = "/zones";
    loads.workingFileCheck = true;
    PlainDesign& design = newDesign();
    link(design);

    EXPECT_EQ(design.linkType, "frmZoneManage");
    EXPECT_EQ(design.LoadsHome, &loads);
    EXPECT_EQ(loads.designLinkID, design.myID);
    ASSERT_EQ(design.ZoneList.size(), 2u);
    EXPECT_EQ(design.ZoneList[1].gains[1][cooling], 20);
    EXPECT_EQ(design.ZoneList[1].name, "Zone 2");
    EXPECT_EQ(design.zoneCount(), 2);
    EXPECT_EQ(design.activeSeries, "AcmeA");
    EXPECT_EQ(design.flowRate, 2.5);
    EXPECT_EQ(design.inletTemp, (ByMode<double>{80, 45}));
    EXPECT_EQ(design.workingZoneFile, "school.zon");
    EXPECT_EQ(design.workingZoneDirectory, "/zones");
    EXPECT_TRUE(design.workingFileCheck);
    EXPECT_EQ(design.changes, 1);
    EXPECT_TRUE(design.isStale());
    EXPECT_EQ(loads.listsRead, 1);
}

TEST_F(Link, PutsTheProjectsNameIntoTheLoadsTitleAndLeavesTheDesigns) {
    PlainLoads& zones = newLoads();
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_EQ(design.caption(), "Borehole Design Project #1");
    // Without a dash the whole caption is the project's name.
    EXPECT_EQ(zones.caption(), "Project Loads - Zone Manager of Borehole Design Project #1");
}

TEST_F(Link, ProjectNameIsWhatStandsBehindTheFirstDash) {
    PlainLoads& block = newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    design.setFile("/projects/north-wing.vht");
    link(design);
    EXPECT_EQ(block.caption(), "Average Block Loads - Average Block of north-wing.vht");
}

TEST_F(Link, FollowsTheDesignsNewFileName) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    link(design);
    renameDesign(design, "/projects/school.vht");
    EXPECT_EQ(design.caption(), "Borehole Design Project - school.vht");
    EXPECT_EQ(loads.caption(), "Project Loads - Zone Manager of school.vht");
    EXPECT_TRUE(namesDesign(loads, design));
}

TEST_F(Link, ShowsTheLightOfTheZoneManager) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    EXPECT_FALSE(design.control("imgLinkLight(0)").visible());
    EXPECT_TRUE(design.control("imgLinkLight(6)").visible());
    link(design);
    EXPECT_TRUE(design.control("imgLinkLight(0)").enabled());
    EXPECT_TRUE(design.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(design.control("imgLinkLight(8)").enabled());
    EXPECT_FALSE(design.control("imgLinkLight(6)").enabled());
    EXPECT_FALSE(design.control("imgLinkLight(6)").visible());
    EXPECT_TRUE(loads.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(loads.control("imgLinkLight(6)").visible());
    EXPECT_EQ(platform.paused, 250);
}

TEST_F(Link, ShowsTheLightOfTheAverageBlock) {
    newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_TRUE(design.control("imgLinkLight(8)").enabled());
    EXPECT_FALSE(design.control("imgLinkLight(0)").enabled());
    EXPECT_TRUE(design.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(design.control("imgLinkLight(6)").visible());
}

TEST_F(Link, WithoutALoadsWindowDoesNothing) {
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_EQ(design.linkType, "");
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Link, AsksWhenBothLoadsWindowsAreOpen) {
    newLoads();
    PlainLoads& block = newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    platform.onModal = [](Form& form) {
        ASSERT_EQ(form.formName(), "frmLinkOptions");
        EXPECT_TRUE(form.control("optLink(0)").checked());
        form.click("optLink(1)");
        form.click("cmdSelect");
        EXPECT_TRUE(form.modalEnded());
    };
    link(design);
    EXPECT_EQ(main.LinkOption, 1);
    EXPECT_EQ(design.LoadsHome, &block);
    EXPECT_EQ(design.linkType, "frmAvgBlock");
}

TEST_F(Link, CancelInTheQuestionLeavesEverythingUnlinked) {
    PlainLoads& zones = newLoads();
    PlainLoads& block = newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    platform.onModal = [](Form& form) { form.click("cmdCancel"); };
    link(design);
    EXPECT_EQ(main.LinkOption, 100);
    EXPECT_EQ(design.linkType, "");
    EXPECT_EQ(design.LoadsHome, nullptr);
    EXPECT_EQ(zones.designLinkID, 0);
    EXPECT_EQ(block.designLinkID, 0);
    EXPECT_EQ(zones.caption(), "Project Loads");
}

TEST_F(Link, ClosingTheQuestionByItsBoxIsACancel) {
    newLoads();
    newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    platform.onModal = [](Form& form) {
        form.click("optLink(1)");
        EXPECT_TRUE(form.queryClose());
    };
    link(design);
    EXPECT_EQ(main.LinkOption, 100);
    EXPECT_EQ(design.linkType, "");
}

TEST_F(Link, FromALoadsWindowTakesTheOneFreeDesign) {
    PlainDesign& design = newDesign();
    design.activeSeries = "DesignSeries";
    PlainLoads& loads = newLoads();
    loads.activeSeries = "LoadsSeries";
    link(loads);
    EXPECT_EQ(design.LoadsHome, &loads);
    EXPECT_EQ(design.linkType, "frmZoneManage");
    EXPECT_EQ(design.activeSeries, "LoadsSeries");
    EXPECT_EQ(loads.activeSeries, "LoadsSeries");
    EXPECT_EQ(loads.designLinkID, design.myID);
}

TEST_F(Link, FromALoadsWindowWithTwoFreeDesignsDoesNothing) {
    PlainDesign& first = newDesign();
    PlainDesign& second = newDesign();
    PlainLoads& loads = newLoads();
    link(loads);
    EXPECT_EQ(first.LoadsHome, nullptr);
    EXPECT_EQ(second.LoadsHome, nullptr);
    EXPECT_EQ(loads.designLinkID, 0);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Link, FromALoadsWindowPassesOverDesignsThatAreLinked) {
    PlainLoads& loads = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    link(loads);
    EXPECT_EQ(second.LoadsHome, &loads);
    EXPECT_EQ(loads.designLinkID, second.myID);
    EXPECT_EQ(first.LoadsHome, &loads);
}

TEST_F(Link, OfALinkedDesignDoesNothingAgain) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    link(design);
    loads.setZones({zone(5)});
    link(design);
    EXPECT_EQ(design.zoneCount(), 0);
}

TEST_F(Link, WithNoZonesEmptiesTheDesignsList) {
    newLoads();
    PlainDesign& design = newDesign();
    design.ZoneList = {zone(1), zone(2)};
    design.zoneNumber = 2;
    link(design);
    EXPECT_TRUE(design.ZoneList.empty());
    EXPECT_EQ(design.zoneCount(), 0);
    EXPECT_TRUE(design.isStale());
}

TEST_F(Link, WithTheSameZonesGivesTheDesignsSeriesToTheLoads) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(1)});
    loads.activeSeries = "LoadsSeries";
    PlainDesign& design = newDesign();
    design.ZoneList = {zone(1)};
    design.zoneNumber = 1;
    design.activeSeries = "DesignSeries";
    link(design);
    EXPECT_EQ(design.changes, 0);
    EXPECT_EQ(loads.activeSeries, "DesignSeries");
    EXPECT_EQ(loads.listsRead, 1);
}

TEST_F(Link, LetsADesignWithoutASeriesTakeTheLoads) {
    PlainLoads& loads = newLoads();
    loads.activeSeries = "LoadsSeries";
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_EQ(loads.activeSeries, "LoadsSeries");
    EXPECT_EQ(design.activeSeries, "LoadsSeries");
}

TEST_F(Link, PutsBothWindowsIntoTheUnitsOfTheActiveOne) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    design.switchUnits(UnitSystem::metric);
    link(design);
    EXPECT_EQ(loads.units(), UnitSystem::metric);
    EXPECT_EQ(design.units(), UnitSystem::metric);
}

TEST_F(Link, ShowsTheProjectOnTheLoadsAndHidesWhatTheMethodDoesNotUse) {
    PlainLoads& loads = newLoads();
    loads.information.comments = "of the zones";
    PlainDesign& design = newDesign();
    design.usesHours = false;
    design.information.projectName = "School";
    design.information.country = "US";
    design.information.comments = "of the project";
    design.information.currentDate = {2026, 2, 3};
    link(design);
    EXPECT_FALSE(loads.hoursShown);
    EXPECT_EQ(loads.information.projectName, "School");
    EXPECT_EQ(loads.information.country, "US");
    EXPECT_EQ(loads.information.currentDate, (Date{2026, 2, 3}));
    EXPECT_EQ(loads.information.comments, "of the zones");
}

TEST_F(Link, EndsQuietlyWhenTheLoadsAreClosedWhileTheLightShines) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    platform.onPause = [&] {
        main.close(loads);
        newLoads("frmAvgBlock");  // a closed window is really gone once another one opens
    };
    link(design);
    EXPECT_EQ(design.LoadsHome, nullptr);
    EXPECT_EQ(design.linkType, "");
    EXPECT_FALSE(design.control("imgLinkLight(0)").visible());
}

TEST_F(Link, EndsQuietlyWhenTheDesignIsClosedWhileTheLightShines) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    platform.onPause = [&] {
        main.close(design);
        newLoads("frmAvgBlock");
    };
    link(design);
    EXPECT_EQ(loads.designLinkID, 0);
    EXPECT_EQ(loads.caption(), "Project Loads");
}

}  // namespace
}  // namespace varnholt
