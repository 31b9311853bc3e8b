// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "borehole_window.h"
#include "design/one_step.h"

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

    void expectOneStep(const std::string& name, const std::function<void()>& action) {
        expectOneStepIn(main, *design, name, action);
    }
};

}  // namespace varnholt
