// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/circuit_plan.h"
#include "design/ground_temp_curves.h"
#include "design/loop_curves.h"
#include "design/project_design.h"
#include "design/results_tab.h"
#include "design/surface_water_project.h"
#include "design/surface_water_run.h"

namespace varnholt {

class HeaderSoilTab;

/// The values and the run of pipe in surface water.
struct SurfaceWaterKind {
    using Project = SurfaceWaterProject;
    using Inputs = SurfaceWaterInputs;
    using Results = SurfaceWaterResults;

    static Inputs inputsOf(const Project& project, bool /*hybridOn*/) {
        return varnholt::inputsOf(project);
    }
    static std::optional<Results> run(const Inputs& inputs) { return runSurfaceWater(inputs); }
};

/// The design of coils or slinkies in a pond or lake.
class frmSWDesign : public ProjectDesign<SurfaceWaterKind> {
 public:
    /// @param slot  its place among the surface water designs, taken by the caller
    frmSWDesign(Varnmain& main, std::int16_t slot);
    ~frmSWDesign() override;

    std::string baseCaption() const override;
    /// The method takes peaks alone: hours and days of the zones are of no use to it.
    bool usesHoursAndDays() const override { return false; }

    using GroundDesign::showGoverningMode;
    void showGoverningMode(Mode greyed) override;

    std::string descriptionOf(const std::string& image) const override;
    std::vector<std::string> warnings() const override;

    LengthSummary lengthSummary() const override;
    /// What `imgCircuit` shows. It follows what is typed; flows are those of results that are not
    /// older than it.
    CircuitPlan circuitPlan() const;
    /// What `imgGroundTemp` shows.
    GroundTempCurves groundTempCurves() const;
    /// What `imgLoopCurves` shows.
    LoopCurves loopCurves() const;

 protected:
    void resultsFound() override;
    ByMode<double> lengths() const override { return results().loopLength; }
    bool tellsError(int) const override { return true; }
    std::vector<DesignTab*> tabs() override;
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "SWTabs"; }
    void fillDefaults() override;
    void showNoGoverningMode() override;

 private:
    std::vector<ResultRow> resultRows() const;
    std::vector<LengthSegment> lengthParts() const;
    void registerInputs();
    void registerResults();
    /// An approach that did not settle carries a colour of its own.
    void paintApproach();
    bool resultsArePresent() const { return hasResults() && !resultsAreOlder(); }
    std::string shownLength(double feet) const;
    ByMode<std::string> shownFlows(const ByMode<double>& flow) const;

    std::unique_ptr<ResultsTab> resultsTab_;
    HeaderSoilTab* soilTab_ = nullptr;  ///< one of the following
    std::vector<std::unique_ptr<DesignTab>> inputTabs_;
};

}  // namespace varnholt
