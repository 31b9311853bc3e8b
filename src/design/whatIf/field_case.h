// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "design/secondOpinion/opinion_case.h"
#include "design/whatIf/g_table.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// A design made ready for the method by g-functions.
struct PreparedField {
    secondOpinion::PreparedCase base;
    SecondOpinion told;  ///< reasons, and the shape of the year that was used
    bool southern = false;
};

/// The terms of one case: what the second opinion takes, with the case's factors on it. The year's
/// shape follows the case's loads and hours anew where it is the standard one.
secondOpinion::FieldTerms fieldTermsOf(const PreparedField& field, const RolledZones& zones,
                                       const LoadsInputs& loads, const SoilValues& soil,
                                       const CaseFactors& factors);

/// How closely a table is read between its rungs.
struct GTableReading {
    std::size_t rungs = 5;  ///< that the polynomial goes through
    /// Depth about which they lie as long as it serves, ft, so that cases that are compared are
    /// read alike; 0 takes the nearest rungs.
    double about = 0;
};

/// What the ground has to bear in one case, by the g-functions of a table.
class FieldCase {
 public:
    FieldCase(const secondOpinion::FieldTerms& terms, GTable& table, double quickness,
              const GTableReading& reading);

    /// Length that a mode needs, ft: 0 without load, noLength where no depth up to the greatest
    /// holds its limit. None while a g-function is missing.
    /// @param startDepth  a guess, ft
    std::optional<double> length(Mode mode, double startDepth);
    /// The same, but as deep as it takes: where no depth up to the greatest holds the limit, that
    /// of deeper bores, and of those that no table reaches by the g-functions of the deepest it
    /// has.
    std::optional<double> lengthHoweverDeep(Mode mode, double startDepth);
    /// Mean fluid at the end of the month that is hardest for a mode, at a length of all bores,
    /// degF. None while a g-function is missing.
    std::optional<double> hardestFluid(Mode mode, double length);

 private:
    struct Rung {
        std::vector<double> drift;  ///< by month
        double pulse = 0;
    };

    const Rung* rung(std::size_t index);
    bool readAt(double depth);
    double greatestHeat(Mode mode) const;
    std::optional<double> depthAskedFor(Mode mode, double depth);
    std::optional<double> settledLength(Mode mode, double startDepth, double deepest);

    const secondOpinion::FieldTerms& terms_;
    GTable& table_;
    int stretch_;
    GTableReading reading_;
    std::vector<TimePlace> months_;
    TimePlace pulsePlace_;
    std::array<std::optional<Rung>, GTable::rungCount> rungs_;
    // At the depth read last.
    std::vector<double> drift_;
    double pulse_ = 0;
};

}  // namespace varnholt
