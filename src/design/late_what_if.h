// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "design/whatIf/what_if.h"

namespace varnholt {

/// The figures of What If: computed part by part when somebody asks, and kept as long as they are
/// asked of the same case.
class LateWhatIf {
 public:
    /// Goes on computing, a slice of the work or all that is left. Work on another case is dropped
    /// as soon as this one is asked for.
    /// @return whether all that is wanted of this case is known now
    bool advance(const WhatIfCase& wanted, const WhatIfWanted& parts, bool whole);

    /// What is known, of the case asked for last as soon as there is something of it. Figures of a
    /// distribution on the way come from the sets of cases that are done.
    const WhatIf& known() const { return known_; }
    /// Nothing of the case asked for last is still to come.
    bool isFinal() const { return !run_; }
    /// Whether a part stands in what is known, down to its last figure.
    bool knows(bool WhatIfWanted::*part) const { return showsCase_ && knownParts_.*part; }
    /// Grows whenever more is known.
    int revision() const { return revision_; }

 private:
    void start(const WhatIfCase& wanted, const WhatIfWanted& parts);
    void take();

    WhatIfMemory memory_;
    std::optional<WhatIfCase> case_;  ///< of `known_` and of the run
    WhatIfWanted knownParts_, runParts_;
    std::optional<WhatIfRun> run_;
    bool showsCase_ = false;  ///< something of `case_` stands in `known_`
    WhatIf known_;
    int revision_ = 0;
};

}  // namespace varnholt
