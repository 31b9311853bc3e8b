// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/screen_reader.h"
#include "loads/link_fixture.h"

namespace varnholt {
namespace {

using Link = LinkTest;

TEST_F(Link, ADesignTellsItsLoadsUnderTheNamesOfALoadsWindow) {
    PlainDesign& design = newDesign();
    design.style = 3;
    design.zoneTemp.gains[1][0] = 16;
    EXPECT_EQ(std::get<double>(design.values().read("style")), 3);
    EXPECT_EQ(std::get<double>(design.values().read("zoneTemp.gains(1,0)")), 16);
}

TEST_F(Link, FromADesignTakesTheOnlyLoadsWindow) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(10), zone(20)});
    loads.data().activeSeries = "AcmeA";
    loads.data().conditions.flowRate = 2.5;
    loads.data().conditions.inletTemp = {80, 45};
    loads.edit().file.name = "school.zon";
    loads.edit().file.folder = "/zones";
    loads.edit().file.exists = true;
    PlainDesign& design = newDesign();
    texts.known[Text::linkMade] = "%1 is linked.";
    link(design);

    EXPECT_EQ(platform.told, std::vector<std::string>{design.caption() + " is linked."});
    EXPECT_EQ(design.loads().linkType, "frmZoneManage");
    EXPECT_EQ(design.LoadsHome(), &loads);
    EXPECT_EQ(loads.links().designLinkID(), design.myID);
    ASSERT_EQ(design.ZoneList().size(), 2u);
    EXPECT_EQ(design.ZoneList()[1].gains[1][cooling], 20);
    EXPECT_EQ(design.ZoneList()[1].name, "Zone 2");
    EXPECT_EQ(design.loads().zoneNumber, 2);
    EXPECT_EQ(design.held.loads.activeSeries, "AcmeA");
    EXPECT_EQ(design.held.conditions.flowRate, 2.5);
    EXPECT_EQ(design.held.conditions.inletTemp, (ByMode<double>{80, 45}));
    EXPECT_EQ(design.held.loads.file.name, "school.zon");
    EXPECT_EQ(design.held.loads.file.folder, "/zones");
    EXPECT_TRUE(design.held.loads.file.exists);
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
    EXPECT_TRUE(design.link()->isNamed());
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
    EXPECT_EQ(design.descriptionOf("imgLinkLight(0)"), texts.text(Text::linkedWithZoneManager));
    EXPECT_TRUE(loads.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(loads.control("imgLinkLight(6)").visible());
}

TEST_F(Link, ShowsTheLightOfTheAverageBlock) {
    newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_TRUE(design.control("imgLinkLight(8)").enabled());
    EXPECT_FALSE(design.control("imgLinkLight(0)").enabled());
    EXPECT_TRUE(design.control("imgLinkLight(0)").visible());
    EXPECT_FALSE(design.control("imgLinkLight(6)").visible());
    EXPECT_EQ(design.descriptionOf("imgLinkLight(0)"), texts.text(Text::notLinkedWithZoneManager));
    EXPECT_EQ(design.descriptionOf("imgLinkLight(8)"), texts.text(Text::linkedWithAverageBlock));
    EXPECT_EQ(design.descriptionOf("imgLinkLight(6)"), texts.text(Text::notLinked));
}

TEST_F(Link, WithoutALoadsWindowDoesNothing) {
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_EQ(design.loads().linkType, "");
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
    EXPECT_EQ(design.LoadsHome(), &block);
    EXPECT_EQ(design.loads().linkType, "frmAvgBlock");
}

TEST_F(Link, CancelInTheQuestionLeavesEverythingUnlinked) {
    PlainLoads& zones = newLoads();
    PlainLoads& block = newLoads("frmAvgBlock");
    PlainDesign& design = newDesign();
    platform.onModal = [](Form& form) { form.click("cmdCancel"); };
    link(design);
    EXPECT_EQ(main.LinkOption, 100);
    EXPECT_EQ(design.loads().linkType, "");
    EXPECT_EQ(design.LoadsHome(), nullptr);
    EXPECT_EQ(zones.links().designLinkID(), 0);
    EXPECT_EQ(block.links().designLinkID(), 0);
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
    EXPECT_EQ(design.loads().linkType, "");
}

TEST_F(Link, FromALoadsWindowTakesTheOneFreeDesign) {
    PlainDesign& design = newDesign();
    design.held.loads.activeSeries = "DesignSeries";
    PlainLoads& loads = newLoads();
    loads.data().activeSeries = "LoadsSeries";
    link(loads);
    EXPECT_EQ(design.LoadsHome(), &loads);
    EXPECT_EQ(design.loads().linkType, "frmZoneManage");
    EXPECT_EQ(design.held.loads.activeSeries, "LoadsSeries");
    EXPECT_EQ(loads.data().activeSeries, "LoadsSeries");
    EXPECT_EQ(loads.links().designLinkID(), design.myID);
}

