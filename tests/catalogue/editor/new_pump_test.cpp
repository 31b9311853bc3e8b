// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/new_pump.h"

#include <gtest/gtest.h>

#include <string>

#include "catalogue/fitting/measured_pump.h"

namespace varnholt {
namespace {

TEST(NewPump, OfAListHasTheUsualRowsOfAWaterToAirPump) {
    const pump fresh = newPump(nullptr);
    EXPECT_EQ(fresh.pumpType, 0);
    EXPECT_EQ(fresh.nominalFlow, 0);
    const double water[] = {35, 50, 70, 75, 85, 95};
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(fresh.ewt[i].temperature, water[i]);
    const ByMode<double> air[] = {{61, 60}, {64, 65}, {67, 70}, {70, 75}, {73, 80}};
    for (std::size_t r = 0; r < 5; ++r) {
        const double percent = 80 + 10 * static_cast<double>(r);
        EXPECT_EQ(fresh.eat[r], (eat{air[r], {1, 1}, {1, 1}}));
        EXPECT_EQ(fresh.elf[r], (elf{{1, 1}, {1, 1}, {percent, percent}}));
    }
}

TEST(NewPump, HasNeutralFactorsAndNoCurves) {
    const pump fresh = newPump(nullptr);
    EXPECT_EQ(fresh.flowCf, (std::array<ByMode<double>, 2>{{{1, 1}, {1, 1}}}));
    const coefficients& curves = fresh.coefficients;
    EXPECT_EQ(curves.capacity, Polynomial{});
    EXPECT_EQ(curves.watts, Polynomial{});
    for (const Polynomial* correction :
         {&curves.capacityCorrection, &curves.wattsCorrection, &curves.capacityFlowCorrection,
          &curves.wattsFlowCorrection})
        EXPECT_EQ(*correction, (Polynomial{{{1, 1}}}));
    for (const ewt& row : fresh.ewt)
        for (const flowRate& flow : row.flowRate) EXPECT_EQ(flow, flowRate{});
}

TEST(NewPump, AfterAnotherTakesItsTypeTemperaturesAndPercents) {
    pump before = measuredPump();
    before.pumpType = 1;
    before.ewt[2].temperature = 68.5;
    before.eat[4].temperature = {74, 81};
    before.elf[0].percent = {75, 77};
    const pump fresh = newPump(&before);
    EXPECT_EQ(fresh.pumpType, 1);
    EXPECT_EQ(fresh.ewt[2].temperature, 68.5);
    EXPECT_EQ(fresh.ewt[2].flowRate[0], flowRate{});
    EXPECT_EQ(fresh.eat[4], (eat{{74, 81}, {1, 1}, {1, 1}}));
    EXPECT_EQ(fresh.elf[0], (elf{{1, 1}, {1, 1}, {75, 77}}));
    EXPECT_EQ(fresh.nominalFlow, 0);
    EXPECT_EQ(fresh.coefficients.capacity, Polynomial{});
}

TEST(UsualLoadTemperatures, OfWaterToWaterPumpsAreThoseOfWater) {
    const std::array<ByMode<double>, 5> water{
        {{50, 90}, {53, 100}, {55, 110}, {57, 115}, {60, 120}}};
    EXPECT_EQ(usualLoadTemperatures(1), water);
}

std::string ordered(std::initializer_list<const char*> names) {
    PumpsOfSeries pumps;
    for (const char* name : names) {
        pump model;
        model.name = name;
        pumps.emplace_back(std::move(model));
    }
    sortByName(pumps);
    std::string joined;
    for (const Shared<pump>& model : pumps) joined += model->name + " ";
    return joined;
}

TEST(SortByName, IgnoresTheCase) {
    EXPECT_EQ(ordered({"b", "C", "a"}), "a b C ");
    EXPECT_EQ(ordered({"012", "006", "009"}), "006 009 012 ");
    EXPECT_EQ(ordered({}), "");
}

// b0 a b1 c a1 with b0 and b1 one name: the exchange of b0 with a puts b0 behind b1's place only
// where it passes it: B b A exchanges B with A, and leaves A b B.
TEST(SortByName, LeavesPumpsOfOneNameWhereTheExchangesPutThem) {
    EXPECT_EQ(ordered({"B", "b", "A"}), "A b B ");
    EXPECT_EQ(ordered({"B", "b"}), "B b ");
}

TEST(CompareIgnoringCase, TakesBothCasesOfALetterForOne) {
    EXPECT_EQ(compareIgnoringCase("Alder", "aLDER"), 0);
    EXPECT_LT(compareIgnoringCase("alder", "Brook"), 0);
    EXPECT_GT(compareIgnoringCase("Brook", "alder"), 0);
    EXPECT_LT(compareIgnoringCase("Brook", "Brooks"), 0);
    EXPECT_GT(compareIgnoringCase("a", ""), 0);
    EXPECT_EQ(compareIgnoringCase("", ""), 0);
}

TEST(CompareIgnoringCase, KnowsLettersBeyondAscii) {
    EXPECT_EQ(compareIgnoringCase("WÄRME", "wärme"), 0);
    EXPECT_EQ(compareIgnoringCase("ČERPADLO", "čerpadlo"), 0);
    EXPECT_EQ(compareIgnoringCase("ŹRÓDŁO", "źródło"), 0);
    EXPECT_EQ(compareIgnoringCase("ΑΝΤΛΙΑ", "αντλια"), 0);
    EXPECT_EQ(compareIgnoringCase("НАСОС", "насос"), 0);
    EXPECT_NE(compareIgnoringCase("×", "÷"), 0);
    // Cut in the middle of a letter, and what is no letter at all.
    EXPECT_NE(compareIgnoringCase("\xC3", "\xE2\x82"), 0);
    EXPECT_EQ(compareIgnoringCase("\xFF\xFE", "\xFF\xFE"), 0);
}

}  // namespace
}  // namespace varnholt
