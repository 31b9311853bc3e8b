// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/summary_lines.h"

#include "basis/number_text.h"
#include "forms/quantity.h"

namespace varnholt {
namespace {

/// The columns' widths in characters; those of words stand left.
constexpr const char* columns[] = {"!@@@",   "!@@@@@@@@", "@@",    "@@@@@@", "@@@@@@", "@@@@@@",
                                   "@@@@@@", "@@@@@@@",   "@@@@@", "@@@@@@", "@@@@"};

}  // namespace

std::vector<std::string> summaryCells(const std::string& zoneNumber, const Zone& zone, Mode mode,
                                      UnitSystem units) {
    const auto number = [](double value) { return formatNumber(value, "##0.0"); };
    const auto load = [&](double value) { return number(quantities::load.shown(value, units)); };
    const MiniPump& pump = zone.pump;
    const bool asEer = mode == cooling && units == UnitSystem::english;
    std::vector<std::string> cells{zoneNumber, pump.name, std::to_string(pump.number)};
    for (const ByMode<double>& block : zone.gains) cells.push_back(load(block[mode]));
    cells.push_back(load(pump.capacity[mode]));
    cells.push_back(number(pump.watts[mode]));
    cells.push_back(number(pump.efficiency[mode] * (asEer ? mbtuPerKilowatt : 1)));
    cells.push_back(formatNumber(pump.plf[mode], "#.00"));
    return cells;
}

std::string summaryLine(const std::string& zoneNumber, const Zone& zone, Mode mode,
                        UnitSystem units) {
    std::string line;
    const char* const* column = columns;
    for (const std::string& cell : summaryCells(zoneNumber, zone, mode, units))
        line += formatText(cell, *column++);
    return line;
}

}  // namespace varnholt
