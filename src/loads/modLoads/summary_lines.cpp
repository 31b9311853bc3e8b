// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/summary_lines.h"

#include "basis/number_text.h"
#include "forms/quantity.h"

namespace varnholt {

std::string summaryLine(const std::string& zoneNumber, const Zone& zone, Mode mode,
                        UnitSystem units) {
    const auto number = [](double value, std::string_view column) {
        return formatText(formatNumber(value, "##0.0"), column);
    };
    const auto load = [&](double value, std::string_view column) {
        return number(quantities::load.shown(value, units), column);
    };
    const MiniPump& pump = zone.pump;
    const bool asEer = mode == cooling && units == UnitSystem::english;
    std::string line = formatText(zoneNumber, "!@@@") + formatText(pump.name, "!@@@@@@@@") +
                       formatText(std::to_string(pump.number), "@@");
    for (const ByMode<double>& block : zone.gains) line += load(block[mode], "@@@@@@");
    line += load(pump.capacity[mode], "@@@@@@@");
    line += number(pump.watts[mode], "@@@@@");
    line += number(pump.efficiency[mode] * (asEer ? mbtuPerKilowatt : 1), "@@@@@@");
    line += formatText(formatNumber(pump.plf[mode], "#.00"), "@@@@");
    return line;
}

}  // namespace varnholt
