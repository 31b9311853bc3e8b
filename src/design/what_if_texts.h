// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "basis/units.h"
#include "design/whatIf/layout_search.h"
#include "design/whatIf/what_if.h"
#include "forms/texts.h"

namespace varnholt {

// What If in words, in the units shown. A figure that cannot be had is "-".

/// Numbers of the texts that name the quantities in doubt, what the designer chooses, and the parts
/// of a first cost.
extern const std::array<int, quantityCount> quantityTexts;
extern const std::array<int, leverCount> leverTexts;
extern const std::array<int, 5> costPartTexts;

/// Says what is found in the words and units of one window.
struct WhatIfTeller {
    const Texts& texts;
    UnitSystem units;
    std::string currency = "$";
    bool working = false;  ///< figures are still being found

    std::string text(int number) const { return texts.text(number); }

    /// "8,297 ft"; "-" for 0.
    std::string length(double feet) const;
    /// A length as a sentence tells it, without a zero behind the point: "10 ft", "727 ft".
    std::string inSentence(double feet) const;
    /// "276.6 ft"
    std::string depth(double feet) const;
    /// A depth that is asked for, rounded up to whole units, or to tens where the sampling bears no
    /// more: "343 ft".
    /// @param error  of the depth from the sampling, ft
    std::string depthAtLeast(double feet, double error = 0) const;
    std::string temperature(double fahrenheit) const;  ///< "90.1 deg F"
    std::string money(double value) const;             ///< "$151,700", "EUR 7,400"
    std::string reason(const Reason& reason) const;    ///< empty without one
};

/// 12345.6 as "12,346".
std::string groupedNumber(double value);

/// A share of cases in a hundred as a whole number that is never 0 or 100: "68", "fewer than 1".
std::string frequencyText(const Texts& texts, double share);

/// Why figures are missing, and what the figures do not show, in sentences; empty where nothing is.
std::string whatIfMessage(const WhatIfTeller& teller, const WhatIf& found);

/// What is not in the figures, and whose the spreads and prices are.
std::string whatIfNote(const WhatIfTeller& teller, const WhatIf& found, const WhatIfInputs& inputs);

/// "In 68 of 100 cases that your spreads allow, 30 bores of 300 ft hold the limits."
std::string holdsQuestion(const WhatIfTeller& teller, const WhatIf& found,
                          const WhatIfInputs& inputs);
/// What a test of the ground would save; empty where that cannot be had.
/// @param separation  of the bores, ft
std::string testSentence(const WhatIfTeller& teller, const WhatIf& found,
                         const WhatIfInputs& inputs);
/// "343 ± 1 ft from the sampling", the depth for nine in ten.
std::string samplingSentence(const WhatIfTeller& teller, const WhatIf& found);

/// A field in the list of the search.
std::string layoutLine(const WhatIfTeller& teller, const LayoutField& field);
/// Why a search has found nothing, or what it has changed to search at all.
std::string layoutMessage(const WhatIfTeller& teller, const Layouts& found);

}  // namespace varnholt
