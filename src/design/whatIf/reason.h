// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "design/secondOpinion/second_opinion.h"
#include "design/whatIf/rolled_zones.h"

namespace varnholt {

/// What a figure of a sentence is, so that it can be told in the window's units.
enum class FigureKind { count, feet, fahrenheit };

/// A figure that stands in a sentence, in English units.
struct Figure {
    FigureKind kind = FigureKind::count;
    double value = 0;

    friend bool operator==(const Figure&, const Figure&) = default;
};

/// A sentence for the designer as data: a text of the language resource and what stands in its %1,
/// %2 and so on. Without a text there is nothing to say.
struct Reason {
    int text = 0;
    std::vector<Figure> figures;

    bool holds() const { return text != 0; }
    friend bool operator==(const Reason&, const Reason&) = default;
};

/// Why nothing can be computed for a design: no loads, or an input without which there is no
/// length. It holds for both methods.
Reason reasonAgainst(const BoreholeInputs& design, const RolledZones& zones);

/// Why a loaded mode has no length: its limit is on the wrong side of the ground's temperature.
Reason limitReason(const BoreholeInputs& design, const CaseLoads& loads, Mode mode);

/// What the second opinion says of a design or a mode, as a sentence of this window.
Reason reasonOf(const OpinionReason& opinion);

}  // namespace varnholt
