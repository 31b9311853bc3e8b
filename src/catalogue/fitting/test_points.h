// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/pump.h"

namespace varnholt {

/// Where a model is tried, by mode; English units.
struct TestInputs {
    ByMode<double> sourceTemperature{55, 55};  ///< entering water, degF
    ByMode<double> sourceFlow{};               ///< gpm
    ByMode<double> loadTemperature{67, 70};    ///< entering air or water, degF
    ByMode<double> loadFlow{};                 ///< cfm or gpm; 0: no correction

    friend bool operator==(const TestInputs&, const TestInputs&) = default;
};

/// What it does there.
struct TestResults {
    ByMode<double> capacity{};  ///< MBtu/hr
    ByMode<double> power{};     ///< kW
    ByMode<double> COP{};       ///< 0 without power

    friend bool operator==(const TestResults&, const TestResults&) = default;
};

/// Evaluates the finished model as the editor does: curve over the source's temperature, times the
/// correction by the load's temperature, times that by its flow in percent of nominal, and along a
/// straight line from the first source flow to the second, beyond them without limit. Both modes
/// take the flow pair of the fourth row of the table.
/// Throws RunTimeError 11 where both source flows are equal and not zero, 6 where a number
/// overflows.
TestResults EvaluateTestPoints(const pump& model, const TestInputs& inputs);

/// Load-side temperatures at which a model of this type is tried first, degF.
ByMode<double> firstLoadTemperatures(std::int16_t pumpType);

}  // namespace varnholt
