// SPDX-License-Identifier: GPL-3.0-or-later
// Zones from a table on the clipboard, and values for several zones at once.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/feedback.h"
#include "frame/varnmain.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

// The columns of a table of zones.
constexpr std::size_t labelColumn = 0, firstLoad = 1;
constexpr std::size_t loadColumns = 2 * timeBlocks;
constexpr std::size_t firstHours = firstLoad + loadColumns;

using Cells = std::vector<std::string>;

bool hasLoads(const Cells& cells) {
    const std::size_t end = std::min(cells.size(), firstHours);
    for (std::size_t i = firstLoad; i < end; ++i)
        if (readPlainNumber(cells[i])) return true;
    return false;
}

const std::string& cellAt(const Cells& cells, std::size_t column) {
    static const std::string none;
    return column < cells.size() ? cells[column] : none;
}

/// Whether the line has hours for cooling and for heating, and not one figure for both.
bool hasHoursByMode(const Cells& cells) { return cells.size() >= firstHours + 3; }

}  // namespace

/// A zone's loads, hours and days by the ranges of the fields that they would be typed into.
Zone ZoneWindow::zoneOf(Zone zone, const Cells& cells, int& refused) const {
    const auto take = [&](const std::string& field, std::size_t column, const auto& put) {
        const std::string& cell = cellAt(cells, column);
        if (cell.empty()) return;
        const auto found = fields().wouldStore(field, cell);
        if (!found || found->refused) ++refused;
        if (found) put(found->value);
    };
    zone.title = cellAt(cells, labelColumn);
    for (const Mode m : modes)
        for (std::size_t block = 0; block < timeBlocks; ++block)
            take(elementName("LOGainsText", m * timeBlocks + block),
                 firstLoad + m * timeBlocks + block,
                 [&](double value) { zone.gains[block][m] = value; });
    const std::size_t heatingHours = hasHoursByMode(cells) ? firstHours + 1 : firstHours;
    const ByMode<std::size_t> hours{firstHours, heatingHours};
    for (const Mode m : modes)
        take(elementName("LOHoursText", m), hours[m],
             [&](double value) { zone.hours[m] = toInteger(value); });
    take("LODaysperWeekText", heatingHours + 1, [&](double value) { zone.days = value; });
    return zone;
}

ZoneWindow::PastedZones ZoneWindow::pasteZones(const PastedBlock& block) {
    PastedZones pasted;
    std::vector<Zone> made;
    const Zone empty = newZone();
    for (const Cells& cells : block) {
        if (!hasLoads(cells)) continue;
        made.push_back(zoneOf(empty, cells, pasted.refused));
    }
    if (made.empty()) return pasted;
    const auto count = static_cast<std::size_t>(document_.zoneCount);
    if (std::max(ZoneList().size(), count) + made.size() > mostZones) throw RunTimeError(6);
    pasted.zones = static_cast<int>(made.size());
    Zone last = std::move(made.back());
    made.pop_back();
    for (Zone& zone : made) {
        zone.name = nameOfZone(static_cast<std::size_t>(++document_.zoneCount));
        zones().push_back(std::move(zone));
    }
    last.name = nameOfZone(static_cast<std::size_t>(document_.zoneCount) + 1);
    addZone(std::move(last));
    rebuildSummary();
    return pasted;
}

int ZoneWindow::editZones(const std::vector<int>& rows, const ZoneEdits& edits) {
    main().beginAction();
    const int changed = putIntoZones(rows, edits);
    main().endAction({}, {}, false, 0);
    return changed;
}

int ZoneWindow::putIntoZones(const std::vector<int>& rows, const ZoneEdits& edits) {
    const DocumentStep step({this}, text(Text::editZonesTitle));
    int changed = 0, number = 0;
    const auto valueOf = [&](const std::string& field, const std::optional<std::string>& typed) {
        const auto found = typed ? fields().wouldStore(field, *typed) : std::nullopt;
        return found ? std::optional<double>(found->value) : std::nullopt;
    };
    for (const int row : rows) {
        const auto position = static_cast<std::size_t>(row);
        Zone zone = ZoneList()[position];
        for (const Mode m : modes)
            if (const auto hours = valueOf(elementName("LOHoursText", m), edits.hours[m]))
                zone.hours[m] = toInteger(*hours);
        if (const auto days = valueOf("LODaysperWeekText", edits.days)) zone.days = *days;
        if (edits.label) zone.title = *edits.label;
        if (edits.numbered)
            zone.title += (zone.title.empty() ? "" : " ") + std::to_string(++number);
        if (zone == ZoneList()[position]) continue;
        zones().edit(position) = std::move(zone);
        ++changed;
    }
    if (changed == 0) return 0;
    displayZone();
    rebuildSummary();
    markChanged();
    return changed;
}

}  // namespace varnholt
