// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/month_pictures.h"

#include <algorithm>

#include "basis/number_text.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {

std::string describe(const MonthsChart& year, const Texts& texts) {
    if (year.empty()) return texts.text(Text::monthsPictureEmpty);
    const auto figure = [](double value) { return formatNumber(value, "###0.0"); };
    const double largest =
        std::max(0.0, *std::max_element(year.energies.begin(), year.energies.end()));
    const std::size_t peak = year.peakMonth.value_or(greatestMonth(year.peaks));
    return filledIn(texts.text(Text::monthsPicture),
                    {texts.text(year.mode == cooling ? Text::cooling : Text::heating),
                     figure(largest), year.energyUnit, year.names[greatestMonth(year.energies)],
                     figure(year.peaks[peak]), year.peakUnit, year.names[peak]});
}

}  // namespace varnholt
