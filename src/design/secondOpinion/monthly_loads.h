// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "basis/mode.h"
#include "design/borehole_results.h"
#include "design/secondOpinion/second_opinion_inputs.h"
#include "design/secondOpinion/year_shape.h"

namespace varnholt::secondOpinion {

/// What the zones amount to for the ground, in the figures of the classical run.
struct ZonesYear {
    ByMode<double> energy{};      ///< into (cooling) and out of the ground, MBtu a year
    ByMode<double> designPeak{};  ///< into and out of the ground, not below 0, MBtu/hr
    ByMode<double> meanLimit{};   ///< of the fluid, mean of inlet and outlet, degF
    ByMode<double> inletTemp{}, outletTemp{};  ///< of the heat pump units, degF
    ByMode<double> partLoadFactor{};           ///< of the design month
    double annualGroundLoad = 0;               ///< MBtu/hr; 8760 of it are the energies' difference
    double shortCircuitFactor = 1;
    double pulseHours = 0;  ///< of the classical short pulse
    bool hasLoad = false;   ///< some mode has

    friend bool operator==(const ZonesYear&, const ZonesYear&) = default;
};

/// The zones rolled up with the functions of the classical run. With a tower the cooling is what it
/// leaves for the ground.
/// Throws RunTimeError as the classical run does.
ZonesYear rollUpZones(const BoreholeInputs& inputs);

/// Share that the greatest month of a standard year has when its mean is the design month's.
double wantedShare(const ZonesYear& zones, Mode mode);

/// Heat that the ground gives over the months of every year, MBtu/hr; positive when it is taken
/// out.
struct GroundYear {
    std::array<double, 12> mean{};
    MonthsOfModes peak{};  ///< into (cooling) and out of the ground, no less than the mean
    /// The month has a peak of the mode that a field is sized for.
    std::array<ByMode<bool>, 12> counts{};

    bool hasMonths(Mode mode) const;
};

GroundYear groundYearOf(const ZonesYear& zones, const ByMode<YearOfMode>& shape);

/// By how much the mean heat of month n (1, 2, ...) differs from that of the month before it,
/// summed over the months up to `months` with a g-function counted back from each of their ends.
/// Equation: drift(n) = sum over j to n of (mean(j) - mean(j-1)) g(n - j + 1), mean(0) = 0.
/// The differences repeat from the second year on, so that a month adds one year to the month
/// twelve before it.
/// @param g  element n after n + 1 months, no fewer than `months`
std::vector<double> monthlyDrift(const std::array<double, 12>& mean, const std::vector<double>& g,
                                 std::size_t months);

}  // namespace varnholt::secondOpinion
