// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a horizontal project: read, shown in both unit systems, calculated, saved and read
// again.
#include <cstddef>
#include <cstdint>

#include "design/frmHZDesign.h"
#include "fuzz_design.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnholt;
    static FuzzedDesign<frmHZDesign> program(DesignKind::horizontal);
    program.readShowCalculateSave({reinterpret_cast<const char*>(data), size},
                                  [](frmHZDesign& design) {
                                      design.slide("CAHybridSlider", 40);
                                      design.leave("PASeparationText(1)");
                                      design.trenchDrawing();
                                      design.trenchPlan();
                                      design.groundTempCurves();
                                  });
    return 0;
}
