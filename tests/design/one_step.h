// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/shown.h"
#include "frame/varnmain.h"

namespace varnholt {

/// A visit of a field that is one step of its own.
struct FieldStep {
    const char* field;  ///< the control
    const char* typed;
    const char* name;  ///< of the step
};

/// Does it, and proves that it is one step of that name which undo takes back and redo brings on
/// again, in the project as on display, the stale mark and the notice included.
template <class Window>
void expectOneStepIn(Varnmain& main, Window& design, const std::string& name,
                     const std::function<void()>& action) {
    SCOPED_TRACE(name);
    const auto undoCaption = [&main] { return main.control("mnuUndo").caption(); };
    const auto before = design.project();
    const ShownControls shownBefore = shownBy(design);
    const std::string earlier = undoCaption();
    action();
    const auto after = design.project();
    const ShownControls shownAfter = shownBy(design);
    EXPECT_EQ(undoCaption(), "Undo " + name);
    main.click("mnuUndo");
    EXPECT_TRUE(design.project() == before);
    EXPECT_EQ(differences(shownBefore, shownBy(design)), "");
    EXPECT_EQ(undoCaption(), earlier);
    main.click("mnuRedo");
    EXPECT_TRUE(design.project() == after);
    EXPECT_EQ(differences(shownAfter, shownBy(design)), "");
}

/// Proves it of each of these visits: two values typed into a field, which is then left.
template <class Window>
void expectOneStepEach(Varnmain& main, Window& design, const std::vector<FieldStep>& visits) {
    for (const FieldStep& visit : visits) {
        SCOPED_TRACE(visit.field);
        expectOneStepIn(main, design, visit.name, [&design, &visit] {
            design.type(visit.field, "1");
            design.type(visit.field, visit.typed);
            design.leave(visit.field);
        });
    }
}

}  // namespace varnholt
