// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "design/whatIf/field_method.h"
#include "design/whatIf/what_if.h"

namespace varnholt {

/// See WhatIfMemory.
struct WhatIfKept {
    std::array<std::vector<Drivers>, caseSets> sets;
    DriverPairs pairs;
    FieldMemory fields;
};

/// The computation behind WhatIfRun: a list of tasks, each of so many pieces. A piece that lacks a
/// g-function is tried again when that is there.
class WhatIfWork {
 public:
    WhatIfWork(WhatIfCase theCase, const WhatIfWanted& wanted, WhatIfKept& kept);

    bool step();
    bool isFinal() const { return tasks_.empty(); }
    const WhatIf& result();

 private:
    struct Task {
        std::size_t count, perStep;
        std::function<bool(std::size_t)> piece;  ///< false while it has to wait
        std::size_t next = 0;
    };
    using Take = std::function<void(const CaseFigures&)>;
    /// A distribution on the way.
    struct Sets {
        CertaintySum sum;
        std::vector<CaseFigures> set;
    };

    void add(std::size_t count, std::size_t perStep, std::function<bool(std::size_t)> piece);
    void planBase();
    void planOtherBase();
    void planCost();
    void planDistribution();
    void planTestAndOther();
    void planSets(WhatIfMeasure measure, const Spreads& spreads,
                  std::function<void(const std::shared_ptr<Sets>&)> take);
    void tell();
    void planTornado();
    void planLevers();
    void planShares();
    void planTower();
    void planAlternatives();
    void planBores(std::size_t place, const Alternative& alternative);

    /// A case of a design by a method, handed to `take`. False while it has to wait.
    bool compute(WhatIfMeasure measure, const MeasuredDesign& design, const CaseFactors& factors,
                 const Take& take);
    std::optional<double> needOf(const CaseFactors& factors);
    void takeBase(const CaseFigures& figures);
    void takeCertainty(const Certainty& certainty);

    WhatIfMeasure other() const;
    CaseMethod& method(WhatIfMeasure measure) {
        return *methods_[static_cast<std::size_t>(measure)];
    }
    MeasuredDesign measured(WhatIfMeasure measure) const;
    const std::vector<Drivers>& driversOf(std::size_t set);
    static std::size_t setSize(WhatIfMeasure measure);

    WhatIfCase case_;
    WhatIfKept& kept_;
    WhatIfMeasure measure_;
    RolledZones zones_;
    Cases cases_;
    std::array<std::unique_ptr<CaseMethod>, 2> methods_;
    ByMode<double> about_{};  ///< depth about which a method's cases lie, ft; by WhatIfMeasure
    double drawnLength_ = 0;
    std::deque<Task> tasks_;
    CaseMethod* waitsFor_ = nullptr;
    /// Sets of the distribution that the result does not tell yet.
    std::function<void()> toTell_;
    WhatIf result_;
};

}  // namespace varnholt
