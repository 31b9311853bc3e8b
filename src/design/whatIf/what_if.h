// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/secondOpinion/second_opinion_inputs.h"
#include "design/whatIf/alternatives.h"
#include "design/whatIf/certainty.h"
#include "design/whatIf/reason.h"
#include "design/whatIf/shares.h"
#include "design/whatIf/tornado.h"
#include "design/whatIf/tower_curve.h"
#include "design/whatIf/what_if_inputs.h"
#include "loads/import/monthly_loads.h"

namespace varnholt {

/// All that the window's figures start from.
struct WhatIfCase {
    std::string name;       ///< of the design, for the table of alternatives
    BoreholeInputs design;  ///< with a tower percent other than 0 as a move of the slider has it
    WhatIfInputs inputs;
    SecondOpinionInputs secondOpinion;             ///< for the method by g-functions
    std::optional<ByMode<MonthlyLoads>> imported;  ///< of the importer, where it is open
    std::vector<Alternative> others;               ///< other open designs, in that order

    friend bool operator==(const WhatIfCase&, const WhatIfCase&) = default;
};

/// What is asked for: a page asks for what it shows. The base is always there.
struct WhatIfWanted {
    bool decides = false;  ///< tornado, levers and shares
    bool sure = false;     ///< the distribution, what a test would save, the other method
    bool cost = false;     ///< of the design at its drawn depth
    bool tower = false;
    bool alternatives = false;

    static WhatIfWanted everything() { return {true, true, true, true, true}; }
    friend bool operator==(const WhatIfWanted&, const WhatIfWanted&) = default;
};

/// The design as it stands, or why there is nothing, or a mode has nothing.
struct WhatIfNeed {
    Reason reason;
    ByMode<Reason> reasonOfMode{};
    Reason reasonOfOther;  ///< why the other method has no need

    ByMode<double> needLength{};    ///< ft
    double needGoverning = 0;       ///< the greater, ft; 0 where a loaded mode has none
    std::optional<Mode> governing;  ///< none without a need
    double boreDepth = 0;           ///< needGoverning over the bores, ft
    double bores = 0;
    double drawnDepth = 0;  ///< of a bore, as drawn or as needed, ft
    double otherNeed = 0;   ///< needGoverning by the other method, ft
    /// The mode has a length here that a run of the design does not show, because the other mode
    /// does not settle there.
    ByMode<bool> hiddenByRun{};

    friend bool operator==(const WhatIfNeed&, const WhatIfNeed&) = default;
};

/// What decides the need.
struct WhatIfDecides {
    std::array<double, quantityCount> tornadoLow{}, tornadoHigh{};  ///< ft
    std::array<std::size_t, quantityCount> tornadoRank{};           ///< longest bar first
    std::array<double, leverCount> leverLow{}, leverHigh{};         ///< ft
    std::array<double, quantityCount> share{}, shareAlone{};        ///< fractions

    friend bool operator==(const WhatIfDecides&, const WhatIfDecides&) = default;
};

/// How sure the need is.
struct WhatIfSure {
    double needP10 = 0, needP50 = 0, needP90 = 0, needMean = 0, needError = 0;  ///< ft
    ByMode<double> lengthP10{}, lengthP50{}, lengthP90{};                       ///< ft
    double holds = 0;  ///< share of the cases
    ByMode<double> holdsMode{};
    double confidentDepth = 0;  ///< ft
    double testDepth = 0;       ///< the same had a test confirmed the middle values, ft
    double testSaves = 0;       ///< of all bores, ft
    ByMode<double> enteringP10{}, enteringP50{}, enteringP90{};  ///< degF
    /// Needs of all cases, sorted, those without a length as noLength: the curves of both methods.
    std::vector<double> needs, otherNeeds;

    friend bool operator==(const WhatIfSure&, const WhatIfSure&) = default;
};

/// Cost of the design at its drawn depth.
struct WhatIfCost {
    std::array<double, 5> costPart{};
    double firstCost = 0, yearlyEnergy = 0, yearlyCost = 0, lifeCost = 0;

    friend bool operator==(const WhatIfCost&, const WhatIfCost&) = default;
};

/// Everything that the window computes but the layouts, in English units and under the names that
/// scripts know. A figure that cannot be had is 0.
struct WhatIf : WhatIfNeed, WhatIfDecides, WhatIfSure, WhatIfCost {
    std::size_t sampleCount = 0, failedSamples = 0;  ///< of the cases behind what decides, how sure

    TowerCurve tower;
    std::vector<AlternativeFigures> alternatives;

    friend bool operator==(const WhatIf&, const WhatIf&) = default;
};

struct WhatIfKept;
class WhatIfWork;

/// What is kept from one computation to the next: the drivers of the cases, which are the same for
/// every design, and g-functions.
class WhatIfMemory {
 public:
    WhatIfMemory();
    ~WhatIfMemory();
    WhatIfMemory(WhatIfMemory&&) noexcept;
    WhatIfMemory& operator=(WhatIfMemory&&) noexcept;

    WhatIfKept& kept() { return *kept_; }

 private:
    std::unique_ptr<WhatIfKept> kept_;
};

/// The window's figures on the way, computed in slices so that whoever waits for a key can go on
/// between two of them. A run that is dropped half-way leaves the memory sound.
///
///     WhatIfRun run(theCase, wanted, memory);
///     while (!run.step()) show(run.result());
///
/// It never throws for the sake of its inputs: what goes wrong with the numbers is a reason in the
/// result.
class WhatIfRun {
 public:
    /// @param memory  outlives the run
    WhatIfRun(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfMemory& memory);
    ~WhatIfRun();
    WhatIfRun(WhatIfRun&&) noexcept;
    WhatIfRun& operator=(WhatIfRun&&) noexcept;

    /// Works for a few milliseconds at most. True when all is done.
    bool step();
    bool isFinal() const;
    /// What is known so far: figures of the distribution come from the sets that are done.
    const WhatIf& result();

 private:
    std::unique_ptr<WhatIfWork> work_;
};

/// All that is wanted at once.
WhatIf whatIfOf(const WhatIfCase& theCase, const WhatIfWanted& wanted, WhatIfMemory& memory);

}  // namespace varnholt
