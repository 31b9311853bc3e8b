// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "../tests/forms/fake_platform.h"
#include "basis/run_time_error.h"
#include "design/ground_design.h"
#include "persistence/design_files.h"

namespace varnholt {

/// Two zones with their pumps, so that a calculation meets what a file holds.
inline std::vector<Zone> fuzzedLoads() {
    std::vector<Zone> zones(2);
    for (Zone& zone : zones) {
        zone.gains = {{{10, 0}, {20, 5}, {15, 8}, {0, 12}}};
        zone.hours = {900, 700};
        zone.pump.capacity = {24, 18};
        zone.pump.watts = {1.8, 1.5};
    }
    return zones;
}

/// One window of a kind of design for all inputs, brought back to the built-in values before each.
template <class Window>
class FuzzedDesign {
 public:
    explicit FuzzedDesign(DesignKind kind) : main_(platform_, texts_, "/nowhere") {
        auto made = std::make_unique<Window>(main_, main_.takeSlot(kind));
        design_ = made.get();
        main_.open(std::move(made));
        builtIn_ = projectText(*design_);
    }

    /// Reads any bytes as a project, shows it in the other unit system, calculates it with loads,
    /// does what is left to do with it, and reads again what it would have saved.
    template <class Then>
    void readShowCalculateSave(std::string_view bytes, Then then) {
        Window& design = *design_;
        readProjectText(builtIn_, design);
        platform_.messages.clear();
        try {
            readProjectText(bytes, design);
        } catch (const RunTimeError&) {
            // What was read so far is there, and must do no harm.
        }
        const std::string saved = projectText(design);
        typename Window::Project project = design.project();
        project.loads.zones = fuzzedLoads();
        project.loads.zoneNumber = 2;
        design.setProject(std::move(project));
        design.setUnitLabels();
        design.click("MetricCheck");
        design.GroundDesign::showGoverningMode();
        design.CACalculateCommand_Click();
        then(design);

        readProjectText(saved, design);
        if (projectText(design) != saved) std::abort();
    }

 private:
    FakePlatform platform_;
    FakeTexts texts_;
    Varnmain main_;
    Window* design_ = nullptr;
    std::string builtIn_;
};

}  // namespace varnholt
