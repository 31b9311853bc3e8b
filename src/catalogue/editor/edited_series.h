// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "catalogue/editor/new_pump.h"
#include "catalogue/fitting/pump_fit.h"
#include "catalogue/fitting/test_points.h"

namespace varnholt {

/// What the editor edits: the pumps of one series, and where a pump is tried.
struct EditedSeries {
    PumpsOfSeries pumps;
    TestInputs test;

    friend bool operator==(const EditedSeries&, const EditedSeries&) = default;
};

/// Which curves the user has left to be fitted again, by the buttons that do it.
struct FitButtons {
    ByMode<bool> rating{};
    std::array<bool, 2> correction{};  ///< by CorrectionKind

    friend bool operator==(const FitButtons&, const FitButtons&) = default;
};

}  // namespace varnholt
