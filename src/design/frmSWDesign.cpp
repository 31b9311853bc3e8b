// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/frmSWDesign.h"

#include <array>
#include <utility>

#include "basis/number_text.h"
#include "design/design_warnings.h"
#include "design/extra_power_tab.h"
#include "design/fluid_tab.h"
#include "design/header_soil_tab.h"
#include "design/labelled_ground_temp.h"
#include "design/loop_tab.h"
#include "design/minimum_flow_tab.h"
#include "design/picture_sentences.h"
#include "design/result_values.h"
#include "design/shared_values.h"
#include "design/surface_water_rules.h"
#include "design/water_tab.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/lengths.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {
namespace {

constexpr int unsettledApproach = 16761087;

}  // namespace

frmSWDesign::frmSWDesign(Varnmain& main, std::int16_t slot)
    : ProjectDesign("frmSWDesign", DesignKind::surfaceWater, main, slot, project_,
                    {project_.fluid, project_.extraPower}) {
    addWindowControls();
    resultsTab_ = std::make_unique<ResultsTab>(*this, resultRows(), Text::requiredLoopLengths);
    inputTabs_.push_back(std::make_unique<FluidTab>(*this, project_.fluid, project_.conditions));
    inputTabs_.push_back(std::make_unique<MinimumFlowTab>(*this, project_.conditions));
    auto soilTab = std::make_unique<HeaderSoilTab>(*this, project_.soil);
    soilTab_ = soilTab.get();
    inputTabs_.push_back(std::move(soilTab));
    inputTabs_.push_back(std::make_unique<LoopTab>(*this, project_.loop, project_.header));
    inputTabs_.push_back(std::make_unique<WaterTab>(*this, project_.water, project_.details));
    inputTabs_.push_back(std::make_unique<ExtraPowerTab>(*this, project_.extraPower,
                                                         ExtraPowerTab::Motors::circulation));
    addInformationControls();
    registerInputs();
    registerResults();
}

frmSWDesign::~frmSWDesign() = default;

std::string frmSWDesign::baseCaption() const { return text(Text::surfaceWaterDesignTitle); }

std::vector<int> frmSWDesign::pageCaptions() const {
    return {Text::resultsPage,    Text::fluidPage,        Text::soilPage,
            Text::loopPipingPage, Text::surfaceWaterPage, Text::extraPowerPage,
            Text::informationPage};
}

std::vector<DesignTab*> frmSWDesign::tabs() {
    std::vector<DesignTab*> all{resultsTab_.get()};
    for (const auto& tab : inputTabs_) all.push_back(tab.get());
    return all;
}

std::vector<ResultRow> frmSWDesign::resultRows() const {
    using Get = std::function<double(Mode)>;
    const auto row = [this](const char* label, UnitTexts caption, const Quantity& quantity,
                            const Get& value) {
        return ResultRow{label, caption, [this, &quantity, value](Mode mode) {
                             return shownAs(quantity, *this, value(mode));
                         }};
    };
    using namespace quantities;
    std::vector<ResultRow> rows{
        row("CALoopLengthLabel", {Text::loopLengthEnglish, Text::loopLengthMetric}, length,
            [this](Mode m) { return results().loopLength[m]; }),
        row("CALoopNumberLabel", {Text::loopNumber, Text::loopNumber}, plain,
            [this](Mode m) { return results().loops.parallelLoops[m]; }),
        row("CAMaxParallelLoopNumberLabel", {Text::maxParallelLoops, Text::maxParallelLoops}, plain,
            [this](Mode m) { return results().loops.maxParallelLoops[m]; }),
        row("CAApproachTempLabel", {Text::approachTempEnglish, Text::approachTempMetric},
            quantities::temperatureDifference,
            [this](Mode m) { return results().approach.approachTemp[m]; }),
        row("CACircuitFlowRateLabel", {Text::circuitFlowEnglish, Text::circuitFlowMetric},
            waterFlow, [this](Mode m) { return results().flows.circuitFlow[m]; }),
        row("CAPrimaryHeaderFlowRateLabel",
            {Text::primaryHeaderFlowEnglish, Text::primaryHeaderFlowMetric}, waterFlow,
            [this](Mode m) { return results().flows.primaryHeaderFlow[m]; }),
        row("CABranchHeaderFlowRateLabel",
            {Text::branchHeaderFlowEnglish, Text::branchHeaderFlowMetric}, waterFlow,
            [this](Mode m) { return results().flows.branchHeaderFlow[m]; }),
        row("CALoopLossLabel", {Text::loopLossEnglish, Text::loopLossMetric}, headLoss,
            [this](Mode m) { return results().headLoss.loopLoss[m]; }),
        row("CAHeaderLossLabel", {Text::headerLossEnglish, Text::headerLossMetric}, headLoss,
            [this](Mode m) { return results().headLoss.headerLoss[m]; }),
        row("CATotalLossLabel", {Text::totalLossEnglish, Text::totalLossMetric}, headLoss,
            [this](Mode m) { return results().headLoss.total(m); }),
    };
    rows.front().isLength = true;
    rows[3].painted = false;
    for (ResultRow& each : unitRows(
             *this, [this]() -> const LoadsRollUp& { return results(); },
             [this] { return inputsOnShow().loads; }))
        rows.push_back(std::move(each));
    return rows;
}

