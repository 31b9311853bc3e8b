// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/field_method.h"

#include <gtest/gtest.h>

#include <cmath>

#include "design/secondOpinion/second_opinion.h"
#include "design/whatIf/certainty.h"
#include "design/whatIf/layout_search.h"
#include "design/whatIf/office.h"
#include "forms/text_numbers/what_if.h"

namespace varnholt {
namespace {

/// The method with the tables that it fills.
class Measured {
 public:
    explicit Measured(BoreholeInputs design, OpinionSettings settings = {})
        : design_(std::move(design)),
          zones_(design_.loads.zones),
          method_(std::move(settings), memory_) {}

    CaseFigures figures(const CaseFactors& factors = {}, double drawnLength = 0) {
        for (;;) {
            if (const auto figures =
                    method_.figures({zones_, design_, drawnLength, about}, factors))
                return *figures;
            method_.computeMore();
        }
    }
    Reason reason() { return method_.reasonAgainst({zones_, design_, 0, 0}); }
    Reason reason(Mode mode) { return method_.reasonOf({zones_, design_, 0, 0}, mode); }

    double about = 0;

 private:
    BoreholeInputs design_;
    RolledZones zones_;
    FieldMemory memory_;
    FieldMethod method_;
};

SecondOpinion opinionOf(const BoreholeInputs& design, const SecondOpinionInputs& window = {}) {
    SecondOpinionMemory memory;
    return secondOpinionOf({design, window, {}}, memory);
}

BoreholeInputs typed(BoreholeInputs design, const CaseFactors& factors) {
    design.soil.conductivity *= factors.conductivity;
    design.soil.diffusivity *= factors.diffusivity;
    design.soil.groundTemp += factors.groundTemp;
    design.bore.boreResistance *= factors.boreResistance;
    Zone& zone = design.loads.zones.edit(0);
    for (Mode m : modes) {
        for (auto& gain : zone.gains) gain[m] *= factors.loads[m];
        zone.pump.watts[m] *= factors.pumpPower;
    }
    return design;
}

TEST(FieldMethod, NeedsWhatTheSecondOpinionNeeds) {
    for (const SecondOpinionInputs& window :
         {SecondOpinionInputs{}, SecondOpinionInputs{.buriedDepth = 10, .pulseHours = 8},
          SecondOpinionInputs{.southern = true, .cylinder = true}}) {
        const SecondOpinion opinion = opinionOf(officeInputs(), window);
        const CaseFigures figures = Measured(officeInputs(), {window, {}}).figures();
        for (Mode m : modes) EXPECT_NEAR(figures.length[m] / opinion.soLength[m], 1, 4e-4) << m;
    }
    EXPECT_NEAR(Measured(officeInputs()).figures().need(), 9762, 5);
}

TEST(FieldMethod, ReadsEveryCaseFromOneTable) {
    // Each case typed into a design of its own has g-functions of its own.
    Measured measured(officeInputs());
    measured.about = 325;
    const Cases cases({});
    int tried = 0;
    for (const Drivers& drivers : driversOfSet(2, 8)) {
        CaseFactors factors = cases.at(drivers);
        factors.hours = {1, 1};
        const SecondOpinion opinion = opinionOf(typed(officeInputs(), factors));
        EXPECT_NEAR(measured.figures(factors).need() /
                        std::max(opinion.soLength[cooling], opinion.soLength[heating]),
                    1, 4e-4);
        ++tried;
    }
    EXPECT_EQ(tried, 8);
}

TEST(FieldMethod, ServesSoilsAndDepthsFarFromTheDesigns) {
    Measured measured(officeInputs());
    measured.about = 325;
    for (const auto& [conductivity, loads] : {std::pair{0.3, 0.5}, std::pair{3.0, 2.5}}) {
        CaseFactors factors;
        factors.conductivity = conductivity;
        factors.diffusivity = conductivity;
        factors.loads = {loads, loads};
        const SecondOpinion opinion = opinionOf(typed(officeInputs(), factors));
        const double expected = std::max(opinion.soLength[cooling], opinion.soLength[heating]);
        ASSERT_GT(expected, 0);
        EXPECT_NEAR(measured.figures(factors).need() / expected, 1, 6e-4) << conductivity;
    }
}

TEST(FieldMethod, HasTheLimitAsEnteringWaterAtTheNeed) {
    Measured measured(officeInputs());
    const double need = measured.figures().need();
    EXPECT_NEAR(measured.figures({}, need).entering[cooling], 85, 0.01);
    EXPECT_LT(measured.figures({}, 1.2 * need).entering[cooling], 84);
    CaseFactors longer;
    longer.method = 1.2;
    EXPECT_NEAR(measured.figures(longer).need(), 1.2 * need, 0.05);
    EXPECT_NEAR(measured.figures(longer, 1.2 * need).entering[cooling], 85, 0.01);
}

TEST(FieldMethod, SpreadsAsTheOfficeDoes) {
    Measured measured(officeInputs());
    measured.about = measured.figures().need() / 30;
    const Cases cases({});
    CertaintySum sum;
    for (std::size_t set = 0; set < caseSets; ++set) {
        std::vector<CaseFigures> figures;
        for (const Drivers& drivers : driversOfSet(set, 256))
            figures.push_back(measured.figures(cases.at(drivers)));
        sum.add(std::move(figures));
    }
    const Certainty certainty = sum.certainty(9762, 0.9);
    EXPECT_NEAR(certainty.need.p10, 7500, 75);
    EXPECT_NEAR(certainty.need.p50, 9790, 98);
    EXPECT_NEAR(certainty.need.p90, 12'710, 127);
}

TEST(FieldMethod, SaysWhatStandsAgainstADesign) {
    BoreholeInputs design = officeInputs();
    design.arrangement.patternRows = {60, 50};
    EXPECT_FALSE(Measured(design).figures().computed);
    EXPECT_EQ(Measured(design).reason(),
              (Reason{Text::whatIfTooManyBores, {{FigureKind::count, 2'500}}}));
    design = officeInputs();
    design.arrangement.boreSeparation = 0.3;
    EXPECT_EQ(Measured(design).reason().text, Text::whatIfBoresTooClose);
    EXPECT_FALSE(Measured(officeInputs()).reason().holds());
}

TEST(FieldMethod, HasNoLengthWhereNoDepthHoldsTheLimit) {
    BoreholeInputs design = officeInputs();
    design.arrangement.patternRows = {1, 2};
    Measured measured(design);
    EXPECT_EQ(measured.figures().length[cooling], noLength);
    const Reason reason = measured.reason(cooling);
    EXPECT_EQ(reason.text, Text::whatIfNoDepthHolds);
    ASSERT_EQ(reason.figures.size(), 2u);
    EXPECT_EQ(reason.figures[0], (Figure{FigureKind::feet, 2'000}));
    EXPECT_GT(reason.figures[1].value, 85);
}

TEST(FieldSizer, NeedsWhatADesignOfThatFieldNeeds) {
    FieldSizer sizer({}, officeInputs());
    for (const auto& [rows, columns, separation] :
         {std::array{6, 5, 20}, std::array{12, 2, 25}, std::array{1, 9, 15}}) {
        BoreholeInputs design = officeInputs();
        design.arrangement.patternRows = {static_cast<double>(rows), static_cast<double>(columns)};
        design.arrangement.boreSeparation = separation;
        const auto bores = secondOpinion::rectangularField(rows, columns, separation);
        std::optional<double> need;
        while (!need) need = sizer.need(bores, separation, 300);
        EXPECT_NEAR(*need / Measured(design).figures().need(), 1, 1e-3);
    }
}

TEST(FieldSizer, TellsHowDeepBoresWouldHaveToBe) {
    // Twice and eight times the loads on four bores: beyond what is taken for an answer the depths
    // go on as the loads do. Deep bores lose little at their ends, so that g of one no longer
    // depends on its depth.
    const auto bores = secondOpinion::rectangularField(2, 2, 20);
    std::vector<double> depths;
    for (const double times : {2.0, 4.0, 8.0, 16.0}) {
        BoreholeInputs design = officeInputs();
        Zone& zone = design.loads.zones.edit(0);
        for (Mode m : modes) {
            for (auto& gain : zone.gains) gain[m] *= times;
            zone.pump.capacity[m] *= times;
            zone.pump.watts[m] *= times;
        }
        FieldSizer sizer({}, design);
        std::optional<double> need;
        while (!need) need = sizer.need(bores, 20, 300);
        ASSERT_LT(*need, noLength) << times;
        depths.push_back(*need / 4);
    }
    EXPECT_GT(depths[0], 2'000);
    for (std::size_t i = 1; i < depths.size(); ++i)
        EXPECT_NEAR(depths[i] / depths[i - 1], 2, 0.05) << i;
}

}  // namespace
}  // namespace varnholt
