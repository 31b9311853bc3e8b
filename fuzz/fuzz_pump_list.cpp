// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue's index: any bytes give manufacturers or an error, and what was read whole
// survives writing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "basis/run_time_error.h"
#include "catalogue/ModPumpsIO.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace varnholt;
    std::vector<PumpList> manufacturers;
    try {
        readPumpIndex({reinterpret_cast<const char*>(bytes), size}, manufacturers);
    } catch (const RunTimeError&) {
        return 0;
    }
    std::vector<PumpList> again;
    readPumpIndex(pumpIndexText(manufacturers), again);
    if (again != manufacturers) std::abort();
    return 0;
}
