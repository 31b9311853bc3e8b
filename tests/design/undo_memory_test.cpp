// SPDX-License-Identifier: GPL-3.0-or-later
// Two hundred runs of a design with a thousand zones take less than 20 MB to undo.
#include "design/design_undo.h"
#include "forms/counted_heap.h"

namespace varnholt {
namespace {

class UndoMemory : public DesignUndo {
 protected:
    UndoMemory() {
        std::vector<Zone> thousand;
        for (int i = 0; i < 500; ++i)
            for (const Zone& zone : handCheckZones()) thousand.push_back(zone);
        takeZones(thousand);
        calculate();
        before = heapInUse();
    }
    std::size_t grown() const { return heapInUse() - before; }

    std::size_t before = 0;
};

TEST_F(UndoMemory, OfTwoHundredRunsStaysUnderTwentyMegabytes) {
    for (int i = 1; i <= 200; ++i) slide(1 + i % 90);
    EXPECT_LT(grown(), 20'000'000U);
    int steps = 0;
    for (; canUndo(); ++steps) undo();
    EXPECT_EQ(steps, 200);
}

TEST_F(UndoMemory, OfTwoHundredFieldsIsNextToNothing) {
    for (int i = 1; i <= 200; ++i) typeAndLeave("PATimeText", std::to_string(10 + i % 80));
    // The project and the inputs of its runs, without zones and results, are a few kilobytes.
    EXPECT_LT(grown(), 200 * 8'000U);
}

}  // namespace
}  // namespace varnholt
