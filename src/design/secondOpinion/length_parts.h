// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>

#include "design/secondOpinion/field_sizing.h"
#include "design/secondOpinion/second_opinion.h"

namespace varnholt::secondOpinion {

/// Ends of the three pulses of the classical method, counted back from the end of the design day,
/// hr: of the annual, the monthly and the short one.
std::array<double, 3> threePulseHours(const FieldTerms& terms);

/// The length that the three pulses of the classical method ask for when their ground resistances
/// come from a g-function and no penalty is put on the ground's temperature, ft.
/// Equation: L = 1000 (qa (g0 - g1) + Qs (PLF (g1 - g2) + Fsc g2 + 2 pi k Rb)) / (2 pi k (Tg - F)),
/// Qs being the peak as the ground gives it.
/// @param g  at the threePulseHours
double threePulseLength(const FieldTerms& terms, Mode mode, const std::array<double, 3>& g);

/// What the parts are parts of.
struct LengthsToPart {
    double secondOpinion = 0;  ///< ft
    double classical = 0;      ///< ft
    double bores = 1;
    /// CylinderSource::overLine at the threePulseHours.
    std::array<double, 3> cylinder{};
    /// The second opinion has the cylinder in its g-functions.
    bool withCylinder = false;
};

struct PartedLengths {
    bool waiting = false;  ///< for a g-function that the memory has to compute first
    std::optional<LengthParts> parts;
};

/// Takes the difference between the two lengths apart. The three pulses by g-functions stand
/// between them, each length with the g-function of its own depth: first with the cylinder for the
/// short pulse, as the classical method has it, then with a line.
PartedLengths partLengths(GFunctionMemory& memory, const FieldTerms& terms, Mode mode,
                          const LengthsToPart& lengths);

}  // namespace varnholt::secondOpinion
