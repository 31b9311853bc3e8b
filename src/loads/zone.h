// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "basis/mode.h"
#include "catalogue/mini_pump.h"

namespace varnholt {

/// One zone of a building: its design day, its year, its pump.
struct Zone {
    std::array<ByMode<double>, timeBlocks> gains{};  ///< gains[block][mode], MBtu/hr
    ByMode<std::int16_t> hours{};                    ///< equivalent full-load hours a year
    double days = 7;                                 ///< days occupied a week
    std::string name;                                ///< the list's caption, never in a file
    std::string title;                               ///< the user's own label
    MiniPump pump;

    friend bool operator==(const Zone&, const Zone&) = default;
};

}  // namespace varnholt
