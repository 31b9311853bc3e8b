// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/ground_temp_curves.h"
#include "design/horizontal_project.h"
#include "design/tower_design.h"
#include "design/trench_drawing.h"
#include "design/trench_plan.h"

namespace varnholt {

/// The values and the run of a field of horizontal trenches.
struct HorizontalKind {
    using Project = HorizontalProject;
    using Inputs = HorizontalInputs;
    using Results = HorizontalResults;

    static Inputs inputsOf(const Project& project, bool hybridOn) {
        return varnholt::inputsOf(project, hybridOn);
    }
    static std::optional<Results> run(const Inputs& inputs) { return runHorizontal(inputs); }
};

/// The design of a field of horizontal trenches, with straight pipes or slinkies in them.
class frmHZDesign : public TowerDesign<HorizontalKind> {
 public:
    /// @param slot  its place among the horizontal designs, taken by the caller
    frmHZDesign(Varnmain& main, std::int16_t slot);

    std::string baseCaption() const override;

    std::string descriptionOf(const std::string& image) const override;
    std::vector<std::string> warnings() const override;

    LengthSummary lengthSummary() const override;
    /// What `PADiagramPicture` shows. It follows what is typed.
    TrenchDrawing trenchDrawing() const;
    /// What `imgConfiguration` shows.
    TrenchPlan trenchPlan() const;
    /// What `imgGroundTemp` shows, at the mean depth of the pipes.
    GroundTempCurves groundTempCurves() const;

 protected:
    void resultsFound() override;
    ByMode<double> lengths() const override { return results().requiredLength; }
    /// Found before coils take the place of pipe.
    Mode governingMode() const override { return results().governingMode; }
    bool tellsError(int) const override { return true; }
    std::vector<int> pageCaptions() const override;
    std::string pagesName() const override { return "HZTabs"; }
    void defaultsRead() override;
    void projectRead() override;
    std::vector<Notice> notices() override;

 private:
    std::vector<ResultRow> lengthRows() const;
    /// Of all trenches together, ft.
    double totalLength(Mode mode) const;
    /// Of one of them, ft.
    double trenchLength(Mode mode) const;
    std::vector<ResultRow> resultRows() const;
    void registerInputs();
    void registerResults();
    void registerPairTable();
    /// Soil, year or depth have changed.
    void followGroundTemp();
    std::string shownLength(double feet) const;
    std::string shownWidth(double inches) const;
};

}  // namespace varnholt
