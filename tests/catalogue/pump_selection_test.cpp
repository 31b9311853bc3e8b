// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_selection.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "basis/file_system.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/sample_models.h"

namespace varnholt {
namespace {

using Models = std::vector<pump>;

/// Without catalogue flows no correction: the total is n times the capacity, exactly.
pump exactModel(const std::string& name, double coolingCapacity, double heatingCapacity) {
    pump model = plainModel(name, coolingCapacity, heatingCapacity);
    model.ewt[3].flowRate = {};
    return model;
}

PumpSelection search(const Models& models, const Gains& gains,
                     const EvaluationConditions& conditions = {}) {
    return AutoFindBestPump(models, gains, conditions);
}

TEST(PumpSelection, ResolvesATieToTheEarlierModelOfTheFile) {
    const Models models{exactModel("A", 10, 10), exactModel("B", 30, 30), exactModel("C", 30, 30)};
    EXPECT_EQ(search(models, peaks(20, 20)).index, 1U);
    EXPECT_EQ(search(models, peaks(20, 20)).number, 1);
}

TEST(PumpSelection, NeedsOneModelThatMeetsBothPeaks) {
    // Model 3 has the cooling, model 5 is the first with the heating too.
    const Models models{exactModel("0", 5, 5),  exactModel("1", 8, 8),  exactModel("2", 10, 10),
                        exactModel("3", 25, 9), exactModel("4", 9, 30), exactModel("5", 26, 30)};
    const PumpSelection selection = search(models, peaks(20, 20));
    EXPECT_EQ(selection.index, 5U);
    EXPECT_EQ(selection.number, 1);
}

TEST(PumpSelection, DoesNotTakeAModelThatJustEqualsThePeak) {
    const Models models{exactModel("A", 20, 30)};
    EXPECT_EQ(search(models, peaks(20, 20)).number, 2);
    EXPECT_EQ(search(models, peaks(19.999, 20)).number, 1);
}

TEST(PumpSelection, PrefersFewerUnitsToAnEarlierModel) {
    const Models models{exactModel("A", 12, 12), exactModel("B", 21, 21)};
    EXPECT_EQ(search(models, peaks(20, 20)).index, 1U);
    EXPECT_EQ(search(models, peaks(23, 23)).index, 0U);
    EXPECT_EQ(search(models, peaks(23, 23)).number, 2);
}

TEST(PumpSelection, HandlesAModeWithoutLoadAsAPeakOfOne) {
    const Models models{exactModel("A", 30, 0.4), exactModel("B", 30, 1.5)};
    EXPECT_EQ(search(models, peaks(20, 0)).index, 1U);
    EXPECT_EQ(search({models[0]}, peaks(20, 0)).number, 3);  // 3 x 0.4 is above 1
}

TEST(PumpSelection, CountsTheSourceFlowCorrection) {
    // Peak 21 of 20: below 1.2. Flow 21 / 12 x 3 = 5.25, slope (1.3 x 20 - 20) / 3 = 2; the
    // correction 2 x (5.25 - 6) = -1.5 makes 18.5. Peak 30: overloaded, no correction, 20.
    pump model = plainModel("A", 20, 100);
    model.flowCf[0] = {1.3, 1};
    EXPECT_EQ(search({model}, peaks(21, 1)).number, 2);
    // With 3 and 6 gpm the same flow is 2.25 above the first: 20 + 2 x 2.25 = 24.5. A peak of 24.1
    // is overloaded (1.205), so one unit stays at 20.
    model.ewt[3].flowRate[0].flowRate = 3;
    model.ewt[3].flowRate[1].flowRate = 6;
    EXPECT_EQ(search({model}, peaks(21, 1)).number, 1);
    EXPECT_EQ(search({model}, peaks(24.1, 1)).number, 2);
}

TEST(PumpSelection, SearchesAnEmptySeriesInVain) {
    const PumpSelection selection = search({}, peaks(20, 20));
    EXPECT_EQ(selection.index, noPump);
    EXPECT_EQ(selection.number, 100);
}

TEST(PumpSelection, GivesUpAfterAHundredUnits) {
    EXPECT_EQ(search({exactModel("A", 1, 1)}, peaks(99.5, 1)).number, 100);
    EXPECT_EQ(search({exactModel("A", 1, 1)}, peaks(99.5, 1)).index, 0U);
    EXPECT_EQ(search({exactModel("A", 1, 1)}, peaks(100, 1)).index, noPump);
}

TEST(PumpSelection, TakesAtMost101Models) {
    Models models(100, exactModel("small", 1, 1));
    models.push_back(exactModel("large", 50, 50));
    EXPECT_EQ(search(models, peaks(20, 20)).index, 100U);
    models.push_back(exactModel("one too many", 50, 50));
    EXPECT_EQ(errorOf([&] { search(models, peaks(20, 20)); }), 9);
}

TEST(PumpSelection, EndsWithDivisionByZeroForEqualCatalogueFlowsWhereverTheModelStands) {
    Models models{plainModel("A", 50, 50), plainModel("B", 60, 60)};
    models[1].ewt[3].flowRate[1].flowRate = 6;
    EXPECT_EQ(errorOf([&] { search(models, peaks(20, 20)); }), 11);
}

TEST(PumpSelection, TakesTheLoadTemperaturesByTheFirstModelUnlessUpdating) {
    Models models{exactModel("A", 50, 50), exactModel("B", 50, 50)};
    EXPECT_EQ(search(models, peaks(20, 20)).elt, (ByMode<double>{67, 70}));
    models[0].pumpType = 1;
    EXPECT_EQ(search(models, peaks(20, 20)).elt, (ByMode<double>{55, 100}));
    EvaluationConditions conditions;
    conditions.updating = true;
    conditions.temporaryInletTemp = {61, 81};
    EXPECT_EQ(search(models, peaks(20, 20), conditions).elt, (ByMode<double>{61, 81}));
}

TEST(AutoSelection, OverwritesACustomPump) {
    MiniPump custom;
    custom.name = "typed";
    custom.capacity = {99, 99};
    custom.elf = {500, 500};
    custom.elt = {1, 1};
    pump model = plainModel("A", 30, 30);
    model.nominalFlow = 800;
    const MiniPump placed = autoSelectPump(Models{model}, peaks(20, 20), custom, {});
    EXPECT_EQ(placed.customPump, 0);
    EXPECT_EQ(placed.name, "A");
    EXPECT_EQ(placed.elt, (ByMode<double>{67, 70}));
    EXPECT_EQ(placed.elf, (ByMode<double>{800, 800}));  // nominal, not the typed flow
}

TEST(AutoSelection, LaterEvaluationsUseTheNumberOfUnitsItFound) {
    const Models models{plainModel("A", 30, 30)};
    const MiniPump placed = autoSelectPump(models, peaks(80, 20), {}, {});
    EXPECT_EQ(placed.number, 3);
    EXPECT_EQ(evaluatePump(models[0], placed.number, peaks(80, 20), placed, {}), placed);
}

TEST(AutoSelection, WithoutAFittingModelIsAnErrorAndNoPump) {
    EXPECT_EQ(errorOf([] { autoSelectPump({}, peaks(20, 20), {}, {}); }), 9);
    const Models small{plainModel("A", 0.1, 0.1)};
    EXPECT_EQ(errorOf([&] { autoSelectPump(small, peaks(20, 20), {}, {}); }), 9);
}

TEST(AutoSelection, WhileUpdatingKeepsTheLoadFlowOfTheSameModelOnly) {
    pump model = plainModel("A", 30, 30);
    model.nominalFlow = 800;
    EvaluationConditions conditions;
    conditions.updating = true;
    conditions.temporaryInletTemp = {66, 71};
    conditions.temporaryInletFlow = {700, 750};
    MiniPump current;
    current.name = "A";
    MiniPump placed = autoSelectPump(Models{model}, peaks(20, 20), current, conditions);
    EXPECT_EQ(placed.elt, (ByMode<double>{66, 71}));
    EXPECT_EQ(placed.elf, (ByMode<double>{700, 750}));
    current.name = "another";
    placed = autoSelectPump(Models{model}, peaks(20, 20), current, conditions);
    EXPECT_EQ(placed.elf, (ByMode<double>{800, 800}));
}

/// The rule as it is told, without anything taken out of the loops.
PumpSelection searchAsTold(const Models& models, const Gains& gains,
                           const DesignConditions& design) {
    const ByMode<double> elt =
        models[0].pumpType == 0 ? design.inletLoadAirTemp : design.inletLoadWaterTemp;
    for (std::int16_t n = 1; n <= 100; ++n)
        for (std::size_t i = 0; i < models.size(); ++i) {
            ByMode<double> excess{};
            for (const Mode m : modes) {
                double peak = 1;
                for (const auto& block : gains) peak = block[m] > peak ? block[m] : peak;
                const auto& c = models[i].coefficients.capacity;
                const auto& b = models[i].coefficients.capacityCorrection;
                const double x = design.inletTemp[m], t = elt[m];
                const double q0 = models[i].ewt[3].flowRate[0].flowRate;
                const double q1 = models[i].ewt[3].flowRate[1].flowRate;
                double total = n * (c[0][m] + c[1][m] * x + c[2][m] * x * x) *
                               (b[0][m] + b[1][m] * t + b[2][m] * t * t + b[3][m] * t * t * t);
                const double per = total / n;
                const double slope = q0 != 0 ? (models[i].flowCf[0][m] * per - per) / (q1 - q0) : 0;
                double correction = 0;
                if (total > 0 && peak / total < 1.2)
                    correction = slope * ((peak / n) / 12 * design.flowRate - q0);
                if (total > 0) total = total + n * correction;
                excess[m] = total - peak;
            }
            if (excess[0] > 0 && excess[1] > 0) return {i, n, elt};
        }
    return {noPump, 100, elt};
}

TEST(PumpSelection, AgreesWithTheRuleAsToldOnTheShippedCatalogue) {
    std::mt19937 random(20260115);
    for (const char* file : {"nf_meadow", "nf_ridge", "ac_compact", "ac_millrace"}) {
        PumpSeries series;
        readPumpSeries(readWholeFile(pumpSeriesPath(VARNHOLT_SOURCE_DIR "/resources/pumps", file)),
                       series);
        for (int k = 0; k < 500; ++k) {
            const auto load = [&] { return static_cast<double>(random() % 30000) / 100; };
            const Gains gains = peaks(load(), load());
            EXPECT_EQ(search(series.models, gains), searchAsTold(series.models, gains, {}));
        }
    }
}

}  // namespace
}  // namespace varnholt
