// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/bore_drawing.h"
#include "design/borehole_project.h"
#include "design/field_plan.h"
#include "design/ground_design.h"
#include "design/results_tab.h"
#include "design/tower_panel.h"

namespace varnholt {

/// Holds a window's project, so that it is there before the window that edits it.
template <class Project>
struct HoldsProject {
    Project project_;
};

/// The design of a field of vertical bores.
class frmBHDesign : private HoldsProject<BoreholeProject>, public GroundDesign {
 public:
    /// @param slot  its place among the borehole designs, taken by the caller
    frmBHDesign(Varnmain& main, std::int16_t slot);
    ~frmBHDesign() override;

    std::string baseCaption() const override;

    const BoreholeProject& project() const { return project_; }
    /// Takes another project, as a file holds it. It is shown when the window is set up.
    void setProject(BoreholeProject project) { project_ = std::move(project); }
    const BoreholeResults& results() const { return *project_.results; }

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

    StatePointer state() const override;

 protected:
    void calculate() override;
    void rollUp() override;
    ByMode<double> lengths() const override { return results().lengths.boreLength; }
    bool tellsError(int number) const override;
    bool resultsAreOlder() const override;
    std::vector<DesignTab*> tabs() override;
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "BHTabs"; }
    void fillDefaults() override;
    void projectRead() override;
    void dropTower() override { towerPanel_->drop(); }
    void showTower() override { towerPanel_->setUnitLabels(); }
    void restore(const DocumentState& earlier) override;

 private:
    std::vector<ResultRow> resultRows() const;
    void registerBoreholeValues();
    BoreholeInputs presentInputs() const;
    BoreholeInputs inputsOnShow() const;
    std::string shownWithUnit(const Quantity& quantity, double value, UnitTexts unit,
                              const char* format) const;

    /// What the last run started from, whether it came to an end or not.
    std::optional<BoreholeInputs> lastRun_;
    std::unique_ptr<ResultsTab> resultsTab_;
    std::unique_ptr<TowerPanel> towerPanel_;
    std::vector<std::unique_ptr<DesignTab>> inputTabs_;
};

}  // namespace varnholt
