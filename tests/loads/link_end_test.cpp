// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/text_numbers/feedback.h"
#include "loads/link_fixture.h"

namespace varnholt {
namespace {

class LinkEnd : public LinkTest {
 protected:
    void expectUnlinked(const LinkedDesign& design) {
        EXPECT_EQ(design.loads().linkType, "");
        EXPECT_EQ(design.LoadsHome(), nullptr);
        EXPECT_FALSE(design.control("imgLinkLight(0)").visible());
        EXPECT_TRUE(design.control("imgLinkLight(6)").visible());
    }
    void expectPlain(const PlainLoads& loads) {
        EXPECT_EQ(loads.links().designLinkID(), 0);
        EXPECT_EQ(loads.caption(), loads.plainTitle());
        EXPECT_FALSE(loads.control("imgLinkLight(0)").visible());
        EXPECT_TRUE(loads.control("imgLinkLight(6)").visible());
    }
};

TEST_F(LinkEnd, FromTheDesign) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(3)});
    PlainDesign& design = newDesign();
    link(design);
    texts.known[Text::linkEnded] = "The link has ended.";
    main.click("mnuUnlink");
    EXPECT_EQ(platform.told.back(), "The link has ended.");
    expectUnlinked(design);
    expectPlain(loads);
    // The design keeps its copy.
    EXPECT_EQ(design.loads().zoneNumber, 1);
}

TEST_F(LinkEnd, BringsBackWhatTheDesignsMethodHadNoUseFor) {
    PlainLoads& loads = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    second.usesHours = false;
    link(second);
    ASSERT_FALSE(loads.hoursShown);
    main.click("mnuUnlink");  // the first is still linked, and uses them
    EXPECT_TRUE(loads.hoursShown);
    link(second);
    first.leaveLoads();
    EXPECT_FALSE(loads.hoursShown);
    second.leaveLoads();
    EXPECT_TRUE(loads.hoursShown);
}

TEST_F(LinkEnd, FromTheLoadsWindowForAllItsDesigns) {
    PlainLoads& loads = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    link(second);
    main.activate(loads);
    main.click("mnuUnlink");
    expectUnlinked(first);
    expectUnlinked(second);
    expectPlain(loads);
}

TEST_F(LinkEnd, OfAnUnlinkedWindowDoesNothing) {
    PlainLoads& loads = newLoads();
    PlainDesign& linked = newDesign();
    link(linked);
    newDesign();
    main.click("mnuUnlink");
    EXPECT_EQ(linked.LoadsHome(), &loads);
}

TEST_F(LinkEnd, OfOneOfTwoDesignsLeavesTheOthersLinkLit) {
    PlainLoads& loads = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    link(second);
    main.activate(second);
    main.click("mnuUnlink");
    expectUnlinked(second);
    EXPECT_EQ(first.LoadsHome(), &loads);
    EXPECT_TRUE(loads.control("imgLinkLight(0)").visible());
    // The window serves the first design again, by name and number.
    EXPECT_TRUE(first.link()->isNamed());
    EXPECT_EQ(loads.links().designLinkID(), first.myID);
}

TEST_F(LinkEnd, ClosingTheLoadsWindowLeavesTheDesignsZonesAndResultsUntouched) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(3), zone(4)});
    PlainDesign& design = newDesign();
    link(design);
    design.calculationDone();
    const SharedZones before = design.ZoneList();
    const int changes = design.changes;
    ASSERT_TRUE(main.close(loads));
    expectUnlinked(design);
    EXPECT_EQ(design.ZoneList(), before);
    EXPECT_EQ(design.loads().zoneNumber, 2);
    EXPECT_EQ(design.changes, changes);
    EXPECT_FALSE(design.isStale());
    // Nothing that the design does later reaches for the window.
    design.TransferLoadsVariablesIn();
    design.switchUnits(UnitSystem::metric);
    main.activate(design);
    EXPECT_EQ(design.units(), UnitSystem::metric);
}

TEST_F(LinkEnd, ClosingTheLoadsWindowUnlinksAllItsDesignsAndNoOther) {
    PlainLoads& zones = newLoads();
    PlainDesign& first = newDesign();
    link(first);
    PlainDesign& second = newDesign();
    link(second);
    PlainLoads& block = newLoads("frmAvgBlock");
    PlainDesign& third = newDesign();
    link(block);
    ASSERT_EQ(third.LoadsHome(), &block);
    main.close(zones);
    expectUnlinked(first);
    expectUnlinked(second);
    EXPECT_EQ(third.LoadsHome(), &block);
}

TEST_F(LinkEnd, ClosingTheDesignLeavesTheLoadsWindowPlain) {
    PlainLoads& loads = newLoads();
    loads.setZones({zone(3)});
    PlainDesign& design = newDesign();
    link(design);
    ASSERT_TRUE(main.close(design));
    expectPlain(loads);
    EXPECT_EQ(loads.zoneNumber(), 1);
    // The loads window can be linked anew.
    PlainDesign& next = newDesign();
    link(loads);
    EXPECT_EQ(next.LoadsHome(), &loads);
}

class LinkUnits : public LinkTest {
 protected:
    LinkUnits() : loads(newLoads()), first(newDesign()) { link(first); }
    PlainLoads& loads;
    PlainDesign& first;
};

TEST_F(LinkUnits, FollowFromTheDesignToTheLoads) {
    first.switchUnits(UnitSystem::metric);
    EXPECT_EQ(loads.units(), UnitSystem::metric);
    EXPECT_TRUE(first.link()->isNamed());
}

TEST_F(LinkUnits, FollowFromTheLoadsToEveryDesignLinkedToThem) {
    PlainDesign& second = newDesign();
    link(second);
    PlainDesign& stranger = newDesign();
    loads.switchUnits(UnitSystem::metric);
    EXPECT_EQ(first.units(), UnitSystem::metric);
    EXPECT_EQ(second.units(), UnitSystem::metric);
    EXPECT_EQ(stranger.units(), UnitSystem::english);
}

TEST_F(LinkUnits, GoBackInADesignThatTheLoadsTitleDoesNotName) {
    PlainDesign& second = newDesign();
    link(second);
    first.switchUnits(UnitSystem::metric);
    EXPECT_EQ(first.units(), UnitSystem::english);
    EXPECT_EQ(loads.units(), UnitSystem::english);
}

TEST_F(LinkUnits, AreFreeAgainAfterTheLink) {
    first.leaveLoads();
    first.switchUnits(UnitSystem::metric);
    EXPECT_EQ(loads.units(), UnitSystem::english);
    loads.switchUnits(UnitSystem::metric);
    loads.switchUnits(UnitSystem::english);
    EXPECT_EQ(first.units(), UnitSystem::metric);
}

}  // namespace
}  // namespace varnholt
