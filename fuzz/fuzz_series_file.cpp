// SPDX-License-Identifier: GPL-3.0-or-later
// Series files: any bytes give models or an error, whatever models there are can be searched and
// evaluated, and what was read whole survives writing.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "basis/run_time_error.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/pump_selection.h"

namespace {

using namespace varnholt;

void selectFrom(const std::vector<pump>& models) {
    const Gains gains{{{20, 5}, {30, 0}, {10, 10}, {0, 25}}};
    try {
        autoSelectPump(models, gains, {}, {});
    } catch (const RunTimeError&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    PumpSeries series;
    bool whole = true;
    try {
        readPumpSeries({reinterpret_cast<const char*>(bytes), size}, series);
    } catch (const RunTimeError&) {
        whole = false;
    }
    selectFrom(series.models);
    if (!whole) return 0;
    PumpSeries again;
    readPumpSeries(pumpSeriesText(series), again);
    if (again != series) std::abort();
    return 0;
}
