// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/frmBHDesign.h"

#include <utility>

#include "basis/number_text.h"
#include "design/arrangement_tab.h"
#include "design/bore_tab.h"
#include "design/design_warnings.h"
#include "design/extra_power_tab.h"
#include "design/fluid_tab.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/picture_sentences.h"
#include "design/result_values.h"
#include "design/shared_values.h"
#include "design/soil_tab.h"
#include "forms/quantity.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/lengths.h"

namespace varnholt {
frmBHDesign::frmBHDesign(Varnmain& main, std::int16_t slot)
    : TowerDesign("frmBHDesign", DesignKind::borehole, main, slot, project_,
                  {project_.fluid, project_.extraPower, &project_.tower}) {
    addWindowControls();
    addResults(resultRows(), Text::requiredBoreLengths, [this] {
        addSecondOpinion();
        addWhatIf();
    });
    // The number of bores stands once, though there is a label for each mode.
    element("CABoreholeNumberLabel", heating).setVisible(false);
    addTab<FluidTab>(project_.fluid, project_.conditions);
    addTab<SoilTab>(project_.soil);
    addTab<BoreTab>(project_.pipe, project_.bore);
    addTab<ArrangementTab>(project_.arrangement);
    addTab<ExtraPowerTab>(project_.extraPower);
    addInformationControls();
    registerBoreholeValues();
}

std::string frmBHDesign::baseCaption() const { return text(Text::boreholeDesignTitle); }

std::vector<int> frmBHDesign::pageCaptions() const {
    return {Text::resultsPage, Text::fluidPage,      Text::soilPage,       Text::pipingPage,
            Text::patternPage, Text::extraPowerPage, Text::informationPage};
}

std::vector<ResultRow> frmBHDesign::resultRows() const {
    const auto total = [this](Mode mode) { return shownAs(quantities::length, *this, GetL(mode)); };
    const auto number = [this](Mode) { return formatNumber(boresOnShow(), "###0"); };
    const auto each = [this](Mode mode) {
        return shownAs(quantities::length, *this, lengthOfEach(mode));
    };
    std::vector<ResultRow> rows{
        {"CATotalLengthLabel", {Text::totalLengthEnglish, Text::totalLengthMetric}, total, true},
        {"CABoreholeNumberLabel", {Text::boreholeNumber, Text::boreholeNumber}, number},
        {"CABoreholeLengthLabel",
         {Text::boreholeLengthEnglish, Text::boreholeLengthMetric},
         each,
         true},
    };
    for (ResultRow& row : secondOpinionRows()) rows.push_back(std::move(row));
    const auto rollUp = [this]() -> const LoadsRollUp& { return results(); };
    const auto inputs = [this] { return inputsOnShow().loads; };
    for (ResultRow& row : unitRows(*this, rollUp, inputs)) rows.push_back(std::move(row));
    rows.push_back(soilChangeRow(*this, [this](Mode mode) { return GetTemperaturePenalty(mode); }));
    return rows;
}

double frmBHDesign::boresOnShow() const {
    const auto& rows = inputsOnShow().arrangement.patternRows;
    return rows[0] * rows[1];
}

double frmBHDesign::lengthOfEach(Mode mode) const {
    const double bores = boresOnShow();
    return bores == 0 ? 0 : GetL(mode) / bores;
}

LengthSummary frmBHDesign::lengthSummary() const {
    constexpr LoopWords words{{Text::coolingGovernsBores, Text::heatingGovernsBores},
                              Text::manyBores,
                              Text::oneBore,
                              Text::aBore};
    const double bores = boresOnShow();
    LengthSummary summary = summaryOf(*this,
                                      {lengths(),
                                       {lengthOfEach(cooling), lengthOfEach(heating)},
                                       {bores, bores},
                                       governingMode(),
                                       resultsState()},
                                      words);
    return withParts(std::move(summary), groundParts(*this, results().lengthShares, lengths(),
                                                     Text::boreResistancePart));
}

void frmBHDesign::registerBoreholeValues() {
    Values& values = publicValues();
    addSoilValues(values, project_.soil);
    addPipeValues(values, project_.pipe);
    addGroundValues(values, [this]() -> const GroundRollUp& { return results(); });
    addResultValues(values);
    const BoreValues& bore = project_.bore;
    values.add("uTubeConfig", &bore.uTubeConfig);
    values.add("pipePlacement", &bore.pipePlacement);
    values.add("boreDiameter", &bore.boreDiameter);
    values.add("groutConductivity", &bore.groutConductivity);
    values.add("boreResistance", &bore.boreResistance);
    addAccessors(values);
    const ArrangementValues& arrangement = project_.arrangement;
    values.addArray("patternRows", &arrangement.patternRows);
    values.add("boreSeparation", &arrangement.boreSeparation);
    values.add("boresPerCircuit", &arrangement.boresPerCircuit);
    values.add("predictionTime", &arrangement.predictionTime);
    addSecondOpinionValues();
}

void frmBHDesign::addResultValues(Values& values) {
    using R = const BoreholeResults&;
    ResultValues<BoreholeResults> of(values, [this]() -> R { return results(); });
    of.array("groundResistance", [](R r) { return elementsOf(r.groundResistance); });
    of.array(
        "neighbourCount", [](R r) -> auto& { return r.neighbourCount; });
    of.array(
        "temperaturePenalty", [](R r) -> auto& { return r.lengths.temperaturePenalty; });
    of.array(
        "boreLength", [](R r) -> auto& { return r.lengths.boreLength; });
    of.array(
        "previousBoreLength", [](R r) -> auto& { return r.lengths.previousBoreLength; });
}

/// What the report layer asks for by functions.
void frmBHDesign::addAccessors(Values& values) {
    const auto modeOf = [](const Values::Indices& i) {
        checkIndex(i[0], modes.size());
        return i[0] == 0 ? cooling : heating;
    };
    values.add("GetL", 1, [this, modeOf](const Values::Indices& i) { return GetL(modeOf(i)); });
    values.add("GetTemperaturePenalty", 1, [this, modeOf](const Values::Indices& i) {
        return GetTemperaturePenalty(modeOf(i));
    });
    values.add("GetGroundTemp", 0, [this](const Values::Indices&) { return GetGroundTemp(); });
    values.add("shapeFit", 1, [this](const Values::Indices& i) {
        constexpr int average = 1;
        const int placement = entryOf(project_.bore.pipePlacement, 3);
        const auto& fit = modCalculations::shapeFit(placement < 0 ? average : placement);
        checkIndex(i[0], 2);
        return i[0] == 0 ? fit.constant : fit.exponent;
    });
}

bool frmBHDesign::tellsError(int number) const {
    constexpr int divisionByZero = 11;
    return number == divisionByZero;
}

std::string frmBHDesign::descriptionOf(const std::string& image) const {
    if (image == "imgBore") return describe(boreDrawing(), texts());
    if (image == "imgField") return describe(fieldPlan(), texts());
    return TowerDesign::descriptionOf(image);
}

BoreDrawing frmBHDesign::boreDrawing() const {
    BoreDrawing drawing = drawBore(project_.bore, project_.pipe);
    const auto label = [this](double inches) {
        return shownWithUnit(quantities::diameter, *this, inches,
                             {Text::diameterUnitsEnglish, Text::diameterUnitsMetric}, "###0.00");
    };
    drawing.boreLabel = label(project_.bore.boreDiameter);
    drawing.pipeLabel = label(project_.pipe.pipeDiameter[0]);
    return drawing;
}

FieldPlan frmBHDesign::fieldPlan() const {
    FieldPlan plan = drawField(project_.arrangement);
    const auto label = [this](double feet) {
        return shownWithUnit(quantities::length, *this, feet,
                             {Text::lengthUnitsEnglish, Text::lengthUnitsMetric});
    };
    plan.separationLabel = label(plan.separation);
    plan.acrossLabel = label(fieldExtent(plan.across, plan.separation));
    plan.downLabel = label(fieldExtent(plan.down, plan.separation));
    return plan;
}

std::vector<std::string> frmBHDesign::warnings() const {
    return sentencesOf(warningsOf(project()), *this);
}

}  // namespace varnholt
