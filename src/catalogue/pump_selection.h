// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "catalogue/pump_evaluation.h"

namespace varnholt {

/// The index that stands for "no model".
constexpr std::size_t noPump = 10000;
/// As many models of a series can be searched.
constexpr std::size_t selectableModels = 101;
/// As many units of a model are tried for a zone.
constexpr std::int16_t mostUnits = 100;

/// The outcome of a search.
struct PumpSelection {
    std::size_t index = noPump;       ///< in the order of the series' file
    std::int16_t number = mostUnits;  ///< units of it
    ByMode<double> elt{};             ///< load-side entering temperatures it was searched for

    friend bool operator==(const PumpSelection&, const PumpSelection&) = default;
};

/// The model of a series that a zone needs fewest units of, and among equals the first of the
/// file. A model fits when it strictly exceeds the peak in both modes; a mode without load counts
/// as one with a peak of 1 MBtu/hr. The load-side flow plays no part. Throws RunTimeError 9 for a
/// series of more than 101 models, 11 for a model whose catalogue flows are equal.
PumpSelection AutoFindBestPump(std::span<const pump> models, const Gains& gains,
                               const EvaluationConditions& conditions);

/// AutoFindBestPump, and the model found in the zone, at its nominal load flow. While
/// `conditions.updating`, the temporary load flow is carried on when the model is still the one
/// of that name. Throws RunTimeError 9 when no model fits, and as AutoFindBestPump and
/// evaluatePump do; the caller's zone is then as it was.
MiniPump autoSelectPump(std::span<const pump> models, const Gains& gains, const MiniPump& current,
                        EvaluationConditions conditions);

}  // namespace varnholt
