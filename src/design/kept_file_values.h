// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "basis/mode.h"

namespace varnholt {

/// Numbers that stand in every borehole file and mean nothing to any rule. They are kept as they
/// were read, so that a project saved again is the same file.
struct KeptFileValues {
    struct OfMode {
        std::int16_t flag = 1;
        double first = 0, second = 0;
        friend bool operator==(const OfMode&, const OfMode&) = default;
    };
    struct OfResult {
        double first = 1, second = 0, third = 0;
        friend bool operator==(const OfResult&, const OfResult&) = default;
    };

    ByMode<OfMode> inputs;
    std::array<double, 3> site{1.9, 100, 0};
    ByMode<OfResult> results;

    friend bool operator==(const KeptFileValues&, const KeptFileValues&) = default;
};

}  // namespace varnholt
