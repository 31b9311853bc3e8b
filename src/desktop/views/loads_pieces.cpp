// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/loads_pieces.h"

#include "loads/modLoads/chart_sentences.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {

const ZoneWindow* zoneWindowOf(const Binder& bind) {
    return static_cast<const ZoneWindow*>(bind.form());
}

FieldRow headRow(Binder& bind, const char* caption, const char* cooling, const char* heating) {
    FieldRow row = bind.heads(cooling, heating);
    if (caption != nullptr) row.caption = bind.widget(caption);
    return row;
}

LoadsCaptions loadsCaptions(const Binder& bind) {
    const ZoneWindow* window = zoneWindowOf(bind);
    return window == nullptr ? LoadsCaptions() : loadsCaptions(window->units(), window->texts());
}

}  // namespace varnholt
