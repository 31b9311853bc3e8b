// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a surface water project: read, shown in both unit systems, calculated, saved and
// read again.
#include <cstddef>
#include <cstdint>

#include "design/frmSWDesign.h"
#include "fuzz_design.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnholt;
    static FuzzedDesign<frmSWDesign> program(DesignKind::surfaceWater);
    program.readShowCalculateSave({reinterpret_cast<const char*>(data), size},
                                  [](frmSWDesign& design) {
                                      design.leave("PIHeaderNumberText(1)");
                                      design.circuitPlan();
                                      design.groundTempCurves();
                                      design.loopCurves();
                                  });
    return 0;
}