/// The table's length, and what the flow of the design makes of it.
std::vector<LengthSegment> frmSWDesign::lengthParts() const {
    const ByMode<double>& length = results().loopLength;
    ByMode<double> atTableFlow = results().lengthAtTableFlow;
    if (atTableFlow == ByMode<double>{}) return {};
    ByMode<double> rest{};
    for (const Mode mode : modes) {
        if (!(length[mode] > 0)) atTableFlow[mode] = 0;
        rest[mode] = length[mode] - atTableFlow[mode];
    }
    const UnitTexts tableFlow{Text::tableFlowPartEnglish, Text::tableFlowPartMetric};
    return {partOf(*this, tableFlow.in(units()), atTableFlow),
            partOf(*this, Text::designFlowPart, rest)};
}

LengthSummary frmSWDesign::lengthSummary() const {
    constexpr LoopWords words{{Text::coolingGovernsLoops, Text::heatingGovernsLoops},
                              Text::manyLoops,
                              Text::oneLoop,
                              Text::ofPipe};
    FoundLengths found;
    // The modes may have different numbers of loops: what they need in all compares.
    found.total = found.each = lengths();
    found.governing = governingMode();
    found.state = resultsState();
    for (const Mode mode : modes) found.number[mode] = inputsOnShow().loop.parallelLoops[mode];
    return withParts(summaryOf(*this, found, words), lengthParts());
}

void frmSWDesign::registerInputs() {
    Values& values = publicValues();
    const HeaderSoilValues& soil = project_.soil;
    values.add("groundTemp", &soil.groundTemp);
    values.add("airTempSwing", &soil.airTempSwing);
    values.addArray("extremeDay", &soil.extremeDay);
    values.add("headerDepth", &soil.headerDepth);
    values.add("soilType", &soil.soilType);
    values.add("soilDiffusivity", &soil.soilDiffusivity);
    values.addArray("groundTempAtDepth", &soil.groundTempAtDepth);
    const LoopValues& loop = project_.loop;
    values.add("loopStyle", &loop.loopStyle);
    values.add("loopPipeSize", &loop.loopPipeSize);
    values.add("loopPipeOutsideDiameter", &loop.loopPipeOutsideDiameter);
    values.add("extraEqvLength", &loop.extraEqvLength);
    values.addArray("loopHeadLoss", &loop.loopHeadLoss);
    values.addArray("parallelLoops", &loop.parallelLoops);
    const HeaderValues& header = project_.header;
    values.addArray("headerCount", &header.headerCount);
    values.addArray("headerPipeSize", &header.headerPipeSize);
    values.addArray("headerOutsideDiameter", &header.headerOutsideDiameter);
    values.addArray("headerWaterFactor", &header.headerWaterFactor);
    values.addArray("headerSoilFactor", &header.headerSoilFactor);
    values.addArray("headerHeadLoss", &header.headerHeadLoss);
    values.addArray("headerLength", &header.headerLength);
    values.addArray("loopWaterTemp", &project_.water.loopWaterTemp);
    values.addArray("headerWaterTemp", &project_.water.headerWaterTemp);
    values.add("surfaceWaterType", &project_.details.surfaceWaterType);
    values.add("surfaceArea", &project_.details.surfaceArea);
    values.add("loopPipeDepth", &project_.details.loopPipeDepth);
    values.addArray("minimumLoopFlow", &project_.conditions.minflowRate);
    values.add("fluidSpecificHeat", &project_.fluid.specificHeat);
    values.add("annualGroundLoad", &project_.annualGroundLoad);
}

void frmSWDesign::registerResults() {
    Values& values = publicValues();
    addRollUpValues(values, [this]() -> const LoadsRollUp& { return results(); });
    using R = const SurfaceWaterResults&;
    ResultValues<SurfaceWaterResults> of(values, [this]() -> R { return results(); });
    of.array(
        "loopLength", [](R r) -> auto& { return r.loopLength; });
    of.array(
        "maxParallelLoops", [](R r) -> auto& { return r.loops.maxParallelLoops; });
    of.array("headerHeatPickup", [](R r) {
        const auto& [submerged, buried] = r.approach.headerHeatPickup[heating];
        return std::array<double, 2>{submerged, buried};
    });
    of.array(
        "approachTemp", [](R r) -> auto& { return r.approach.approachTemp; });
    of.array(
        "circuitFlow", [](R r) -> auto& { return r.flows.circuitFlow; });
    of.array(
        "primaryHeaderFlow", [](R r) -> auto& { return r.flows.primaryHeaderFlow; });
    of.array(
        "branchHeaderFlow", [](R r) -> auto& { return r.flows.branchHeaderFlow; });
    of.array(
        "loopLoss", [](R r) -> auto& { return r.headLoss.loopLoss; });
    of.array(
        "headerLoss", [](R r) -> auto& { return r.headLoss.headerLoss; });
}

