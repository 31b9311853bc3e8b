// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "design/frmBHDesign.h"
#include "design/install.h"
#include "loads/links.h"
#include "loads/loads_fixture.h"

namespace varnholt {

/// The loads windows and the designs together.
class LoadsAndDesigns : public LoadsTest {
 protected:
    LoadsAndDesigns() {
        texts.known.insert({{1029, "Link"},
                            {1031, "Zone Manager of"},
                            {1032, "Unlink"},
                            {1081, "Undo"},
                            {1082, "Redo"},
                            {1230, "Results are out of date"},
                            {1231, "Calculate"},
                            {2001, "Borehole"},
                            {2930, "Loads"}});
        installLinks(main);
        installDesign(main);
    }
};

/// A Zone Manager with two zones and a borehole design, not linked yet.
class LinkedProject : public LoadsAndDesigns {
 protected:
    LinkedProject() {
        addZone(zones, 38, 24);
        addZone(zones, 38, 24);
        for (const char* field : {"LOGainsText(1)", "LOGainsText(7)"}) zones.leave(field);
        zones.click("LOAutoSelectAllCommand");
    }

    frmBHDesign& newDesign() {
        main.click("NewBorehole");
        return dynamic_cast<frmBHDesign&>(*main.activeWindow());
    }
    void front(ChildWindow& window) { main.activate(window); }
    void linkFrom(ChildWindow& window) {
        front(window);
        main.click("mnuLink");
    }
    void unlinkFrom(ChildWindow& window) {
        front(window);
        main.click("mnuUnlink");
    }
    void undo() { main.click("mnuUndo"); }
    void redo() { main.click("mnuRedo"); }
    void undoIn(ChildWindow& window) {
        front(window);
        undo();
    }
    std::string undoCaption() const { return main.control("mnuUndo").caption(); }
    void expectLinked(const frmBHDesign& of, bool linked) const {
        EXPECT_EQ(of.LoadsHome(), linked ? &zones : nullptr);
        EXPECT_EQ(of.loads().linkType, linked ? "frmZoneManage" : "");
        EXPECT_EQ(of.control("imgLinkLight(0)").visible(), linked);
        EXPECT_EQ(of.control("imgLinkLight(6)").visible(), !linked);
    }
    void expectLoadsNameTheDesign(bool named) const {
        EXPECT_EQ(zones.caption(), named ? "Loads - Zone Manager of Borehole #1" : "Loads");
        EXPECT_EQ(zones.control("imgLinkLight(0)").visible(), named);
    }
    static std::string notice(const ChildWindow& window) {
        return window.control("NoticeLabel").caption();
    }

    frmZoneManage& zones = manager();
    frmBHDesign& design = newDesign();
};

}  // namespace varnholt
