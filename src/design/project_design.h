// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "design/ground_design.h"

namespace varnholt {

/// Holds a window's project, so that it is there before the window that edits it.
template <class Project>
struct HoldsProject {
    Project project_;
};

/// What the window of every kind of design does with its project as a whole: holds it, runs it,
/// tells whether the results on show are older than it, and puts earlier states of it back.
///
/// Kind names the value types and the pure functions of the kind:
/// `Project`, with `loads`, `conditions` and shared `results`; `Inputs`, with `loads`;
/// `Results`, a LoadsRollUp with optional `inputs`;
/// `Inputs inputsOf(const Project&, bool hybridOn)`; `std::optional<Results> run(const Inputs&)`,
/// nothing where there is no load; `bool differ(const Inputs& then, const Inputs& now)`.
template <class Kind>
class ProjectDesign : protected HoldsProject<typename Kind::Project>, public GroundDesign {
 public:
    using Project = typename Kind::Project;
    using Inputs = typename Kind::Inputs;
    using Results = typename Kind::Results;

    const Project& project() const { return this->project_; }
    /// Takes another project, as a file holds it. It is shown when the window is set up.
    void setProject(Project project) { this->project_ = std::move(project); }
    const Results& results() const { return *project().results; }

    StatePointer state() const override {
        return std::make_shared<StateOf<State>>(
            State{project(), lastRun_, droppedError_, isStale()});
    }

 protected:
    using GroundDesign::GroundDesign;

    /// A run has found results, which the project holds from now on.
    virtual void resultsFound() = 0;

    void calculate() override {
        lastRun_ = Kind::inputsOf(project(), hybridOn);
        std::optional<Results> found = Kind::run(*lastRun_);
        if (!found) return tellNothingToCalculate();
        this->project_.results = std::move(*found);
        resultsFound();
    }

    void rollUp() override {
        const LoadsRollUp rolledUp = rollUpLoads(Kind::inputsOf(project(), hybridOn).loads);
        static_cast<LoadsRollUp&>(this->project_.results.edit()) = rolledUp;
    }

    /// The figures that a file holds came from what else it holds.
    void projectRead() override {
        lastRun_ = Kind::inputsOf(project(), towerIsOn());
        this->project_.results.edit().inputs = lastRun_;
    }

    bool resultsAreOlder() const override {
        return results().inputs && lastRun_ && Kind::differ(*lastRun_, presentInputs());
    }

    void restore(const DocumentState& earlier) override {
        const State& wanted = static_cast<const StateOf<State>&>(earlier).value;
        this->project_ = wanted.project;
        lastRun_ = wanted.lastRun;
        droppedError_ = wanted.droppedError;
        showRestored(wanted.stale);
    }

    /// What the figures on show came from. Before a first run they are those of the design itself.
    Inputs inputsOnShow() const {
        return results().inputs ? *results().inputs : Kind::inputsOf(project(), towerIsOn());
    }

 private:
    /// What undo brings back of the design.
    struct State {
        Project project;
        std::optional<Inputs> lastRun;
        int droppedError;
        bool stale;

        friend bool operator==(const State&, const State&) = default;
    };

    /// What a run would take now, with the loads that it would transfer first.
    Inputs presentInputs() const {
        Inputs now = Kind::inputsOf(project(), hybridOn);
        if (link() != nullptr) now.loads.zones = presentZones();
        return now;
    }

    /// What the last run started from, whether it came to an end or not.
    std::optional<Inputs> lastRun_;
};

}  // namespace varnholt
