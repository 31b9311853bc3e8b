// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a borehole project: read, shown in both unit systems, calculated, saved and read
// again.
#include <cstddef>
#include <cstdint>

#include "design/frmBHDesign.h"
#include "fuzz_design.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnholt;
    static FuzzedDesign<frmBHDesign> program(DesignKind::borehole);
    program.readShowCalculateSave({reinterpret_cast<const char*>(data), size},
                                  [](frmBHDesign& design) {
                                      design.slide("CAHybridSlider", 40);
                                      design.boreDrawing();
                                      design.fieldPlan();
                                  });
    return 0;
}
