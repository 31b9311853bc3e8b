// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a project: read, shown in both unit systems, calculated, saved and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "../tests/forms/fake_platform.h"
#include "basis/run_time_error.h"
#include "design/frmBHDesign.h"
#include "persistence/design_files.h"

namespace varnholt {
namespace {

/// Two zones with their pumps, so that a calculation meets what the file holds.
std::vector<Zone> loads() {
    std::vector<Zone> zones(2);
    for (Zone& zone : zones) {
        zone.gains = {{{10, 0}, {20, 5}, {15, 8}, {0, 12}}};
        zone.hours = {900, 700};
        zone.pump.capacity = {24, 18};
        zone.pump.watts = {1.8, 1.5};
    }
    return zones;
}

/// One window for all inputs, brought back to the built-in values before each.
struct Program {
    Program() : main(platform, texts, "/nowhere") {
        auto made = std::make_unique<frmBHDesign>(main, main.takeSlot(DesignKind::borehole));
        design = made.get();
        main.open(std::move(made));
        builtIn = projectText(*design);
    }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main;
    frmBHDesign* design = nullptr;
    std::string builtIn;
};

void readShowCalculateSave(std::string_view bytes) {
    static Program program;
    frmBHDesign& design = *program.design;
    readProjectText(program.builtIn, design);
    program.platform.messages.clear();
    try {
        readProjectText(bytes, design);
    } catch (const RunTimeError&) {
        // What was read so far is there, and must do no harm.
    }
    const std::string saved = projectText(design);
    BoreholeProject project = design.project();
    project.loads.zones = loads();
    project.loads.zoneNumber = 2;
    design.setProject(std::move(project));
    design.setUnitLabels();
    design.click("MetricCheck");
    design.showGoverningMode();
    design.CACalculateCommand_Click();
    design.slide("CAHybridSlider", 40);
    design.boreDrawing();
    design.fieldPlan();

    readProjectText(saved, design);
    if (projectText(design) != saved) std::abort();
}

}  // namespace
}  // namespace varnholt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    varnholt::readShowCalculateSave({reinterpret_cast<const char*>(data), size});
    return 0;
}
