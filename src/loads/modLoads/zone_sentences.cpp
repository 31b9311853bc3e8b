// SPDX-License-Identifier: GPL-3.0-or-later
// What an engineer would look at in the zones, in the user's words and units.
#include "loads/modLoads/zone_window.h"
#include "loads/zone_warning_texts.h"

namespace varnholt {

std::vector<std::string> ZoneWindow::warningsOfZone(std::size_t position) const {
    const Zone& zone = ZoneList()[position];
    std::vector<std::string> sentences;
    for (const ZoneWarning& warning :
         warningsOf(zone, conditions().inletTemp, modelOf(zone, catalogue)))
        sentences.push_back(sentenceOf(warning, zone, *this));
    return sentences;
}

}  // namespace varnholt
