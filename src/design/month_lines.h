// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "design/secondOpinion/second_opinion_inputs.h"

namespace varnholt {

/// Twelve months as lines of four numbers, tabs between them: cooling energy, heating energy,
/// cooling peak, heating peak.
struct MonthLines {
    MonthsOfModes energy{}, top{};
    std::size_t lines = 0;               ///< how many of the twelve there are
    std::optional<std::size_t> badLine;  ///< the first that is not four numbers, from 1

    bool isWhole() const;
};

/// Reads them from a text, such as the clipboard's. Blank lines are passed over, and so are those
/// beyond twelve; what is below 0 counts as 0, as in the fields.
MonthLines readMonthLines(std::string_view text);

}  // namespace varnholt