void frmSWDesign::fillDefaults() {
    project_.results.edit().outlet.outletTemp = project_.conditions.inletTemp;
    project_.soil.groundTempAtDepth = correctGroundTemp(project_.soil);
}

void frmSWDesign::resultsFound() {
    const SurfaceWaterInputs& settled = *results().inputs;
    project_.loop.parallelLoops = settled.loop.parallelLoops;
    project_.soil.groundTempAtDepth = settled.soil.groundTempAtDepth;
    showGoverningMode();
    resultsTab_->setUnitLabels();
    // What the run has settled among the inputs.
    soilTab_->showCorrected();
    for (const Mode mode : modes) fields().show(elementName("PIParallelLoopsText", mode));
}

std::vector<std::string> frmSWDesign::warnings() const {
    return sentencesOf(warningsOf(project()), *this);
}

std::string frmSWDesign::shownLength(double feet) const {
    return shownWithUnit(quantities::length, *this, feet,
                         {Text::lengthUnitsEnglish, Text::lengthUnitsMetric});
}

ByMode<std::string> frmSWDesign::shownFlows(const ByMode<double>& flow) const {
    ByMode<std::string> shown;
    if (!resultsArePresent()) return shown;
    for (const Mode mode : modes)
        shown[mode] = shownWithUnit(quantities::waterFlow, *this, flow[mode],
                                    {Text::loopFlowUnitsEnglish, Text::loopFlowUnitsMetric});
    return shown;
}

std::string frmSWDesign::descriptionOf(const std::string& image) const {
    if (image == "imgCircuit") return describe(circuitPlan(), texts());
    if (image == "imgGroundTemp") return describe(groundTempCurves(), texts());
    if (image == "imgLoopCurves") return describe(loopCurves(), texts());
    return ProjectDesign::descriptionOf(image);
}

CircuitPlan frmSWDesign::circuitPlan() const {
    CircuitPlan plan = drawCircuit(project_.loop, project_.header);
    const modCalculations::PipeFlows& flows = results().flows;
    plan.systemFlow = shownFlows(results().outlet.systemFlow);
    plan.loopFlow = shownFlows(flows.circuitFlow);
    plan.primary.flow = shownFlows(flows.primaryHeaderFlow);
    plan.branch.flow = shownFlows(flows.branchHeaderFlow);
    const std::array<double, 4>& lengths = project_.header.headerLength;
    std::size_t next = 0;
    for (CircuitHeaders* header : {&plan.primary, &plan.branch})
        for (std::string* label : {&header->inWater, &header->inSoil}) {
            const double feet = lengths[next++];
            if (feet > 0) *label = shownLength(feet);
        }
    return plan;
}

GroundTempCurves frmSWDesign::groundTempCurves() const {
    const HeaderSoilValues& soil = project_.soil;
    return labelledGroundTemp(*this, soil.headerDepth, soil.soilDiffusivity,
                              {soil.groundTemp, soil.airTempSwing, soil.extremeDay},
                              soil.groundTempAtDepth);
}

LoopCurves frmSWDesign::loopCurves() const {
    const UnitTexts degrees{Text::groundTemperatureUnitsEnglish,
                            Text::groundTemperatureUnitsMetric};
    const UnitTexts length{Text::lengthUnitsEnglish, Text::lengthUnitsMetric};
    const bool found = resultsArePresent();
    const ByMode<double> approach = found ? results().approach.approachTemp : ByMode<double>{};
    LoopCurves curves =
        drawLoopCurves({project_.loop.loopStyle, project_.loop.loopPipeSize}, approach, units());
    curves.lengthUnit = text(length.in(units()));
    curves.differenceUnit = text(degrees.in(units()));
    return curves;
}

void frmSWDesign::showNoGoverningMode() { resultsTab_->paintPlain(); }

void frmSWDesign::showGoverningMode(Mode greyed) {
    resultsTab_->paintGoverning(greyed);
    paintApproach();
}

void frmSWDesign::paintApproach() {
    for (const Mode mode : modes)
        element("CAApproachTempLabel", static_cast<int>(mode))
            .setForecolor(results().approach.unsettled[mode] ? unsettledApproach : colours::black);
}

}  // namespace varnholt
