// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "forms/shown.h"
#include "loads/pump_choice_fixture.h"

namespace varnholt {

/// A Zone Manager whose steps are undone and redone by the main window's menu.
class LoadsUndo : public PumpChoiceTest {
 protected:
    LoadsUndo() {
        texts.known[1081] = "Undo";
        texts.known[1082] = "Redo";
        main.refreshCommands();
    }
    void undo() { main.click("mnuUndo"); }
    void redo() { main.click("mnuRedo"); }
    std::string undoCaption() const { return main.control("mnuUndo").caption(); }
    bool canUndo() const { return main.control("mnuUndo").enabled(); }
    bool canRedo() const { return main.control("mnuRedo").enabled(); }
    void typeAndLeave(const std::string& field, const std::string& text) {
        window.type(field, text);
        window.leave(field);
    }
    bool saveIsEnabled() const { return enabled(window, "LOSaveCommand"); }

    /// Does it, and proves that it is one step of that name which undo takes back and redo brings
    /// on again, in the document as on display.
    void expectOneStep(const std::string& name, const std::function<void()>& action) {
        SCOPED_TRACE(name);
        const LoadsDocument before = window.document();
        const std::string earlier = undoCaption();
        const ShownControls shownBefore = shownBy(window);
        action();
        const LoadsDocument after = window.document();
        const ShownControls shownAfter = shownBy(window);
        EXPECT_FALSE(after == before);
        EXPECT_EQ(undoCaption(), "Undo " + name);
        undo();
        EXPECT_TRUE(window.document() == before);
        EXPECT_EQ(differences(shownBefore, shownBy(window)), "");
        EXPECT_EQ(undoCaption(), earlier);
        EXPECT_EQ(main.control("mnuRedo").caption(), "Redo " + name);
        redo();
        EXPECT_TRUE(window.document() == after);
        EXPECT_EQ(differences(shownAfter, shownBy(window)), "");
    }
};

}  // namespace varnholt
