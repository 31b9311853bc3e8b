// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "change_project.h"
#include "design/frmSWDesign.h"
#include "design/install.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "surface_water_pond.h"

namespace varnholt {

/// A new surface water design in the main window, worked by its verbs.
class SurfaceWaterWindow : public testing::Test {
 public:
    SurfaceWaterWindow() {
        main.start();
        installDesign(main);
        main.click("NewSurfaceWater");
        design = dynamic_cast<frmSWDesign*>(main.activeWindow());
    }

    void type(const std::string& field, const std::string& text) { design->type(field, text); }
    void typeAndLeave(const std::string& field, const std::string& text) {
        design->type(field, text);
        design->leave(field);
    }
    void choose(const std::string& combo, int entry) { design->choose(combo, entry); }
    std::string textOf(const std::string& field) const { return design->control(field).text(); }
    std::string captionOf(const std::string& label) const {
        return design->control(label).caption();
    }
    int colourOf(const std::string& label) const { return design->control(label).forecolor(); }
    bool isEnabled(const std::string& name) const { return design->control(name).enabled(); }
    double value(const std::string& name) const {
        return std::get<double>(design->values().read(name));
    }
    void inMetric() { design->switchUnits(UnitSystem::metric); }
    void calculate() { design->click("CACalculateCommand"); }

    /// What a run of tests/design/surface_water_pond.h takes, put into the window.
    void take(const SurfaceWaterInputs& pond, const std::vector<Zone>& zones = sampleBuilding()) {
        change(*design, [&](SurfaceWaterProject& project) {
            project.loads.zones = zones;
            project.loads.zoneNumber = static_cast<std::int16_t>(zones.size());
            project.extraPower.extraPower = pond.loads.extraPower;
            project.conditions.inletTemp = pond.loads.inletTemp;
            project.conditions.flowRate = pond.loads.flowRate;
            project.conditions.minflowRate = pond.minimumLoopFlow;
            project.fluid.density = pond.loads.fluid.density;
            project.fluid.specificHeat = pond.loads.fluid.specificHeat;
            project.soil = pond.soil;
            project.loop = pond.loop;
            project.header = pond.header;
            project.water = pond.water;
        });
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
    frmSWDesign* design = nullptr;
};

}  // namespace varnholt
