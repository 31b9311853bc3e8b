// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/loads_pieces.h"

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
    return {{bind.text(2881), bind.text(2882), bind.text(2883), bind.text(2884)},
            withoutBrackets(metric ? bind.text(2823) : bind.text(2822))};
}

}  // namespace varnholt
