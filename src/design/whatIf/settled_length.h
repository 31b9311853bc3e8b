// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include "design/borehole_results.h"
#include "design/whatIf/rolled_zones.h"

namespace varnholt {

/// The length of a mode that no length serves: longer than any.
constexpr double noLength = std::numeric_limits<double>::infinity();

/// A mode's length by the length equation with the penalty that belongs to it.
struct SettledMode {
    double heat = 0;        ///< X, degF ft; of the sign of `difference` where there is a length
    double difference = 0;  ///< of the undisturbed ground to the fluid's mean, degF
    double length = 0;      ///< X/difference, ft; 0 without load, noLength where there is none
};

/// The length at which length and penalty agree, in closed form.
///
/// The heat that stays in the rings does not depend on the length, so the penalty is c/L, c being
/// calcTemperaturePenalty's for 1 ft. Put into the length equation this gives
///
///     L = (1000 N + c) / (Tg - F)
///
/// N the heat of the pulses times their resistances, F the fluid's mean. A length below 0 is 0: the
/// year heals more than the peak needs. A limit on the wrong side of the ground's temperature has
/// no length. Unlike repeated passes it does not depend on how the other mode fares, and it is
/// smooth, so differences of two lengths are true.
///
/// @param penaltyOfOneFoot  c, degF ft
SettledMode settledMode(const modCalculations::LengthTerms& terms, Mode mode,
                        double penaltyOfOneFoot);

/// What a case comes to.
struct CaseFigures {
    ByMode<double> length{};    ///< ft; 0 without load, noLength where there is none
    ByMode<double> entering{};  ///< water entering the units at a given length, degF
    bool computed = true;       ///< the arithmetic came to figures

    double need() const;  ///< the greater of the lengths
    bool hasNeed() const { return need() < noLength; }
    /// The mode that asks for more; heating of equal ones, as on the results page.
    Mode governing() const { return length[cooling] > length[heating] ? cooling : heating; }
};

/// c of settledMode for one bore whose neighbours keep all of the heat, times the bores' length: a
/// field's is this times its weight over its bores.
/// @param annualGroundLoad  MBtu/hr
double penaltyOfLoneFoot(const modCalculations::Soil& soil, double separation, double years,
                         double annualGroundLoad);

/// The length equation's terms of a case; its ground is `soilOfCase`.
modCalculations::LengthTerms termsOfCase(const BoreholeInputs& design, const CaseLoads& loads,
                                         const modCalculations::PulseTimes& pulses,
                                         const CaseFactors& factors);

modCalculations::Soil soilOfCase(const SoilValues& soil, const CaseFactors& factors);

/// A case by the classical method.
/// @param drawnLength  of all bores, for the entering water, ft
/// Throws RunTimeError 6 for a result that is not finite, and as the classical functions do.
CaseFigures classicalFigures(const RolledZones& zones, const BoreholeInputs& design,
                             const CaseFactors& factors, double drawnLength);

}  // namespace varnholt
