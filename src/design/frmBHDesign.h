// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "design/bore_drawing.h"
#include "design/borehole_run.h"
#include "design/field_plan.h"
#include "design/ground_design.h"
#include "design/results_tab.h"
#include "design/tower_panel.h"

namespace varnholt {

/// Numbers of a borehole file that the design carries along and does not use. They keep the file's
/// shape.
struct BoreholeFileRemainder {
    ByMode<std::int16_t> inputFlag{1, 1};
    ByMode<double> inputNumber{}, inputDouble{};
    std::array<double, 3> numbers{1.9, 100, 0};
    ByMode<double> resultFlag{1, 1}, resultNumber{}, resultDouble{};

    friend bool operator==(const BoreholeFileRemainder&, const BoreholeFileRemainder&) = default;
};

/// The design of a field of vertical bores.
class frmBHDesign : public GroundDesign {
 public:
    /// @param slot  its place among the borehole designs, taken by the caller
    frmBHDesign(Varnmain& main, std::int16_t slot);
    ~frmBHDesign() override;

    std::string baseCaption() const override;

    BoreValues bore;
    ArrangementValues arrangement;
    BoreholeResults results;
    BoreholeFileRemainder remainder;

    /// Total required length of bore, ft.
    double GetL(Mode mode) const { return results.lengths.boreLength[mode]; }
    /// degF
    double GetTemperaturePenalty(Mode mode) const {
        return results.lengths.temperaturePenalty[mode];
    }
    /// degF
    double GetGroundTemp() const { return soil.groundTemp; }

    /// Greys the figures of one mode, emphasises the other's, and wakes or rests the tower.
    void showGoverningMode(Mode greyed);
    /// By the lengths at hand: the longer one governs.
    void showGoverningMode();

    /// The roll-up of the zones at hand, as a run begins with.
    void rollUpLoads();
    void loadsChanged() override;

    /// What `imgBore` shows.
    BoreDrawing boreDrawing() const;
    /// What `imgField` shows.
    FieldPlan fieldPlan() const;

 protected:
    void calculate() override;
    std::vector<DesignTab*> tabs() override;
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "BHTabs"; }
    void fillDefaults() override;

 private:
    std::vector<ResultRow> resultRows() const;
    void registerBoreholeValues();
    LoadsInputs loadsInputs() const;
    BoreholeInputs inputs() const;
    void tellNoLoads();
    void iterate(BoreholeRun& run);
    void keep(const BoreholeRun& run);
    std::string shownWithUnit(const Quantity& quantity, double value, int metric, int english,
                              const char* format) const;

    std::unique_ptr<ResultsTab> resultsTab_;
    std::unique_ptr<TowerPanel> towerPanel_;
    std::vector<std::unique_ptr<DesignTab>> inputTabs_;
};

}  // namespace varnholt
