// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is typed, the second opinion is a number or has a reason.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "design/secondOpinion/random_cases.h"

namespace varnholt {
namespace {

/// @param ofLines  the g-functions are: a wide bore at the surface sheds its heat at once, and what
/// a
///                 cylinder adds at first may then be more than all that comes later
void expectSound(const SecondOpinion& opinion, bool ofLines) {
    for (Mode mode : modes) {
        EXPECT_TRUE(std::isfinite(opinion.soLength[mode]));
        EXPECT_GE(opinion.soLength[mode], 0);
        EXPECT_EQ(opinion.hasLength(mode), opinion.soMonth[mode] > 0);
        if (!opinion.lengthPart[mode]) continue;
        double sum = 0;
        for (const double part : *opinion.lengthPart[mode]) sum += part;
        EXPECT_NEAR(sum, opinion.soLength[mode] - opinion.classicalLength[mode],
                    1e-9 * (opinion.soLength[mode] + opinion.classicalLength[mode]) + 1e-6);
    }
    for (const double load : opinion.monthlyLoad) EXPECT_TRUE(std::isfinite(load));
    const bool shown = !opinion.reason.holds() && !opinion.reasonOfShown.holds();
    EXPECT_EQ(opinion.water.size(), shown ? opinionMonths : 0);
    if (!shown) return;
    EXPECT_GT(opinion.shownDepth, 0);
    for (std::size_t i = 1; ofLines && i < opinion.gValue.size(); ++i)
        EXPECT_GE(opinion.gValue[i], opinion.gValue[i - 1] - 1e-3 * opinion.gValue[i] - 1e-4);
    for (const OpinionYearLine& line : opinion.years)
        for (const auto& figure : {line.penalty, line.high, line.low})
            EXPECT_TRUE(!figure || std::isfinite(*figure));
}

int wantedCases() {
    const char* wanted = std::getenv("VARNHOLT_OPINIONS");
    return wanted == nullptr ? 150 : std::atoi(wanted);
}

TEST(RandomOpinions, AreSound) {
    const int cases = wantedCases();
    RandomCases random(20261122);
    SecondOpinionMemory memory;
    int sized = 0;
    for (int i = 0; i < cases; ++i) {
        SCOPED_TRACE("case " + std::to_string(i));
        const bool large = i % 100 == 99;
        const SecondOpinionCase theCase = large ? random.next(50, 50) : random.next(10, 10);
        const SecondOpinion opinion = secondOpinionOf(theCase, memory);
        expectSound(opinion, !theCase.window.cylinder);
        sized += opinion.governing() ? 1 : 0;
        if (HasFailure()) break;
    }
    EXPECT_GT(sized, cases / 3);
}

}  // namespace
}  // namespace varnholt
