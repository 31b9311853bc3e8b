// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/bore_drawing.h"
#include "design/borehole_run.h"
#include "design/field_plan.h"
#include "design/late_second_opinion.h"
#include "design/tower_design.h"

namespace varnholt {

class frmSecondOpinion;
class frmWhatIf;

/// The values and the run of a field of vertical bores.
struct BoreholeKind {
    using Project = BoreholeProject;
    using Inputs = BoreholeInputs;
    using Results = BoreholeResults;

    static Inputs inputsOf(const Project& project, bool hybridOn) {
        return varnholt::inputsOf(project, hybridOn);
    }
    static std::optional<Results> run(const Inputs& inputs) { return runBorehole(inputs); }
};

/// The design of a field of vertical bores.
class frmBHDesign : public TowerDesign<BoreholeKind> {
 public:
    /// @param slot  its place among the borehole designs, taken by the caller
    frmBHDesign(Varnmain& main, std::int16_t slot);

    std::string baseCaption() const override;

    /// Total required length of bore, ft.
    double GetL(Mode mode) const { return results().lengths.boreLength[mode]; }
    /// degF
    double GetTemperaturePenalty(Mode mode) const {
        return results().lengths.temperaturePenalty[mode];
    }
    /// degF
    double GetGroundTemp() const { return project_.soil.groundTemp; }

    void load() override;
    void MetricCheck_Click() override;
    void actionDone() override { fallBehind(); }
    void windowsChanged() override { fallBehind(); }
    void unloaded() override;

    // The second opinion, which stands beside the design's own figures and never in their place.
    SecondOpinionInputs& secondOpinionInputs() { return project_.secondOpinion; }
    /// What it is found from as the inputs stand now, calculated or not.
    SecondOpinionCase presentCase() const;
    /// Goes on finding it; see LateSecondOpinion.
    bool advanceSecondOpinion(bool whole) { return late_.advance(presentCase(), whole); }
    const LateSecondOpinion& lateSecondOpinion() const { return late_; }
    /// The opinion of the inputs as they stand now, found first where it is not known.
    const SecondOpinion& secondOpinion();
    /// Opens its window, or brings it to the front.
    void CASecondOpinionCommand_Click();
    /// The window has gone.
    void forgetSecondOpinionWindow() { opinionWindow_ = nullptr; }

    // What If, whose window asks what the design could be otherwise.
    WhatIfInputs& whatIfInputs() { return project_.whatIf; }
    /// Opens its window, or brings it to the front.
    void CAWhatIfCommand_Click();
    /// The window has gone.
    void forgetWhatIfWindow() { whatIfWindow_ = nullptr; }
    /// Types a field of full rows into the design.
    /// @param separation  ft
    void takeField(double across, double down, double separation);
    /// The design's value to be compared with later: without loads, results and what belongs to
    /// the windows about it.
    BoreholeProject keptValue() const;
    /// Takes such a value back, for the loads and windows of the present design.
    void putBack(const BoreholeProject& kept);
    /// Whether the slider of the cooling tower can be moved.
    bool towerMoves() const;
    /// Moves it, which runs the design.
    void moveTower(std::size_t percent);
    /// Brings the page of a field to the front, and the keyboard to the field.
    void showField(const std::string& field);

    std::string descriptionOf(const std::string& image) const override;
    std::vector<std::string> warnings() const override;

    LengthSummary lengthSummary() const override;
    /// What `imgBore` shows.
    BoreDrawing boreDrawing() const;
    /// What `imgField` shows.
    FieldPlan fieldPlan() const;

 protected:
    ByMode<double> lengths() const override { return results().lengths.boreLength; }
    bool tellsError(int number) const override;
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "BHTabs"; }
    void restore(const DocumentState& earlier) override;
    bool workLate(bool whole) override;

 private:
    std::vector<ResultRow> secondOpinionRows() const;
    void addSecondOpinion();
    void addSecondOpinionValues();
    void addWhatIf();
    void showSecondOpinion();
    void paintSecondOpinion();
    std::string secondOpinionTip() const;

    std::vector<ResultRow> resultRows() const;
    /// In the field that the results are of.
    double boresOnShow() const;
    /// Of each bore, ft; 0 where there are none.
    double lengthOfEach(Mode mode) const;
    void registerBoreholeValues();
    void addResultValues(Values& values);
    void addAccessors(Values& values);

    LateSecondOpinion late_;
    frmSecondOpinion* opinionWindow_ = nullptr;
    frmWhatIf* whatIfWindow_ = nullptr;
};

}  // namespace varnholt
