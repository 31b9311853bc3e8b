// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/bore_drawing.h"
#include "design/borehole_run.h"
#include "design/field_plan.h"
#include "design/project_design.h"
#include "design/results_tab.h"
#include "design/tower_panel.h"

namespace varnholt {

/// The values and the run of a field of vertical bores.
struct BoreholeKind {
    using Project = BoreholeProject;
    using Inputs = BoreholeInputs;
    using Results = BoreholeResults;

    static Inputs inputsOf(const Project& project, bool hybridOn) {
        return varnholt::inputsOf(project, hybridOn);
    }
    static std::optional<Results> run(const Inputs& inputs) { return runBorehole(inputs); }
    static bool differ(const Inputs& then, const Inputs& now) {
        return varnholt::differ(then, now);
    }
};

/// The design of a field of vertical bores.
class frmBHDesign : public ProjectDesign<BoreholeKind> {
 public:
    /// @param slot  its place among the borehole designs, taken by the caller
    frmBHDesign(Varnmain& main, std::int16_t slot);
    ~frmBHDesign() override;

    std::string baseCaption() const override;

    /// Total required length of bore, ft.
    double GetL(Mode mode) const { return results().lengths.boreLength[mode]; }
    /// degF
    double GetTemperaturePenalty(Mode mode) const {
        return results().lengths.temperaturePenalty[mode];
    }
    /// degF
    double GetGroundTemp() const { return project_.soil.groundTemp; }

    using GroundDesign::showGoverningMode;
    void showGoverningMode(Mode greyed) override;

    /// What `imgBore` shows.
    BoreDrawing boreDrawing() const;
    /// What `imgField` shows.
    FieldPlan fieldPlan() const;

 protected:
    void resultsFound() override;
    ByMode<double> lengths() const override { return results().lengths.boreLength; }
    bool tellsError(int number) const override;
    std::vector<DesignTab*> tabs() override;
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "BHTabs"; }
    void fillDefaults() override;
    void dropTower() override { towerPanel_->drop(); }
    void showTower() override { towerPanel_->setUnitLabels(); }
    void wakeTower() override { towerPanel_->wake(); }
    void showNoGoverningMode() override;

 private:
    std::vector<ResultRow> resultRows() const;
    void registerBoreholeValues();
    void addAccessors(Values& values);

    std::unique_ptr<ResultsTab> resultsTab_;
    std::unique_ptr<TowerPanel> towerPanel_;
    std::vector<std::unique_ptr<DesignTab>> inputTabs_;
};

}  // namespace varnholt
