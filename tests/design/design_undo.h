// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "borehole_window.h"
#include "forms/shown.h"

namespace varnholt {

/// The design of docs/hand-check.md, whose steps are undone and redone by the main window's menu.
class DesignUndo : public BoreholeWindow {
 public:
    DesignUndo() {
        texts.known.insert({{1081, "Undo"}, {1082, "Redo"}});
        takeZones(handCheckZones());
        typeAndLeave("PAPatternRowsText(0)", "3");
        typeAndLeave("PAPatternRowsText(1)", "2");
        typeAndLeave("EKWPumpPowerText(1)", "2");
        typeAndLeave("EKWPumpPowerText(2)", "0.5");
        // Before a first run the figures are those of the design, and the unit switch shows them.
        inMetric();
        inEnglish();
    }

 protected:
    void undo() { main.click("mnuUndo"); }
    void redo() { main.click("mnuRedo"); }
    std::string undoCaption() const { return main.control("mnuUndo").caption(); }
    bool canUndo() const { return main.control("mnuUndo").enabled(); }
    const std::string& notice() const { return design->control("NoticeLabel").caption(); }

    /// Does it, and proves that it is one step of that name which undo takes back and redo brings
    /// on again, in the project as on display, the stale mark and the notice included.
    void expectOneStep(const std::string& name, const std::function<void()>& action) {
        SCOPED_TRACE(name);
        const BoreholeProject before = design->project();
        const ShownControls shownBefore = shownBy(*design);
        const std::string earlier = undoCaption();
        action();
        const BoreholeProject after = design->project();
        const ShownControls shownAfter = shownBy(*design);
        EXPECT_EQ(undoCaption(), "Undo " + name);
        undo();
        EXPECT_TRUE(design->project() == before);
        EXPECT_EQ(differences(shownBefore, shownBy(*design)), "");
        EXPECT_EQ(undoCaption(), earlier);
        redo();
        EXPECT_TRUE(design->project() == after);
        EXPECT_EQ(differences(shownAfter, shownBy(*design)), "");
    }
};

}  // namespace varnholt
