// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "desktop/desk.h"
#include "loads/ModLoadsIO.h"
#include "painted.h"
#include "persistence/project_commands.h"

namespace varnholt {

/// The program with its windows, and a project on the disk that is linked to so many zones.
class LinkedProject {
 public:
    explicit LinkedProject(std::int64_t zones) {
        std::vector<Zone> rooms(static_cast<std::size_t>(zones));
        double load = 0;
        for (Zone& zone : rooms) {
            zone.gains[1][cooling] = load += 1.5;
            zone.gains[3][heating] = load / 2;
            zone.title = "A room with a name";
            zone.pump.capacity = {load, load};
            zone.pump.watts = {load / 12, load / 14};
        }
        LoadsData data;
        data.zones = rooms;
        saveZoneFile(desk.folder() + "/work files/zones.zon", data);
        makeProject();
    }

    void open() {
        openProjectFile(desk.main(), project());
        Painted design(*desk.shelf.frameOf(window("frmBHDesign")));
        Painted loads(*desk.shelf.frameOf(window("frmZoneManage")));
        design.wait();
    }
    void closeAll() {
        while (!desk.main().windows().empty()) desk.main().close(*desk.main().windows().back());
        Desk::settle();
    }
    ChildWindow& window(const char* name) { return *desk.main().find(name); }
    QWidget& widget(const char* form, const char* control) {
        return *desk.shelf.windowOf(window(form))->binder().widget(control);
    }

    Desk desk;

 private:
    std::string project() const { return desk.folder() + "/work files/project.vht"; }

    /// A design, linked with the zones and saved by its commands.
    void makeProject() {
        desk.main().click("NewBorehole");
        openZoneFile(desk.main(), desk.folder() + "/work files/zones.zon");
        desk.main().activate(window("frmBHDesign"));
        desk.main().click("mnuLink");
        desk.platform.picks = {project()};
        desk.main().click("mnuFileSave");
        closeAll();
    }
};

}  // namespace varnholt
