// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/frmBHDesign.h"

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/arrangement_tab.h"
#include "design/bore_tab.h"
#include "design/extra_power_tab.h"
#include "design/fluid_tab.h"
#include "design/shared_values.h"
#include "design/soil_tab.h"

namespace varnholt {

frmBHDesign::frmBHDesign(Varnmain& main, std::int16_t slot)
    : GroundDesign("frmBHDesign", DesignKind::borehole, main, slot) {
    addWindowControls();
    resultsTab_ = std::make_unique<ResultsTab>(*this, resultRows(), 2101);
    // The number of bores stands once, though there is a label for each mode.
    element("CABoreholeNumberLabel", heating).setVisible(false);
    towerPanel_ = std::make_unique<TowerPanel>(*this, tower, [this] {
        return modCalculations::TowerYear{results.cop.heatPumpCOP[cooling],
                                          results.annualTonHours[cooling], tower.hybridPercent};
    });
    inputTabs_.push_back(std::make_unique<FluidTab>(*this, fluid));
    inputTabs_.push_back(std::make_unique<SoilTab>(*this, soil));
    inputTabs_.push_back(std::make_unique<BoreTab>(*this, pipe, bore));
    inputTabs_.push_back(std::make_unique<ArrangementTab>(*this, arrangement));
    inputTabs_.push_back(std::make_unique<ExtraPowerTab>(*this, extraPower));
    addInformationControls();
    registerBoreholeValues();
}

frmBHDesign::~frmBHDesign() = default;

std::string frmBHDesign::baseCaption() const { return text(2001); }

std::vector<int> frmBHDesign::pageCaptions() const {
    return {2002, 2003, 2004, 2005, 2006, 2007, 2010};
}

std::vector<DesignTab*> frmBHDesign::tabs() {
    std::vector<DesignTab*> all{resultsTab_.get(), towerPanel_.get()};
    for (const auto& tab : inputTabs_) all.push_back(tab.get());
    return all;
}

std::vector<ResultRow> frmBHDesign::resultRows() const {
    const auto bores = [this] { return arrangement.patternRows[0] * arrangement.patternRows[1]; };
    const auto total = [this](Mode mode) { return shownAs(quantities::length, *this, GetL(mode)); };
    const auto number = [bores](Mode) { return formatNumber(bores(), "###0"); };
    const auto each = [this, bores](Mode mode) {
        return shownAs(quantities::length, *this, bores() == 0 ? 0 : GetL(mode) / bores());
    };
    std::vector<ResultRow> rows{
        {"CATotalLengthLabel", 2104, 2105, total, true},
        {"CABoreholeNumberLabel", 2106, 2106, number},
        {"CABoreholeLengthLabel", 2107, 2108, each, true},
    };
    for (ResultRow& row : unitRows(*this, results)) rows.push_back(std::move(row));
    rows.push_back(soilChangeRow(*this, results.lengths.temperaturePenalty));
    return rows;
}

void frmBHDesign::registerBoreholeValues() {
    Values& values = publicValues();
    registerRollUp(results);
    addBoreholeResults(values, results);
    values.add("uTubeConfig", &bore.uTubeConfig);
    values.add("pipePlacement", &bore.pipePlacement);
    values.add("boreDiameter", &bore.boreDiameter);
    values.add("groutConductivity", &bore.groutConductivity);
    values.add("boreResistance", &bore.boreResistance);
    values.addArray("patternRows", &arrangement.patternRows);
    values.add("boreSeparation", &arrangement.boreSeparation);
    values.add("boresPerCircuit", &arrangement.boresPerCircuit);
    values.add("predictionTime", &arrangement.predictionTime);
}

void frmBHDesign::fillDefaults() {
    results.outlet.outletTemp = inletTemp;
    tower.tower.range = results.outlet.outletTemp[cooling] - inletTemp[cooling];
}

LoadsInputs frmBHDesign::loadsInputs() const {
    return {zones(),  extraPower.extraPower, inletTemp, flowRate, fluid.fluid(),
            hybridOn, tower.hybridPercent};
}

BoreholeInputs frmBHDesign::inputs() const {
    return {loadsInputs(), soil, bore, arrangement, tower.tower.range};
}

void frmBHDesign::calculate() {
    const Varnmain& frame = main();
    TransferLoadsVariablesIn();
    if (!frame.isOpen(this)) return;
    if (!hybridOn) towerPanel_->drop();
    if (zoneNumber == 0) return tellNoLoads();

    BoreholeRun run(inputs());
    run.calcPeakLoads();
    if (!run.hasLoad()) return show(MessageIcon::information, text(2814));
    run.prepareHybrid();
    run.calcPeakDemand();
    run.calcPartLoadFactors();
    run.calcSystemCOP();
    run.calculateLoadTonHours();
    run.calcAnnualGroundLoad();
    run.calcGroundResistances();
    run.calcUnitOutletTemps();
    run.initTemperaturePenalty();
    run.calcBoreLengths();
    run.countNeighbours();
    run.calcTemperaturePenalty();
    run.calcBoreLengths();
    iterate(run);
    run.restorePeakLoad();
    keep(run);
    showGoverningMode();
    resultsTab_->setUnitLabels();
    towerPanel_->setUnitLabels();
}

void frmBHDesign::tellNoLoads() {
    show(MessageIcon::information, text(2814));
    tower.tower.capacity = 0;
    towerPanel_->drop();
    towerPanel_->setUnitLabels();
}

void frmBHDesign::iterate(BoreholeRun& run) {
    run.iterate();
    const modCalculations::SettledLengths& lengths = run.results().lengths;
    if (lengths.failed) show(MessageIcon::plain, text(2151) + std::to_string(lengths.iterations));
}

void frmBHDesign::keep(const BoreholeRun& run) {
    results = run.results();
    tower.tower = run.tower();
}

void frmBHDesign::showGoverningMode() {
    showGoverningMode(GetL(cooling) > GetL(heating) ? heating : cooling);
}

void frmBHDesign::showGoverningMode(Mode greyed) {
    resultsTab_->paintGoverning(greyed);
    if (greyed == heating)
        towerPanel_->wake();
    else if (!towerIsOn())
        towerPanel_->rest();
}

void frmBHDesign::rollUpLoads() {
    LoadsRun run(loadsInputs(), results);
    run.calcPeakLoads();
    run.prepareHybrid();
    run.calcPeakDemand();
    run.calcPartLoadFactors();
    run.calcSystemCOP();
    run.calcUnitOutletTemps();
    run.restorePeakLoad();
}

void frmBHDesign::loadsChanged() {
    try {
        rollUpLoads();
    } catch (const RunTimeError&) {
        // A file may hold a fluid with which no loads add up. They are taken over all the same;
        // the next run says what is wrong.
    }
    fields().showAll("FL");
}

std::string frmBHDesign::shownWithUnit(const Quantity& quantity, double value, int metric,
                                       int english, const char* format) const {
    const bool inMetric = units() == UnitSystem::metric;
    return formatNumber(quantity.shown(value, units()), format) + " " +
           text(inMetric ? metric : english);
}

BoreDrawing frmBHDesign::boreDrawing() const {
    BoreDrawing drawing = drawBore(bore, pipe);
    const auto label = [this](double inches) {
        return shownWithUnit(quantities::diameter, inches, 2448, 2449, "###0.00");
    };
    drawing.boreLabel = label(bore.boreDiameter);
    drawing.pipeLabel = label(pipe.pipeDiameter[0]);
    return drawing;
}

FieldPlan frmBHDesign::fieldPlan() const {
    FieldPlan plan = drawField(arrangement);
    const auto label = [this](double feet) {
        return shownWithUnit(quantities::length, feet, 2511, 2512, "###0.0");
    };
    plan.separationLabel = label(plan.separation);
    plan.acrossLabel = label(fieldExtent(plan.across, plan.separation));
    plan.downLabel = label(fieldExtent(plan.down, plan.separation));
    return plan;
}

}  // namespace varnholt
