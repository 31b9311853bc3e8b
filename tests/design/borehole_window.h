// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "design/change_project.h"
#include "design/frmBHDesign.h"
#include "design/install.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"

namespace varnholt {

/// A new borehole design in the main window, worked by its verbs.
class BoreholeWindow : public testing::Test {
 public:
    BoreholeWindow() {
        texts.known.insert({{1001, "Varnholt"},
                            {2150, "%"},
                            {2151, "Calculation Failed!!  iterations="},
                            {2224, "Water"},
                            {2225, "Propylene Glycol"},
                            {2227, "Methanol"}});
        main.start();
        installDesign(main);
        main.click("NewBorehole");
        design = dynamic_cast<frmBHDesign*>(main.activeWindow());
    }

    void type(const std::string& field, const std::string& text) { design->type(field, text); }
    void typeAndLeave(const std::string& field, const std::string& text) {
        design->type(field, text);
        design->leave(field);
    }
    std::string textOf(const std::string& field) const { return design->control(field).text(); }
    std::string captionOf(const std::string& label) const {
        return design->control(label).caption();
    }
    double value(const std::string& name) const {
        return std::get<double>(design->values().read(name));
    }
    void inMetric() { design->switchUnits(UnitSystem::metric); }
    void inEnglish() { design->switchUnits(UnitSystem::english); }
    void calculate() { design->click("CACalculateCommand"); }
    void slide(double percent) { design->slide("CAHybridSlider", percent); }

    void takeZones(const std::vector<Zone>& zones) {
        change(*design, [&](BoreholeProject& project) {
            project.loads.zones = zones;
            project.loads.zoneNumber = static_cast<std::int16_t>(zones.size());
        });
    }

    /// Captions of all labels that a run writes.
    std::vector<std::string> resultCaptions() const {
        std::vector<std::string> captions;
        for (const auto& control : design->controls())
            if (control->kind() == ControlKind::label && control->name().starts_with("CA"))
                captions.push_back(control->name() + "=" + control->caption());
        return captions;
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
    frmBHDesign* design = nullptr;
};

/// The two zones of docs/hand-check.md.
inline std::vector<Zone> handCheckZones() {
    Zone east;
    east.gains = {{{30, 20}, {42, 12}, {36, 14}, {8, 26}}};
    east.hours = {1200, 900};
    east.days = 5;
    east.pump.capacity = {48, 40};
    east.pump.watts = {3.4, 2.9};
    Zone west;
    west.gains = {{{24, 18}, {30, 10}, {40, 12}, {10, 22}}};
    west.hours = {1000, 700};
    west.days = 7;
    west.pump.capacity = {45, 38};
    west.pump.watts = {3.2, 2.7};
    return {east, west};
}

}  // namespace varnholt
