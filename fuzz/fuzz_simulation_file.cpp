// SPDX-License-Identifier: GPL-3.0-or-later
// Simulation files: any bytes give two loads or an error; the loads survive being written in the
// layout again, and a zone takes them whole or not at all.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "loads/import/simulation_file.h"

namespace {

std::string group(const varnholt::Months& months, double year) {
    std::string line;
    for (const double month : months) line += varnholt::shortestText(month) + ",";
    return line + varnholt::shortestText(year) + "\r\n";
}

std::string textOf(const varnholt::SimulationFile& file) {
    std::string text = "\"energy\"\r\n";
    for (const auto& load : file.loads) text += group(load.energy, load.yearEnergy);
    text += "\"peaks\"\r\n";
    for (const auto& load : file.loads) text += group(load.peaks, load.yearPeak);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace varnholt;
    SimulationFile file;
    try {
        file = readSimulation({reinterpret_cast<const char*>(bytes), size});
    } catch (const RunTimeError&) {
        return 0;
    }
    if (!(readSimulation(textOf(file)) == file)) std::abort();
    Zone zone;
    try {
        importInto(zone, heatingFirst(file));
    } catch (const RunTimeError&) {
        if (!(zone == Zone())) std::abort();
    }
    return 0;
}
