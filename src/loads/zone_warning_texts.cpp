// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_warning_texts.h"

#include "basis/number_text.h"
#include "forms/quantity.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "loads/loads_window.h"

namespace varnholt {
namespace {

std::string shownInTenths(const Quantity& quantity, double value, const ChildWindow& window) {
    return formatNumber(quantity.shown(value, window.units()), "###0.0");
}

std::string nameOfMode(Mode mode, const ChildWindow& window) {
    return window.text(mode == cooling ? Text::cooling : Text::heating);
}

std::string degreesOf(const ChildWindow& window) {
    return window.text(window.units() == UnitSystem::metric ? Text::temperatureUnitsMetric
                                                            : Text::temperatureUnitsEnglish);
}

/// The zones of one mode whose pumps' points end before the inlet temperature.
struct ZonesBeyond {
    int count = 0;
    const Zone* first = nullptr;
    ZoneWarning warning{};
};

void countBeyond(const Zone& zone, const std::vector<ZoneWarning>& warnings,
                 ByMode<ZonesBeyond>& beyond) {
    for (const ZoneWarning& warning : warnings) {
        if (warning.concern != ZoneWarning::Concern::inlet) continue;
        ZonesBeyond& of = beyond[warning.mode];
        if (of.count++ == 0) of = {1, &zone, warning};
    }
}

}  // namespace

std::string sentenceOf(const ZoneWarning& warning, const Zone& zone, const ChildWindow& window) {
    const std::string mode = nameOfMode(warning.mode, window);
    switch (warning.concern) {
        case ZoneWarning::Concern::missingPump:
            return filledIn(window.text(Text::warningNoPump), {zone.name});
        case ZoneWarning::Concern::capacity:
            return filledIn(
                window.text(Text::warningCapacity),
                {zone.name, shownInTenths(quantities::load, warning.figure, window), mode,
                 shownInTenths(quantities::load, warning.highest, window),
                 window.text(window.units() == UnitSystem::metric ? Text::warningLoadMetric
                                                                  : Text::warningLoadEnglish)});
        case ZoneWarning::Concern::inlet:
            return filledIn(
                window.text(Text::warningInlet),
                {zone.name, shownInTenths(quantities::temperature, warning.figure, window), mode,
                 shownInTenths(quantities::temperature, warning.lowest, window),
                 shownInTenths(quantities::temperature, warning.highest, window),
                 degreesOf(window)});
    }
    return {};
}

std::vector<std::string> inletSentences(const LoadsWindow& loads, const ByMode<double>& inletTemp,
                                        const ChildWindow& design) {
    ByMode<ZonesBeyond> beyond;
    for (const Zone& zone : loads.ZoneList())
        countBeyond(zone, warningsOf(zone, inletTemp, modelOf(zone, loads.catalogue)), beyond);
    std::vector<std::string> sentences;
    for (const Mode m : modes) {
        const ZonesBeyond& of = beyond[m];
        if (of.count == 1) sentences.push_back(sentenceOf(of.warning, *of.first, design));
        if (of.count > 1)
            sentences.push_back(
                filledIn(design.text(Text::warningInletOfSeveral),
                         {of.first->name, std::to_string(of.count - 1),
                          shownInTenths(quantities::temperature, of.warning.figure, design),
                          nameOfMode(m, design), degreesOf(design)}));
    }
    return sentences;
}

}  // namespace varnholt
