// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/loads_pieces.h"

#include "forms/text_numbers.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {

const ZoneWindow* zoneWindowOf(const Binder& bind) {
    return static_cast<const ZoneWindow*>(bind.form());
}

/// "kW" of "(kW)".
std::string withoutBrackets(const std::string& unit) {
    if (unit.size() < 2 || unit.front() != '(' || unit.back() != ')') return unit;
    return unit.substr(1, unit.size() - 2);
}

FieldRow headRow(Binder& bind, const char* caption, const char* cooling, const char* heating) {
    FieldRow row = bind.heads(cooling, heating);
    if (caption != nullptr) row.caption = bind.widget(caption);
    return row;
}

LoadsCaptions loadsCaptions(const Binder& bind) {
    const ZoneWindow* window = zoneWindowOf(bind);
    if (window == nullptr) return {};
    const bool metric = window->units() == UnitSystem::metric;
    return {{bind.text(Text::summaryEightToNoon), bind.text(Text::summaryNoonToFour),
             bind.text(Text::summaryFourToEight), bind.text(Text::summaryEightToEight)},
            withoutBrackets(metric ? bind.text(Text::loadUnitsMetric)
                                   : bind.text(Text::loadUnitsEnglish))};
}

}  // namespace varnholt
