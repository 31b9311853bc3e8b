// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/frmHZDesign.h"

#include <array>
#include <cmath>
#include <utility>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/design_warnings.h"
#include "design/extra_power_tab.h"
#include "design/fluid_tab.h"
#include "design/labelled_ground_temp.h"
#include "design/modCalculations/trench_lengths.h"
#include "design/picture_sentences.h"
#include "design/result_values.h"
#include "design/shared_values.h"
#include "design/trench_pipe_tab.h"
#include "design/trench_rules.h"
#include "design/trench_soil_tab.h"
#include "design/trench_tab.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/horizontal.h"
#include "forms/text_numbers/lengths.h"

namespace varnholt {

frmHZDesign::frmHZDesign(Varnmain& main, std::int16_t slot)
    : TowerDesign("frmHZDesign", DesignKind::horizontal, main, slot, project_,
                  {project_.fluid, project_.extraPower, &project_.tower}) {
    const std::function<void()> follow = [this] { followGroundTemp(); };
    addWindowControls();
    addResults(resultRows(), Text::requiredTrenchLengths);
    addTab<FluidTab>(project_.fluid, project_.conditions);
    addTab<TrenchSoilTab>(project_.soil, project_.groundTemperature, follow);
    addTab<TrenchPipeTab>(project_.pipe, project_.remainder.uTubeConfig);
    addTab<TrenchTab>(project_.trench, project_.arrangement, follow);
    addTab<ExtraPowerTab>(project_.extraPower);
    addInformationControls();
    registerInputs();
    registerResults();
    registerPairTable();
}

std::string frmHZDesign::baseCaption() const { return text(Text::horizontalDesignTitle); }

std::vector<int> frmHZDesign::pageCaptions() const {
    return {Text::resultsPage,       Text::fluidPage,      Text::soilPage,       Text::pipingPage,
            Text::configurationPage, Text::extraPowerPage, Text::informationPage};
}

std::vector<ResultRow> frmHZDesign::lengthRows() const {
    using Get = std::function<double(Mode)>;
    const auto length = [this](const char* label, UnitTexts caption, const Get& feet,
                               std::string_view format = "###0.0") {
        return ResultRow{label, caption,
                         [this, feet, format](Mode mode) {
                             return shownAs(quantities::length, *this, feet(mode), format);
                         },
                         true};
    };
    const auto trenches = [this] { return inputsOnShow().trench.trenchCount; };
    const auto pipe = [this](Mode mode) { return results().totalPipeLength[mode]; };
    using namespace modCalculations;
    return {length("CATotalPipeLengthLabel",
                   {Text::totalPipeLengthEnglish, Text::totalPipeLengthMetric}, pipe, "####0.0"),
            length("CATotalLengthLabel",
                   {Text::totalTrenchLengthEnglish, Text::totalTrenchLengthMetric},
                   [this](Mode mode) { return totalLength(mode); }),
            length("CATrenchLengthLabel",
                   {Text::singleTrenchLengthEnglish, Text::singleTrenchLengthMetric},
                   [this](Mode mode) { return trenchLength(mode); }),
            {"CATrenchNumberLabel",
             {Text::trenchNumberResult, Text::trenchNumberResult},
             [=](Mode) { return formatNumber(trenches(), "###0"); }},
            length("CAPipeLengthPerTrenchLabel",
                   {Text::pipeLengthPerTrenchEnglish, Text::pipeLengthPerTrenchMetric},
                   [=](Mode mode) { return pipeLengthPerTrench(pipe(mode), trenches()); })};
}

double frmHZDesign::totalLength(Mode mode) const {
    return modCalculations::totalTrenchLength(results().requiredLength[mode],
                                              inputsOnShow().arrangement.pipesPerTrench);
}

double frmHZDesign::trenchLength(Mode mode) const {
    const HorizontalInputs inputs = inputsOnShow();
    return modCalculations::singleTrenchLength(results().requiredLength[mode],
                                               inputs.arrangement.pipesPerTrench,
                                               inputs.trench.trenchCount);
}

LengthSummary frmHZDesign::lengthSummary() const {
    constexpr LoopWords words{{Text::coolingGovernsTrenches, Text::heatingGovernsTrenches},
                              Text::manyTrenches,
                              Text::oneTrench,
                              Text::aTrench};
    const double trenches = inputsOnShow().trench.trenchCount;
    const ByMode<double> total{totalLength(cooling), totalLength(heating)};
    LengthSummary summary = summaryOf(*this,
                                      {total,
                                       {trenchLength(cooling), trenchLength(heating)},
                                       {trenches, trenches},
                                       governingMode(),
                                       resultsState()},
                                      words);
    return withParts(std::move(summary),
                     groundParts(*this, results().lengthShares, total, Text::pipeResistancePart));
}

std::vector<ResultRow> frmHZDesign::resultRows() const {
    std::vector<ResultRow> rows = lengthRows();
    const auto rollUp = [this]() -> const LoadsRollUp& { return results(); };
    const auto inputs = [this] { return inputsOnShow().loads; };
    for (ResultRow& row : unitRows(*this, rollUp, inputs)) rows.push_back(std::move(row));
    rows.push_back({"CASoilTempChangeLabel",
                    {Text::soilTemperatureChangeEnglish, Text::soilTemperatureChangeMetric},
                    [this](Mode mode) {
                        return shownAs(quantities::temperatureDifference, *this,
                                       -results().lengths.temperaturePenalty[mode]);
                    }});
    return rows;
}

void frmHZDesign::registerInputs() {
    Values& values = publicValues();
    addSoilValues(values, project_.soil);
    addPipeValues(values, project_.pipe);
    values.addArray("pipeDiameters", &project_.pipe.pipeDiameter);
    values.add("uTubeConfig", &project_.remainder.uTubeConfig);
    values.add("airTempSwing", &project_.groundTemperature.airTempSwing);
    values.addArray("extremeDay", &project_.groundTemperature.extremeDay);
    values.addArray("groundTempAtDepth", &project_.groundTempAtDepth);
    values.add("trenchCount", &project_.trench.trenchCount);
    values.addArray("trenchGeometry", &project_.trench.trenchGeometry);
    const HorizontalArrangementValues& arrangement = project_.arrangement;
    values.add("trenchConfiguration", &arrangement.trenchConfiguration);
    values.add("pipesPerTrench", &arrangement.pipesPerTrench);
    values.add("offsetRows", &arrangement.offsetRows);
    values.addArray("pipeSeparation", &arrangement.pipeSeparation);
    values.addArray("coilGeometry", &arrangement.coilGeometry);
    values.add("predictionYears", &arrangement.predictionYears);
}

void frmHZDesign::registerResults() {
    Values& values = publicValues();
    addGroundValues(values, [this]() -> const GroundRollUp& { return results(); });
    using R = const HorizontalResults&;
    ResultValues<HorizontalResults> of(values, [this]() -> R { return results(); });
    of.array("groundResistance", [](R r) { return elementsOf(r.groundResistance); });
    of.array(
        "neighbourCount", [](R r) -> auto& { return r.neighbourCount; });
    of.array(
        "temperaturePenalty", [](R r) -> auto& { return r.lengths.temperaturePenalty; });
    of.array(
        "previousLength", [](R r) -> auto& { return r.lengths.previousBoreLength; });
    of.array("lengthChange", [](R r) {
        ByMode<double> change{};
        for (const Mode m : modes)
            change[m] = std::abs(r.lengths.boreLength[m] - r.lengths.previousBoreLength[m]);
        return change;
    });
    // One figure, which the modes take in turn: heating leaves it behind.
    of.number("coilLengthPer250", [](R r) { return r.coilLengthPer250[heating]; });
    of.array(
        "requiredLength", [](R r) -> auto& { return r.requiredLength; });
    of.array(
        "totalPipeLength", [](R r) -> auto& { return r.totalPipeLength; });
}

/// Pipes and images of the last run, one by one. By period: annual, monthly, short term.
void frmHZDesign::registerPairTable() {
    Values& values = publicValues();
    const auto ground = [this]() -> const modCalculations::TrenchGround& {
        return results().trenchGround;
    };
    values.add("pipePositions", 2, [ground](const Values::Indices& i) {
        const modCalculations::PipePosition& node = publicElement(ground().nodes, i[1]);
        return publicElement(std::array<double, 2>{node.x, node.y}, i[0]);
    });
    values.add("pipeDistances", 2,
               [ground](const Values::Indices& i) { return pipeDistance(ground(), i[0], i[1]); });
    values.add("pairResistance", 3, [ground](const Values::Indices& i) {
        return publicElement(elementsOf(pairResistance(ground(), i[1], i[2])), i[0]);
    });
    values.add("pipeResistanceSum", 2, [ground](const Values::Indices& i) {
        return publicElement(elementsOf(pipeResistanceSum(ground(), i[1])), i[0]);
    });
}

void frmHZDesign::followGroundTemp() { project_.groundTempAtDepth = groundTempAtTrench(project_); }

void frmHZDesign::defaultsRead() {
    settleCoil(project_.arrangement);
    followGroundTemp();
}

void frmHZDesign::projectRead() {
    settleCoil(project_.arrangement);
    TowerDesign::projectRead();
    followGroundTemp();
}

/// A coil leaves the resistance of its equivalent pipe behind, which is a single one.
void frmHZDesign::resultsFound() {
    if (modCalculations::isCoil(project_.arrangement.trenchConfiguration))
        project_.remainder.uTubeConfig = HorizontalFileRemainder().uTubeConfig;
    project_.pipe.pipeResistance = results().pipeResistance;
    project_.groundTempAtDepth = results().groundTempAtDepth;
    fields().showAll("PIPipe");
    TowerDesign::resultsFound();
}

std::vector<Notice> frmHZDesign::notices() {
    std::vector<Notice> holding = TowerDesign::notices();
    const GroundTemperatureValues& year = project_.groundTemperature;
    if (hasResults() && year.airTempSwing != 0 &&
        year.extremeDay[cooling] == year.extremeDay[heating])
        holding.push_back({text(Text::noticeOneDayForBoth)});
    return holding;
}

std::vector<std::string> frmHZDesign::warnings() const {
    return sentencesOf(warningsOf(project()), *this);
}

std::string frmHZDesign::shownLength(double feet) const {
    return shownWithUnit(quantities::length, *this, feet,
                         {Text::lengthUnitsEnglish, Text::lengthUnitsMetric});
}

std::string frmHZDesign::shownWidth(double inches) const {
    const bool inCentimetres = units() == UnitSystem::metric;
    return shownWithUnit(quantities::width, *this, inches,
                         {Text::widthUnitsEnglish, Text::widthUnitsMetric},
                         inCentimetres ? "###0" : "###0.0");
}

std::string frmHZDesign::descriptionOf(const std::string& image) const {
    if (image.starts_with("PADiagramPicture")) return describe(trenchDrawing(), texts());
    if (image.starts_with("imgConfiguration")) return describe(trenchPlan(), texts());
    if (image == "imgGroundTemp") return describe(groundTempCurves(), texts());
    return TowerDesign::descriptionOf(image);
}

TrenchDrawing frmHZDesign::trenchDrawing() const {
    TrenchDrawing drawing = drawTrench(project_.trench, project_.arrangement, project_.pipe);
    drawing.depthLabel = shownLength(project_.trench.trenchGeometry[1]);
    drawing.widthLabel = shownWidth(project_.trench.trenchGeometry[2]);
    drawing.rowStepLabel = shownWidth(project_.arrangement.pipeSeparation[0]);
    drawing.columnStepLabel = shownWidth(project_.arrangement.pipeSeparation[1]);
    drawing.coilLabel = shownWidth(project_.arrangement.coilGeometry[1]);
    return drawing;
}

TrenchPlan frmHZDesign::trenchPlan() const {
    TrenchPlan plan = drawTrenches(project_.trench, project_.arrangement);
    plan.separationLabel = shownLength(project_.trench.trenchGeometry[0]);
    plan.pitchLabel = shownWidth(project_.arrangement.coilGeometry[0]);
    plan.coilLabel = shownWidth(project_.arrangement.coilGeometry[1]);
    return plan;
}

GroundTempCurves frmHZDesign::groundTempCurves() const {
    const SoilValues& soil = project_.soil;
    const GroundTemperatureValues& year = project_.groundTemperature;
    const modCalculations::GroundSwing swing{soil.groundTemp, year.airTempSwing, year.extremeDay};
    try {
        const double depth =
            modCalculations::meanPipeDepth(layoutOf(project_.trench, project_.arrangement));
        return labelledGroundTemp(
            *this, depth, soil.diffusivity, swing,
            modCalculations::groundTempAtDepth(depth, soil.diffusivity, swing));
    } catch (const RunTimeError&) {
        // A file may hold an arrangement that is none, or a soil beyond all figures.
        return {};
    }
}

}  // namespace varnholt
