// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is typed or read, What If has numbers or reasons.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>

#include "design/borehole_project.h"
#include "design/secondOpinion/random_cases.h"
#include "design/whatIf/layout_run.h"
#include "design/whatIf/what_if.h"
#include "design/whatIf/what_if_values.h"

namespace varnholt {
namespace {

class RandomQuestions : public RandomCases {
 public:
    using RandomCases::RandomCases;

    WhatIfCase nextQuestion() {
        SecondOpinionCase opinion = next(10, 10);
        WhatIfCase asked;
        asked.name = "Random";
        asked.design = opinion.design;
        asked.secondOpinion = opinion.window;
        asked.imported = opinion.imported;
        fill(asked.inputs);
        for (int i = whole(0, 2); i > 0; --i) asked.others.push_back(other());
        return asked;
    }
    WhatIfWanted wanted() { return {rarely(), rarely(), often(), rarely(), often()}; }

 private:
    void fill(WhatIfInputs& inputs) {
        for (const WhatIfNumber& number : whatIfNumbers())
            if (often()) number.in(inputs) = among(number.least, std::min(number.most, 3000.0));
        for (const WhatIfChoice& choice : whatIfChoices())
            choice.in(inputs) = static_cast<std::int16_t>(whole(0, choice.most));
        inputs.land.across = among(10, 400);
        inputs.land.down = among(10, 400);
        if (often()) inputs.land.corner = polygon();
        while (often()) inputs.land.noGo.push_back(polygon());
        if (often()) inputs.alternatives.push_back({"Kept", std::make_shared<BoreholeProject>()});
        if (rarely()) inputs.alternatives.push_back({"Lost", nullptr});
        if (!often()) return;
        const auto& numbers = whatIfNumbers();
        numbers[static_cast<std::size_t>(whole(0, static_cast<int>(numbers.size()) - 1))].in(
            inputs) = wrong();
        if (rarely()) inputs.measure = static_cast<std::int16_t>(whole(-9, 9));
    }

    /// Crossing itself as often as not.
    Polygon polygon() {
        Polygon corners;
        for (int i = whole(0, 7); i > 0; --i)
            corners.push_back({among(-50, 400), rarely() ? 0 : among(-50, 300)});
        if (rarely() && !corners.empty()) corners.back().x = wrong();
        return corners;
    }

    Alternative other() {
        if (often()) {
            Alternative bores{"Bores", AlternativeKind::borehole, next(10, 10).design, {}};
            return bores;
        }
        Alternative loop{"Loop", AlternativeKind::horizontal, std::nullopt, {}};
        loop.loop.pipe = often() ? wrong() : among(0, 9000);
        loop.loop.trench = among(0, 3000);
        return loop;
    }
};

void expectFigure(double value) {
    EXPECT_TRUE(std::isfinite(value));
    EXPECT_GE(value, 0);
}

template <class Array>
void expectFigures(const Array& values) {
    for (const double value : values) expectFigure(value);
}

void expectRising(double low, double middle, double high) {
    expectFigures(std::array{low, middle, high});
    // One that is 0 lies among the cases without a length.
    EXPECT_TRUE(middle == 0 || low <= middle) << low << ' ' << middle;
    EXPECT_TRUE(high == 0 || middle <= high) << middle << ' ' << high;
}

void expectSound(const WhatIf& found) {
    EXPECT_TRUE(!found.reason.holds() || found.needGoverning == 0);
    for (Mode m : modes) {
        expectFigure(found.needLength[m]);
        expectFigure(found.holdsMode[m]);
        EXPECT_LE(found.holdsMode[m], 1);
        expectRising(found.lengthP10[m], found.lengthP50[m], found.lengthP90[m]);
        EXPECT_TRUE(std::isfinite(found.enteringP50[m]));
    }
    EXPECT_EQ(found.governing.has_value(), found.needGoverning > 0);
    expectFigures(std::array{found.needGoverning, found.boreDepth, found.drawnDepth,
                             found.otherNeed, found.needMean, found.needError, found.holds,
                             found.confidentDepth, found.testDepth, found.testSaves});
    EXPECT_LE(found.holds, 1);
    EXPECT_LE(found.failedSamples, found.sampleCount);
    expectRising(found.needP10, found.needP50, found.needP90);
    expectFigures(found.tornadoLow);
    expectFigures(found.tornadoHigh);
    expectFigures(found.leverLow);
    expectFigures(found.leverHigh);
    for (const double share : found.share) EXPECT_TRUE(std::isfinite(share));
    for (const double share : found.shareAlone) EXPECT_TRUE(std::isfinite(share));
    expectFigures(found.costPart);
    expectFigures(std::array{found.firstCost, found.yearlyEnergy, found.yearlyCost});
    expectFigures(found.tower.length);
    expectFigures(found.tower.first);
    for (const AlternativeFigures& each : found.alternatives)
        expectFigures(std::array{each.length, each.bores, each.depth, each.first, each.energy});
}

void expectSound(const Layouts& found, const WhatIfInputs& asked) {
    const LayoutValues layout = withinLimits(asked).layout;
    EXPECT_TRUE(!found.reason.holds() || found.fields.empty());
    for (std::size_t i = 0; i < found.fields.size(); ++i) {
        const LayoutField& each = found.fields[i];
        expectFigures(std::array{each.depth, each.length, each.firstCost, each.otherDepth});
        EXPECT_GE(each.depth, std::min(layout.leastDepth, layout.mostDepth));
        EXPECT_LE(each.depth, std::max(layout.leastDepth, layout.mostDepth) + 1e-6);
        EXPECT_GE(each.field.bores, 1u);
        EXPECT_LE(static_cast<double>(each.field.bores), layout.mostBores);
        EXPECT_TRUE(i == 0 || found.fields[i - 1].firstCost <= each.firstCost);
    }
}

/// Most runs are dropped on the way, as a key drops them, and the memory goes on to the next.
template <class Run>
void work(Run& run, bool whole) {
    constexpr int mostSteps = 25;
    for (int steps = 0; !run.step() && (whole || steps < mostSteps);) ++steps;
}

int wantedQuestions() {
    const char* wanted = std::getenv("VARNHOLT_WHAT_IFS");
    return wanted == nullptr ? 150 : std::atoi(wanted);
}

TEST(RandomWhatIfs, AreSound) {
    const int questions = wantedQuestions();
    RandomQuestions random(20261122);
    WhatIfMemory memory;
    int sized = 0, found = 0;
    for (int i = 0; i < questions && !HasFailure(); ++i) {
        SCOPED_TRACE("question " + std::to_string(i));
        const WhatIfCase asked = random.nextQuestion();
        WhatIfRun run(asked, random.wanted(), memory);
        work(run, i % 200 == 99);
        expectSound(run.result());
        sized += run.result().needGoverning > 0 ? 1 : 0;
        LayoutSearch search = layoutSearchOf(asked);
        work(search, i % 200 == 149);
        expectSound(search.result(), asked.inputs);
        found += search.result().possible > 0 ? 1 : 0;
    }
    EXPECT_GT(sized, questions / 10);
    EXPECT_GT(found, questions / 10);
}

}  // namespace
}  // namespace varnholt
