// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/link_fixture.h"

namespace varnholt {
namespace {

class LoadsTransfer : public LinkTest {
 protected:
    LoadsTransfer() : loads(newLoads()) {
        loads.setZones({zone(10), zone(20)});
        design = &newDesign();
        link(*design);
        design->changes = 0;
        design->calculationDone();
    }

    PlainLoads& loads;
    PlainDesign* design = nullptr;
};

TEST_F(LoadsTransfer, OfUnchangedLoadsChangesNothing) {
    // The name is only the place in the list.
    loads.data().zones.edit(0).name = "another name";
    loads.data().conditions.flowRate = 99;
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(design->changes, 0);
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(design->held.conditions.flowRate, 3);
}

TEST_F(LoadsTransfer, SeesAChangeOfAnyOneValue) {
    using Change = void (*)(Zone&);
    const Change changes[] = {
        [](Zone& z) { z.gains[3][heating] += 1; },
        [](Zone& z) { z.hours[heating] = 5; },
        [](Zone& z) { z.days = 5; },
        [](Zone& z) { z.title = "t"; },
        [](Zone& z) { z.pump.efficiency[0] = 4; },
        [](Zone& z) { z.pump.watts[1] = 4; },
        [](Zone& z) { z.pump.capacity[0] = 4; },
        [](Zone& z) { z.pump.flowRate[1] = 4; },
        [](Zone& z) { z.pump.plf[0] = 4; },
        [](Zone& z) { z.pump.elt[1] = 4; },
        [](Zone& z) { z.pump.elf[0] = 4; },
        [](Zone& z) { z.pump.number = 4; },
        [](Zone& z) { z.pump.nominalFlow = 4; },
        [](Zone& z) { z.pump.mfgName = "m"; },
        [](Zone& z) { z.pump.seriesName = "s"; },
        [](Zone& z) { z.pump.name = "n"; },
        [](Zone& z) { z.pump.pumpType = 1; },
        [](Zone& z) { z.pump.customPump = 0; },
    };
    int done = 0;
    for (const Change change : changes) {
        SCOPED_TRACE(done);
        change(loads.data().zones.edit(1));
        design->TransferLoadsVariablesIn();
        EXPECT_EQ(design->changes, ++done);
        EXPECT_TRUE(design->isStale());
        design->calculationDone();
    }
}

TEST_F(LoadsTransfer, CountsADifferentNumberOfZonesAsChangedThoughTheOthersAgree) {
    loads.setZones({zone(10), zone(20), zone(0)});
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(design->changes, 1);
    EXPECT_EQ(design->loads().zoneNumber, 3);
    loads.setZones({zone(10)});
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(design->changes, 2);
    EXPECT_EQ(design->loads().zoneNumber, 1);
}

TEST_F(LoadsTransfer, CopiesByValue) {
    loads.data().zones.edit(0).gains[0][cooling] = 77;
    EXPECT_EQ(design->ZoneList()[0].gains[0][cooling], 0);
}

TEST_F(LoadsTransfer, KeepsTheLoadsSaveState) {
    for (const bool unsaved : {true, false}) {
        loads.unsaved = unsaved;
        loads.data().zones.edit(0).days -= 1;
        design->TransferLoadsVariablesIn();
        EXPECT_EQ(loads.unsaved, unsaved);
    }
}

TEST_F(LoadsTransfer, RunsWhenTheDesignComesToTheFrontAndTheLoadsHaveChanges) {
    main.activate(loads);
    loads.data().zones.edit(0).days = 1;
    loads.unsaved = true;
    main.activate(*design);
    EXPECT_EQ(design->changes, 1);
    EXPECT_EQ(design->ZoneList()[0].days, 1);
}

TEST_F(LoadsTransfer, RunsWhenTheDesignComesToTheFrontAfterTheLoadsWereSaved) {
    main.activate(loads);
    loads.data().zones.edit(0).days = 1;
    loads.unsaved = true;
    loads.LOSaveCommand_Click();
    main.activate(*design);
    EXPECT_EQ(design->changes, 1);
    EXPECT_EQ(design->ZoneList()[0].days, 1);
    EXPECT_TRUE(design->isStale());
}

TEST_F(LoadsTransfer, TakesLoadsThatWereClearedWhenTheDesignComesToTheFront) {
    main.activate(loads);
    loads.setZones({});
    main.activate(*design);
    EXPECT_EQ(design->changes, 1);
    EXPECT_EQ(design->loads().zoneNumber, 0);
}

TEST_F(LoadsTransfer, StaysAwayFromTheFrontWhileTheLoadsAreTheSame) {
    main.activate(loads);
    loads.data().conditions.flowRate = 99;
    main.activate(*design);
    EXPECT_EQ(design->changes, 0);
    EXPECT_FALSE(design->isStale());
    EXPECT_EQ(design->held.conditions.flowRate, 3);
}

TEST_F(LoadsTransfer, StaysAwayFromADesignThatTheLoadsTitleDoesNotName) {
    PlainDesign& second = newDesign();
    link(second);
    loads.data().zones.edit(0).days = 1;
    loads.unsaved = true;
    main.activate(*design);
    EXPECT_EQ(design->changes, 0);
    // A calculation takes the current loads all the same, and the window then belongs to it.
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(design->changes, 1);
    EXPECT_EQ(loads.links().designLinkID(), design->myID);
}

TEST_F(LoadsTransfer, OutReplacesTheLoads) {
    design->held.loads.zones = {zone(7)};
    design->held.loads.zoneNumber = 1;
    design->held.loads.activeSeries = "Mine";
    design->held.conditions.flowRate = 2;
    design->held.conditions.inletTemp = {90, 40};
    design->held.loads.file.name = "mine.zon";
    design->held.loads.file.folder = "/mine";
    design->held.loads.file.exists = true;
    design->held.information.city = "Stillwater";
    design->TransferLoadsVariablesOut();
    ASSERT_EQ(loads.ZoneList().size(), 1u);
    EXPECT_EQ(loads.ZoneList()[0].gains[1][cooling], 7);
    EXPECT_EQ(loads.data().activeSeries, "Mine");
    EXPECT_EQ(loads.data().conditions.flowRate, 2);
    EXPECT_EQ(loads.data().conditions.inletTemp, (ByMode<double>{90, 40}));
    EXPECT_EQ(loads.edit().file.name, "mine.zon");
    EXPECT_EQ(loads.edit().file.folder, "/mine");
    EXPECT_TRUE(loads.edit().file.exists);
    EXPECT_EQ(loads.edit().information.city, "Stillwater");
}

TEST_F(LoadsTransfer, OutFirstHandsPendingChangesToTheDesignThatReadLast) {
    PlainDesign& second = newDesign();
    link(second);
    loads.data().zones.edit(0).days = 2;
    loads.unsaved = true;
    ASSERT_EQ(loads.links().designLinkID(), second.myID);
    design->TransferLoadsVariablesOut();
    EXPECT_EQ(second.ZoneList()[0].days, 2);
    EXPECT_EQ(loads.ZoneList()[0].days, 7);
    EXPECT_EQ(loads.links().designLinkID(), design->myID);
}

TEST_F(LoadsTransfer, CallReachesTheDesignWithTheNumber) {
    loads.data().zones.edit(0).days = 2;
    TransferCall(main, 0);
    EXPECT_EQ(design->changes, 0);
    TransferCall(main, design->myID);
    EXPECT_EQ(design->changes, 1);
}

TEST_F(LoadsTransfer, PassesAChangedTemperatureAndSelectsPumpsAgainOnLeaving) {
    design->held.conditions.inletTemp[heating] = 44;
    design->passTemperature(heating);
    EXPECT_EQ(loads.data().conditions.inletTemp, (ByMode<double>{85, 44}));
    EXPECT_EQ(loads.fluidsShown, 1);
    EXPECT_EQ(loads.pumpsUpdated, 0);
    design->refreshLoadsPumps();
    EXPECT_EQ(loads.pumpsUpdated, 1);
}

TEST_F(LoadsTransfer, PassesAChangedFlow) {
    design->held.conditions.flowRate = 2.25;
    design->passFlow();
    design->refreshLoadsPumps();
    EXPECT_EQ(loads.data().conditions.flowRate, 2.25);
    EXPECT_EQ(loads.fluidsShown, 1);
    EXPECT_EQ(loads.pumpsUpdated, 1);
}

TEST_F(LoadsTransfer, LeavesPumpsAloneThatAreBeingSelectedOrWhenNothingChanged) {
    design->passFlow();
    design->refreshLoadsPumps();
    EXPECT_EQ(loads.pumpsUpdated, 0);
    loads.selectingPump = true;
    design->held.conditions.flowRate = 2;
    design->passFlow();
    design->refreshLoadsPumps();
    EXPECT_EQ(loads.pumpsUpdated, 0);
}

TEST_F(LoadsTransfer, WithoutALinkDoesNothing) {
    design->leaveLoads();
    loads.data().zones.edit(0).days = 2;
    design->held.conditions.flowRate = 2;
    design->TransferLoadsVariablesIn();
    design->TransferLoadsVariablesOut();
    design->passFlow();
    design->passTemperature(cooling);
    design->refreshLoadsPumps();
    EXPECT_EQ(design->changes, 0);
    EXPECT_EQ(loads.data().conditions.flowRate, 3);
}

}  // namespace
}  // namespace varnholt