TEST_F(Link, FromALoadsWindowWithTwoFreeDesignsDoesNothing) {
    PlainDesign& first = newDesign();
    PlainDesign& second = newDesign();
    PlainLoads& loads = newLoads();
    link(loads);
    EXPECT_EQ(first.LoadsHome(), nullptr);
    EXPECT_EQ(second.LoadsHome(), nullptr);
    EXPECT_EQ(loads.links().designLinkID(), 0);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Link, FromALoadsWindowPassesOverDesignsThatAreLinked) {
    PlainLoads& loads = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    link(loads);
    EXPECT_EQ(second.LoadsHome(), &loads);
    EXPECT_EQ(loads.links().designLinkID(), second.myID);
    EXPECT_EQ(first.LoadsHome(), &loads);
}

TEST_F(Link, OfALinkedDesignDoesNothingAgain) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    link(design);
    loads.setZones({zone(5)});
    link(design);
    EXPECT_EQ(design.loads().zoneNumber, 0);
}

TEST_F(Link, WithNoZonesEmptiesTheDesignsList) {
    newLoads();
    PlainDesign& design = newDesign();
    design.held.loads.zones = {zone(1), zone(2)};
    design.held.loads.zoneNumber = 2;
    link(design);
    EXPECT_TRUE(design.ZoneList().empty());
    EXPECT_EQ(design.loads().zoneNumber, 0);
    EXPECT_TRUE(design.isStale());
}

TEST_F(Link, WithTheSameZonesGivesTheDesignsSeriesToTheLoads) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(1)});
    loads.data().activeSeries = "LoadsSeries";
    PlainDesign& design = newDesign();
    design.held.loads.zones = {zone(1)};
    design.held.loads.zoneNumber = 1;
    design.held.loads.activeSeries = "DesignSeries";
    link(design);
    EXPECT_EQ(design.changes, 0);
    EXPECT_EQ(loads.data().activeSeries, "DesignSeries");
    EXPECT_EQ(loads.listsRead, 1);
}

TEST_F(Link, LetsADesignWithoutASeriesTakeTheLoads) {
    PlainLoads& loads = newLoads();
    loads.data().activeSeries = "LoadsSeries";
    PlainDesign& design = newDesign();
    link(design);
    EXPECT_EQ(loads.data().activeSeries, "LoadsSeries");
    EXPECT_EQ(design.held.loads.activeSeries, "LoadsSeries");
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
    loads.edit().information.comments = "of the zones";
    PlainDesign& design = newDesign();
    design.usesHours = false;
    design.held.information.projectName = "School";
    design.held.information.country = "US";
    design.held.information.comments = "of the project";
    design.held.information.currentDate = {2026, 2, 3};
    link(design);
    EXPECT_FALSE(loads.hoursShown);
    EXPECT_EQ(loads.edit().information.projectName, "School");
    EXPECT_EQ(loads.edit().information.country, "US");
    EXPECT_EQ(loads.edit().information.currentDate, (Date{2026, 2, 3}));
    EXPECT_EQ(loads.edit().information.comments, "of the zones");
}

/// Counts the flashes of one lamp.
class LampWatch : public FormObserver {
 public:
    void captionChanged(Form&) override {}
    void settled(Form&) override {}
    void propertyChanged(Control& control, Property property) override {
        if (property == Property::flash && control.name() == "imgLinkLight(0)") ++flashes;
    }
    int flashes = 0;
};

TEST_F(Link, FlashesTheLightsOfBothSidesAndLeavesThemAsTheyAre) {
    PlainLoads& loads = newLoads();
    PlainDesign& design = newDesign();
    LampWatch ofLoads, ofDesign;
    loads.addObserver(&ofLoads);
    design.addObserver(&ofDesign);
    link(design);
    EXPECT_EQ(ofLoads.flashes, 1);
    EXPECT_EQ(ofDesign.flashes, 1);
    EXPECT_FALSE(design.control("imgLinkLight(0)").bold());
}

TEST_F(Link, EndsWithWhicheverSideEndsFirstThoughNobodyIsTold) {
    auto loads = std::make_unique<PlainLoads>("frmZoneManage", main);
    auto design = std::make_unique<PlainDesign>(main, std::int16_t{1});
    design->joinLoads(*loads);
    loads.reset();
    EXPECT_EQ(design->link(), nullptr);
    EXPECT_EQ(design->LoadsHome(), nullptr);

    auto others = std::make_unique<PlainLoads>("frmZoneManage", main);
    design->joinLoads(*others);
    design.reset();
    EXPECT_TRUE(others->links().all().empty());
    EXPECT_EQ(others->links().designLinkID(), 0);
}

}  // namespace
}  // namespace varnholt
