// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "design/differ.h"
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
/// nothing where there is no load.
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
        return moment(
            {project(), lastRun_, droppedError_, isStale(), linkedWindow(), missingZoneFile()});
    }

 protected:
    using GroundDesign::GroundDesign;

    /// A run has found results, which the project holds from now on.
    virtual void resultsFound() = 0;

    void calculate() override {
        attempted_ = Kind::inputsOf(project(), hybridOn);
        std::optional<Results> found = Kind::run(*attempted_);
        if (!found) return tellNothingToCalculate();
        this->project_.results = std::move(*found);
        resultsFound();
        // What the run itself has settled among its inputs is no later change.
        lastRun_ = results().inputs;
    }

    void runDropped() override { lastRun_ = attempted_; }

    /// The figures on show come along with what they are rolled up from.
    void rollUp() override {
        const Inputs now = Kind::inputsOf(project(), hybridOn);
        const LoadsRollUp rolledUp = rollUpLoads(now.loads);
        Results& shown = this->project_.results.edit();
        static_cast<LoadsRollUp&>(shown) = rolledUp;
        if (shown.inputs) shown.inputs->loads = now.loads;
    }

    /// The figures that a file holds came from what else it holds.
    void projectRead() override {
        const ByMode<double> found = lengths();
        if (found[cooling] == 0 && found[heating] == 0) return;
        lastRun_ = Kind::inputsOf(project(), towerIsOn());
        this->project_.results.edit().inputs = lastRun_;
    }

    bool hasResults() const override { return results().inputs.has_value(); }

    bool resultsAreOlder() const override {
        return hasResults() && (isStale() || !lastRun_ || differ(*lastRun_, presentInputs()));
    }

    void restore(const DocumentState& earlier) override {
        const State& wanted = valueOf(earlier);
        this->project_ = wanted.project;
        lastRun_ = wanted.lastRun;
        droppedError_ = wanted.droppedError;
        restoreLink(wanted.linkedWindow);
        setMissingZoneFile(wanted.missingZoneFile);
        showRestored(wanted.stale);
    }

    /// A link that the other side has made or ended is there, or gone, whatever is undone here;
    /// and while it stands, so is the name of its zone file.
    void takeForeignChanges() override {
        const State& known = valueOf(history().present());
        const ProjectLoads& now = loads();
        if (known.linkedWindow == linkedWindow() && known.project.loads.file == now.file) return;
        rewriteHistory([this, &now](const DocumentState& state) {
            State rewritten = valueOf(state);
            const bool linked = rewritten.linkedWindow != 0 && linkedWindow() != 0;
            rewritten.linkedWindow = linkedWindow();
            rewritten.project.loads.linkType = now.linkType;
            if (linked) rewritten.project.loads.file = now.file;
            return moment(std::move(rewritten));
        });
    }

    /// What the figures on show came from. Before a first run they are those of the design itself.
    Inputs inputsOnShow() const {
        return results().inputs ? *results().inputs : Kind::inputsOf(project(), towerIsOn());
    }

    /// What a run would take now, with the loads that it would transfer first.
    Inputs presentInputs() const {
        Inputs now = Kind::inputsOf(project(), hybridOn);
        if (link() != nullptr) now.loads.zones = presentZones();
        return now;
    }

 private:
    /// What undo brings back of the design.
    struct State {
        Project project;
        std::optional<Inputs> lastRun;
        int droppedError;
        bool stale;
        int linkedWindow;  ///< its number, 0 without a link
        std::string missingZoneFile;

        friend bool operator==(const State&, const State&) = default;
    };

    static const State& valueOf(const DocumentState& state) {
        return static_cast<const StateOf<State>&>(state).value;
    }
    static StatePointer moment(State value) {
        return std::make_shared<StateOf<State>>(std::move(value));
    }

    /// What the results answer: the inputs of the last run, unless a box has told why it failed.
    std::optional<Inputs> lastRun_;
    /// The inputs of the run at hand.
    std::optional<Inputs> attempted_;
};

}  // namespace varnholt
