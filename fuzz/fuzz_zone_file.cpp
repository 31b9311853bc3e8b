// SPDX-License-Identifier: GPL-3.0-or-later
// Zone files: any bytes give zones or an error, and what was read whole survives saving.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "basis/run_time_error.h"
#include "loads/ModLoadsIO.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace varnholt;
    const ZoneFileContext context{"Zone", "MakerSeries"};
    LoadsData data;
    try {
        readZones({reinterpret_cast<const char*>(bytes), size}, context, data);
    } catch (const RunTimeError&) {
        return 0;
    }
    LoadsData again;
    readZones(zonesText(data), context, again);
    if (again != data) std::abort();
    return 0;
}
