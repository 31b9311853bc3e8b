// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of loads: any bytes give a year or remarks. A year has no load below zero, and every line
// that is named is there. The first two bytes choose the columns, so that wrong ones are tried too.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "loads/import/load_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace varnholt;
    if (size < 2) return 0;
    const TableText table(std::string_view(reinterpret_cast<const char*>(bytes) + 2, size - 2));
    const TableFormat format = table.guessedFormat();
    const auto rows = table.rows(format);
    TableChoices choices = guessedChoices(rows, format, TableUnit::kilowatts);
    if (bytes[0] % 4 == 1) choices.coolingColumn = bytes[1] % 8;
    if (bytes[0] % 4 == 2) choices.heatingColumn = bytes[1] % 8;
    if (bytes[0] % 4 == 3) choices.oneSignedColumn = !choices.oneSignedColumn;
    const TableReading reading = readLoads(rows, choices);
    for (const auto* lines : {&reading.without, &reading.blanks, &reading.negative})
        for (const std::size_t line : *lines)
            if (line < 1 || line > table.lines().size()) std::abort();
    if (!reading.years) return 0;
    for (const MonthlyLoads& year : *reading.years)
        for (std::size_t month = 0; month < monthsOfYear; ++month)
            if (!(year.totalLoads[month] >= 0) || !(year.peakLoads[month] >= 0)) std::abort();
    return 0;
}
