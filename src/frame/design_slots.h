// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace varnholt {

enum class DesignKind : std::size_t { borehole = 0, horizontal = 1, surfaceWater = 2 };

constexpr std::array<DesignKind, 3> designKinds{DesignKind::borehole, DesignKind::horizontal,
                                                DesignKind::surfaceWater};
constexpr std::size_t slotsPerKind = 50;

/// The numbered places of one kind's design windows, 1 to 50, with the files they hold.
struct DesignSlots {
    std::array<bool, slotsPerKind + 1> exists{};        ///< element 0 is not used
    std::array<std::string, slotsPerKind + 1> files{};  ///< empty for a project without a file
    std::int16_t marker = 0;                            ///< the slot being handled

    std::size_t highestUsed() const;
    std::size_t count() const;
};

}  // namespace varnholt
