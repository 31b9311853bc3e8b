// SPDX-License-Identifier: GPL-3.0-or-later
// The worked numbers of the page on the method: the program's own functions give every one of them
// to its last digit.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <regex>
#include <set>

#include "basis/file_system.h"
#include "basis/number_text.h"
#include "design/modCalculations/bore_length.h"
#include "design/modCalculations/bore_resistance.h"
#include "design/modCalculations/cooling_tower.h"
#include "design/modCalculations/ground_load.h"
#include "design/modCalculations/heat_pulses.h"
#include "design/modCalculations/line_source.h"
#include "design/modCalculations/pipe_resistance.h"
#include "design/modCalculations/short_circuit.h"
#include "design/modCalculations/temperature_penalty.h"
#if __has_include("design/modCalculations/coil_length.h")
#include "design/modCalculations/coil_length.h"
#endif
#if __has_include("design/modCalculations/loop_length.h")
#include "design/modCalculations/loop_length.h"
#endif

namespace varnholt::modCalculations {
namespace {

/// The worked numbers by their names, as they stand on the page.
std::map<std::string, std::string> workedNumbers() {
    const std::string page = readWholeFile(VARNHOLT_SOURCE_DIR "/resources/help/method.html");
    static const std::regex worked("<b data-worked=\"([^\"]+)\">([^<]+)</b>");
    std::map<std::string, std::string> numbers;
    for (auto i = std::sregex_iterator(page.begin(), page.end(), worked);
         i != std::sregex_iterator(); ++i)
        EXPECT_TRUE(numbers.emplace((*i)[1], (*i)[2]).second) << (*i)[1] << " stands twice";
    return numbers;
}

class MethodPage : public testing::Test {
 protected:
    /// The page's figure is this value, rounded to the digits that it shows.
    void expectWorked(const std::string& name, double value) {
        const auto found = numbers.find(name);
        ASSERT_NE(found, numbers.end()) << name;
        std::string text = found->second;
        if (const std::string minus = "\xE2\x88\x92"; text.starts_with(minus))
            text.replace(0, minus.size(), "-");
        const std::size_t point = text.find('.');
        const double places =
            point == std::string::npos ? 0 : static_cast<double>(text.size() - point - 1);
        EXPECT_NEAR(leadingNumber(text), value, 0.5001 * std::pow(10, -places)) << name;
    }

