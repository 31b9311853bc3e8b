// SPDX-License-Identifier: GPL-3.0-or-later
// What an engineer would look at in the zones, in the user's words and units.
#include "basis/number_text.h"
#include "forms/quantity.h"
#include "forms/text_numbers.h"
#include "loads/modLoads/zone_window.h"
#include "loads/zone_warnings.h"

namespace varnholt {

std::vector<std::string> ZoneWindow::warningsOfZone(std::size_t position) const {
    const Zone& zone = ZoneList()[position];
    const bool metric = units() == UnitSystem::metric;
    const auto load = [&](double value) {
        return formatNumber(quantities::load.shown(value, units()), "###0.0");
    };
    const auto degrees = [&](double value) {
        return formatNumber(quantities::temperature.shown(value, units()), "###0.0");
    };
    const MiniPump& own = zone.pump;
    const pump* model =
        own.customPump == 1 ? nullptr : catalogue.lookUp(own.mfgName, own.seriesName, own.name);
    std::vector<std::string> sentences;
    for (const ZoneWarning& warning : warningsOf(zone, conditions().inletTemp, model)) {
        const std::string mode = text(warning.mode == cooling ? Text::cooling : Text::heating);
        switch (warning.concern) {
            case ZoneWarning::Concern::missingPump:
                sentences.push_back(filledIn(text(Text::warningNoPump), {zone.name}));
                break;
            case ZoneWarning::Concern::capacity:
                sentences.push_back(
                    filledIn(text(Text::warningCapacity),
                             {zone.name, load(warning.figure), mode, load(warning.highest),
                              text(metric ? Text::warningLoadMetric : Text::warningLoadEnglish)}));
                break;
            case ZoneWarning::Concern::inlet:
                sentences.push_back(filledIn(
                    text(Text::warningInlet),
                    {zone.name, degrees(warning.figure), mode, degrees(warning.lowest),
                     degrees(warning.highest),
                     text(metric ? Text::temperatureUnitsMetric : Text::temperatureUnitsEnglish)}));
                break;
        }
    }
    return sentences;
}

}  // namespace varnholt
