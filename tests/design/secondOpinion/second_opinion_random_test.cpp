// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever is typed, the second opinion is a number or has a reason.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

#include "design/secondOpinion/opinion_cases.h"

namespace varnholt {
namespace {

class RandomCases {
 public:
    explicit RandomCases(unsigned seed) : random_(seed) {}

    SecondOpinionCase next(int mostAcross, int mostDown) {
        SecondOpinionCase theCase = sampleCase();
        BoreholeInputs& design = theCase.design;
        std::vector<Zone> zones;
        for (int i = whole(1, 3); i > 0; --i) zones.push_back(zone());
        design.loads.zones = zones;
        design.loads.inletTemp = {among(70, 110), among(20, 60)};
        design.loads.flowRate = rarely() ? 0 : among(0.5, 6);
        design.loads.hybridPercent = static_cast<std::int16_t>(rarely() ? whole(1, 100) : 0);
        design.loads.hybridOn = design.loads.hybridPercent != 0;
        design.soil = {among(40, 75), spread(0.1, 5), spread(0.001, 1000)};
        design.bore.boreDiameter = among(2, 24);
        design.bore.boreResistance = among(0, 0.6);
        design.arrangement.patternRows = {double(whole(1, mostAcross)), double(whole(1, mostDown))};
        design.arrangement.boreSeparation = rarely() ? among(0, 3) : among(3, 100);
        design.arrangement.boresPerCircuit = static_cast<std::int16_t>(whole(0, 3));
        design.arrangement.predictionTime = rarely() ? among(0, 1) : among(1, 100);
        window(theCase.window);
        if (often()) breakOne(theCase);
        return theCase;
    }

 private:
    double among(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    double spread(double low, double high) {
        return std::exp(among(std::log(low), std::log(high)));
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool rarely() { return whole(1, 10) == 1; }
    bool often() { return whole(1, 4) == 1; }

    Zone zone() {
        Zone zone;
        const double size = spread(1, 2000);
        for (auto& gain : zone.gains)
            gain = {rarely() ? 0 : among(0, size), rarely() ? 0 : among(0, size)};
        zone.hours = {static_cast<std::int16_t>(whole(0, 8760)),
                      static_cast<std::int16_t>(whole(0, 8760))};
        zone.days = whole(0, 7);
        zone.pump.capacity = {among(0.5, 1.5) * size, among(0.5, 1.5) * size};
        zone.pump.watts = {among(0, 0.12) * size, among(0, 0.12) * size};
        return zone;
    }

    void window(SecondOpinionInputs& inputs) {
        inputs.buriedDepth = rarely() ? 0 : among(0, 100);
        inputs.pulseHours = often() ? among(1, 24) : 0;
        inputs.shape = static_cast<std::int16_t>(whole(0, 2));
        inputs.southern = often();
        inputs.cylinder = often();
        for (auto& month : inputs.monthEnergy)
            month = {often() ? 0 : among(0, 10), often() ? 0 : among(0, 10)};
        for (auto& month : inputs.monthTop)
            month = {often() ? 0 : among(0, 10), often() ? 0 : among(0, 10)};
        inputs.depthChoice = static_cast<std::int16_t>(whole(0, 2));
        inputs.typedDepth = rarely() ? among(0, 10) : among(10, 2000);
    }

    /// Puts something into one place that no field would take, as a file may hold it.
    void breakOne(SecondOpinionCase& theCase) {
        const double values[]{0, -1, 1e-300, 1e300, 1e-9, 1e9, HUGE_VAL, std::nan("")};
        BoreholeInputs& design = theCase.design;
        double* const places[]{&design.soil.groundTemp,
                               &design.soil.conductivity,
                               &design.soil.diffusivity,
                               &design.bore.boreDiameter,
                               &design.bore.boreResistance,
                               &design.arrangement.patternRows[0],
                               &design.arrangement.boreSeparation,
                               &design.arrangement.predictionTime,
                               &design.loads.inletTemp[cooling],
                               &design.loads.flowRate,
                               &design.loads.fluid.density,
                               &theCase.window.buriedDepth,
                               &theCase.window.pulseHours,
                               &theCase.window.typedDepth,
                               &theCase.window.monthEnergy[3][cooling],
                               &theCase.window.monthTop[3][heating]};
        *places[whole(0, std::size(places) - 1)] = values[whole(0, std::size(values) - 1)];
    }

    std::mt19937 random_;
};

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