    const std::map<std::string, std::string> numbers = workedNumbers();
    // The ground and the bore of the page's one example.
    const Soil soil{1.3, 0.75};
    const double bore = 5.0 / 12;
    const PulseTimes pulses = calcPulseTimes({1, 0}, 10);
    const Fluid water{62.4, 1};
};

TEST_F(MethodPage, PulsesAndTheResistanceOfTheGround) {
    const GroundResistances resistance = calcGroundResistances(pulses, bore, soil);
    for (std::size_t i = 0; i < pulses.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        const double fourier = fourierNumber(soil.diffusivity, pulses[i], bore);
        expectWorked("pulse-" + number, pulses[i]);
        expectWorked("fourier-" + number, fourier);
        expectWorked("g-" + number, gFactor(fourier));
    }
    expectWorked("r-annual", resistance.annual);
    expectWorked("r-monthly", resistance.monthly);
    expectWorked("r-short", resistance.shortTerm);
}

TEST_F(MethodPage, ResistanceOfPipeAndBore) {
    const PipeDiameters& pipe = pipeTable(0, 1);
    const double pipeResistance = pipeResistanceOf(0, 0, pipe.outside, pipe.inside);
    const double boreResistance =
        boreResistanceOf({5, 0.85}, pipe.outside, 0, shapeFit(1), pipeResistance);
    expectWorked("r-pipe", pipeResistance);
    expectWorked("shape", 1 / (0.85 * (boreResistance - pipeResistance)));
    expectWorked("r-bore", boreResistance);
}

TEST_F(MethodPage, LengthOfTheBores) {
    const PipeDiameters& pipe = pipeTable(0, 1);
    LengthTerms terms;
    terms.annualGroundLoad = -2;
    terms.peakLoad = {100, 80};
    terms.peakDemand = {8, 7};
    terms.partLoadFactor = {0.45, 0.35};
    terms.groundResistance = calcGroundResistances(pulses, bore, soil);
    terms.boreResistance = boreResistanceOf({5, 0.85}, pipe.outside, 0, shapeFit(1),
                                            pipeResistanceOf(0, 0, pipe.outside, pipe.inside));
    terms.shortCircuitFactor = shortCircuitFactor(2, 3);
    terms.groundTemp = {62, 62};
    terms.inletTemp = {85, 50};
    terms.outletTemp =
        calcUnitOutletTemps(terms.peakLoad, terms.peakDemand, terms.inletTemp, 3, water, {})
            .outletTemp;
    const ByMode<double> length = calcBoreLengths(terms, {-1.5, 1.0});
    for (const Mode mode : modes) {
        const std::string name = mode == cooling ? "cooling" : "heating";
        expectWorked("ground-" + name,
                     peakGroundLoad(mode, terms.peakLoad[mode], terms.peakDemand[mode]));
        expectWorked("outlet-" + name, terms.outletTemp[mode]);
        expectWorked("length-" + name, length[mode]);
    }
}

TEST_F(MethodPage, TemperaturePenalty) {
    const PenaltySite site{{6, 4, 20}, countNeighbours(6, 4), soil, 10};
    // 8 bores inside, 12 at the edges, 4 in the corners: 8 + 0.5 12 + 0.25 4 = 15.
    EXPECT_EQ(site.neighbours, (NeighbourCount{0, 0, 4, 12, 8}));
    const double reach = 2 * std::sqrt(soil.diffusivity * 3650);
    int ring = 0;
    for (const double middle : {12.5, 17.5, 22.5})
        expectWorked("line-" + std::to_string(++ring), lineSourceI(middle / reach));
    expectWorked("penalty", calcTemperaturePenalty(site, -2, {2400, 2400})[cooling]);
}

TEST_F(MethodPage, CoolingTower) {
    const Hybrid hybrid{true, 40, 300};
    const CoolingTower tower =
        sizeCoolingTower(hybrid, hybrid.leftForGround(300), {4, 25000, 40}, water, 10);
    expectWorked("tower-capacity", tower.capacity);
    expectWorked("tower-flow", tower.flow);
    expectWorked("tower-hours", tower.hours);
}

TEST_F(MethodPage, CoilCorrection) {
    // The table's cubics in the part load at 30, for the pitches 18 and 36: 79.64448 and
    // 107.49071; in the pitch at 24, for the loads 30 and 50: 90.6397488 and 93.1784872. Half of
    // 79.64448 + (24 - 18)/18 27.84623, and of 90.6397488.
    const double coil = (79.64448 + 6.0 / 18 * 27.84623 + 90.6397488) / 2;
    expectWorked("coil", coil);
    expectWorked("coil-trench", 1000.0 / 250 * coil);
#if __has_include("design/modCalculations/coil_length.h")
    expectWorked("coil", coilLengthFor(24, 0.4));
#endif
}

TEST_F(MethodPage, ApproachTemperature) {
    // 1442.824 - 2702.3656 + 2295.499 - 705.57
    expectWorked("feet-per-ton", 330.3874);
#if __has_include("design/modCalculations/loop_length.h")
    expectWorked("feet-per-ton", feetPerTon({0, 0}, cooling, 85 - 75));
#endif
}

TEST_F(MethodPage, HasNoWorkedNumberThatIsNotRecomputed) {
    const std::set<std::string> recomputed{"pulse-1",
                                           "pulse-2",
                                           "pulse-3",
                                           "fourier-1",
                                           "fourier-2",
                                           "fourier-3",
                                           "g-1",
                                           "g-2",
                                           "g-3",
                                           "r-annual",
                                           "r-monthly",
                                           "r-short",
                                           "r-pipe",
                                           "shape",
                                           "r-bore",
                                           "ground-cooling",
                                           "ground-heating",
                                           "outlet-cooling",
                                           "outlet-heating",
                                           "length-cooling",
                                           "length-heating",
                                           "line-1",
                                           "line-2",
                                           "line-3",
                                           "penalty",
                                           "tower-capacity",
                                           "tower-flow",
                                           "tower-hours",
                                           "coil",
                                           "coil-trench",
                                           "feet-per-ton"};
    for (const auto& [name, text] : numbers) EXPECT_EQ(recomputed.count(name), 1u) << name;
}

}  // namespace
}  // namespace varnholt::modCalculations
