// SPDX-License-Identifier: GPL-3.0-or-later
// Two hundred steps with a thousand zones take less than 20 MB, whatever the steps change.
#include "forms/counted_heap.h"
#include "loads/undo_fixture.h"

namespace varnholt {
namespace {

constexpr std::size_t mostBytes = 20'000'000;

class UndoMemory : public LoadsUndo {
 protected:
    UndoMemory() {
        std::vector<Zone> thousand(1000);
        double load = 0;
        for (Zone& zone : thousand) {
            load += 0.01;
            zone.gains = peaks(load, load / 2);
            zone.title = "A room with a name that is long";
        }
        saveZoneFile(zoneFile("thousand.zon"), {thousand, {}, "FirstAir"});
        platform.picks.emplace_back(zoneFile("thousand.zon"));
        window.click("LOOpenCommand");
        window.click("LOAutoSelectAllCommand");
        before = heapInUse();
    }
    std::size_t grown() const { return heapInUse() - before; }
    int stepsToUndo() {
        int steps = 0;
        for (; canUndo(); ++steps) undo();
        return steps;
    }

    std::size_t before = 0;
};

TEST_F(UndoMemory, OfTwoHundredFieldsStaysUnderTwentyMegabytes) {
    for (int i = 0; i < 200; ++i) {
        window.choose("LOZoneList", i * 5);
        typeAndLeave("LOGainsText(1)", std::to_string(100 + i));
    }
    EXPECT_LT(grown(), mostBytes);
    // A step is its list of zones, 16 bytes each, one zone, and what holds them.
    EXPECT_LT(grown(), 200 * 24'000U);
    EXPECT_EQ(stepsToUndo(), 200);
}

TEST_F(UndoMemory, OfTwoHundredZonesAddedStaysUnderTwentyMegabytes) {
    for (int i = 0; i < 200; ++i) window.click("LOCopyCommand");
    EXPECT_LT(grown(), mostBytes);
    EXPECT_EQ(stepsToUndo(), 200);
}

TEST_F(UndoMemory, OfStepsThatChangeEveryZoneStaysUnderTwentyMegabytes) {
    for (int i = 0; i < 100; ++i) {
        // Another air temperature, which every zone's pump takes over.
        typeAndLeave("HPLoadInletText(0)", i % 2 == 0 ? "66" : "65");
        window.click("LOAutoSelectAllCommand");
    }
    EXPECT_LT(grown(), mostBytes);
    EXPECT_GT(stepsToUndo(), 40);
}

}  // namespace
}  // namespace varnholt
