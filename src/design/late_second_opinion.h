// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/secondOpinion/second_opinion.h"

namespace varnholt {

/// The second opinion of one design: found when somebody asks, and kept as long as it is asked of
/// the same case.
class LateSecondOpinion {
 public:
    /// Goes on finding it, a slice of the work or all that is left. Work on another case is dropped
    /// as soon as this one is asked for.
    /// @return whether the opinion of this case is known now
    bool advance(const SecondOpinionCase& wanted, bool whole);

    /// The opinion found last, of whatever case; one without a figure before the first.
    const SecondOpinion& known() const { return known_; }
    /// The classical method's penalty for the same inputs, degF; 0 where its run ends in an error.
    const ByMode<double>& classicalPenalty() const { return classicalPenalty_; }

 private:
    void take(const SecondOpinion& found);

    SecondOpinionMemory memory_;
    std::optional<SecondOpinionCase> knownCase_, case_;
    std::optional<SecondOpinionRun> run_;
    SecondOpinion known_;
    ByMode<double> classicalPenalty_{};
};

}  // namespace varnholt
