// SPDX-License-Identifier: GPL-3.0-or-later
// A table of 8,760 hours from its bytes to twelve months. Budget: 10 ms.
#include <benchmark/benchmark.h>

#include <string>

#include "basis/file_system.h"
#include "loads/import/load_table.h"

namespace varnholt {
namespace {

void hoursOfAYear(benchmark::State& state) {
    const std::string bytes = readWholeFile(VARNHOLT_SOURCE_DIR "/examples/small-office.csv");
    for (auto _ : state) {
        const TableText table(bytes);
        const TableFormat format = table.guessedFormat();
        const auto rows = table.rows(format);
        const TableReading reading =
            readLoads(rows, guessedChoices(rows, format, TableUnit::kilowatts));
        if (!reading.years) state.SkipWithError("no year was read");
        benchmark::DoNotOptimize(reading);
    }
}
BENCHMARK(hoursOfAYear)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
