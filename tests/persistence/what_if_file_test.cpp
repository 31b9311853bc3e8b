// SPDX-License-Identifier: GPL-3.0-or-later
// What a designer asks of a length and its cost, in a project's file.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "basis/line_file.h"
#include "basis/reading_report.h"
#include "design/whatIf/what_if_values.h"
#include "persistence/borehole_body.h"
#include "persistence/project_head.h"

namespace varnholt {
namespace {

/// A design that was kept: without loads and results, else unlike the built-in one.
std::shared_ptr<const BoreholeProject> keptDesign() {
    auto kept = std::make_shared<BoreholeProject>();
    kept->arrangement.patternRows = {9, 3};
    kept->soil.conductivity = 1.7;
    kept->fluid.fluidName = "Brine";
    kept->fluid.fluidTypeIndex = FluidValues::typedFluid;
    kept->tower.hybridPercent = 20;
    return kept;
}

/// Every input differs from what is built in, and every number from every other.
WhatIfInputs unusualWhatIf() {
    WhatIfInputs inputs;
    double value = 0.125;
    for (const WhatIfNumber& number : whatIfNumbers()) number.in(inputs) = value++;
    inputs.measure = classicalMethod;
    inputs.knowledge = knownAsTyped;
    inputs.layout.layoutKind = 1;
    inputs.land.corner = {{0, 0}, {200.5, 0}, {120, 90}};
    inputs.land.noGo = {{{10, 10}, {20, 10}, {15, 18}}, {{50, 5}, {60, 5}, {60, 9}, {50, 9}}};
    inputs.currency = "EUR per thing";
    inputs.pricesOf = "autumn 2026";
    inputs.alternatives = {{"Nine by three", keptDesign()}, {"", keptDesign()}};
    return inputs;
}

template <class File, class Project>
void describeFile(File& file, Project& project) {
    describeHead(file, "Borehole Design", project.information);
    describeBoreholeProject(file, project);
}

std::string textOf(const BoreholeProject& project) {
    LineFileWriter file;
    describeFile(file, project);
    return file.bytes();
}

BoreholeProject projectWithWhatIf(const WhatIfInputs& inputs) {
    BoreholeProject project;
    project.whatIf = inputs;
    return project;
}

const std::string withoutWhatIf = textOf(BoreholeProject{});

std::string whatIfBlock(const WhatIfInputs& inputs) {
    const std::string with = textOf(projectWithWhatIf(inputs));
    EXPECT_TRUE(with.starts_with(withoutWhatIf));
    return with.substr(withoutWhatIf.size());
}

/// A reading of a file that ends in some text.
struct Read {
    BoreholeProject project;
    std::string unread;  ///< names of the parts, joined
    bool leftover = false;
    bool whole = false;
};

Read readText(const std::string& text, BoreholeProject project = {}) {
    Read read{std::move(project), "", false, false};
    ReadingReport report;
    LineFileReader file(text);
    reportReading(file, &report, [&] { describeFile(file, read.project); });
    for (const UnreadPart& part : report.unread)
        read.unread += (read.unread.empty() ? "" : ", ") + part.name;
    read.leftover = report.leftover;
    read.whole = report.isWhole();
    return read;
}

/// A project as built in, with so much behind it.
Read readWith(const std::string& tail) { return readText(withoutWhatIf + tail); }

TEST(WhatIfBlock, IsNotWrittenWhileEveryInputIsAsBuiltIn) { EXPECT_EQ(whatIfBlock({}), ""); }

TEST(WhatIfBlock, HasALineForEachValueThatDiffers) {
    WhatIfInputs inputs;
    inputs.spreads.low[0] = 33;
    EXPECT_EQ(whatIfBlock(inputs), "What If 1.0\r\nspreadLow(0) 33\r\nEnd\r\n");
    inputs.measure = classicalMethod;
    inputs.land.corner = {{0, 0}, {10.5, 0}, {0, -3}};
    inputs.land.noGo = {{{1, 2}, {3, 4}, {5, 6}}};
    inputs.currency = "EUR";
    inputs.prices.costFoot = 15.5;
    EXPECT_EQ(whatIfBlock(inputs),
              "What If 1.0\r\nmeasure 0\r\nspreadLow(0) 33\r\ncostFoot 15.5\r\ncurrency EUR\r\n"
              "corner 0 0\r\ncorner 10.5 0\r\ncorner 0 -3\r\n"
              "noGo 1 2 3 4 5 6\r\nEnd\r\n");
}

TEST(WhatIfBlock, HoldsTheBodyOfAnAlternativeWithoutFurtherBlocks) {
    WhatIfInputs inputs;
    BoreholeProject kept = *keptDesign();
    kept.secondOpinion.buriedDepth = 7;
    kept.whatIf.drawnDepth = 300;
    inputs.alternatives = {{"Wider", std::make_shared<BoreholeProject>(kept)}};
    const std::string block = whatIfBlock(inputs);
    EXPECT_TRUE(block.starts_with("What If 1.0\r\nalternative\r\nWider\r\n"));
    EXPECT_EQ(block.find("Second Opinion"), std::string::npos);
    EXPECT_EQ(block.find("What If", 5), std::string::npos);
    // As many lines as it says, then the end.
    LineFileReader file(block);
    file.skipLines(3);
    const auto lines = static_cast<std::size_t>(std::stoi(file.line()));
    file.skipLines(lines);
    EXPECT_EQ(file.line(), "End");
    EXPECT_TRUE(file.atEnd());
}

TEST(WhatIfBlock, IsReadAsItWasWritten) {
    const Read read = readWith(whatIfBlock(unusualWhatIf()));
    EXPECT_EQ(read.project.whatIf, unusualWhatIf());
    EXPECT_FALSE(read.leftover);
    ASSERT_EQ(read.project.whatIf.alternatives.size(), 2u);
    EXPECT_EQ(*read.project.whatIf.alternatives[0].design, *keptDesign());
}

TEST(WhatIfBlock, StandsBehindTheSecondOpinionOrAlone) {
    BoreholeProject both = projectWithWhatIf(unusualWhatIf());
    both.secondOpinion.buriedDepth = 9;
    EXPECT_EQ(readText(textOf(both)).project, both);
    EXPECT_LT(textOf(both).find("Second Opinion 1.0"), textOf(both).find("What If 1.0"));
    const Read alone = readWith(whatIfBlock(unusualWhatIf()));
    EXPECT_EQ(alone.project.secondOpinion, SecondOpinionInputs{});
    EXPECT_FALSE(alone.leftover);
}

/// The second opinion's block is cut after each of its bytes, from a part of its title up to the
/// last of its lines.
TEST(WhatIfBlock, StandsBehindWhateverIsLeftOfTheSecondOpinion) {
    BoreholeProject other;
    other.secondOpinion.buriedDepth = 9;
    const std::string opinion = textOf(other).substr(withoutWhatIf.size());
    const std::string block = whatIfBlock(unusualWhatIf());
    const std::size_t lastLine = opinion.rfind('\n', opinion.size() - 2) + 1;
    for (std::size_t length = 1; length <= lastLine; ++length) {
        const Read read = readWith(opinion.substr(0, length) + "\r\n" + block);
        ASSERT_EQ(read.project.whatIf, unusualWhatIf()) << length;
        ASSERT_EQ(read.project.secondOpinion, SecondOpinionInputs{}) << length;
        ASSERT_EQ(read.unread, "Second Opinion") << length;
        ASSERT_FALSE(read.leftover) << length;
        ASSERT_FALSE(read.whole) << length;
    }
    // All of it but the end of its last line.
    const Read whole = readWith(opinion.substr(0, opinion.size() - 2) + "\r\n" + block);
    EXPECT_EQ(whole.project.secondOpinion.buriedDepth, 9);
    EXPECT_TRUE(whole.whole);
}

TEST(WhatIfBlock, IsReadBehindLinesThatBelongToNothingAndTellsThem) {
    const Read read = readWith("stray\r\nlines\r\n" + whatIfBlock(unusualWhatIf()));
    EXPECT_EQ(read.project.whatIf, unusualWhatIf());
    EXPECT_EQ(read.unread, "");
    EXPECT_TRUE(read.leftover);
    EXPECT_FALSE(read.whole);
}

TEST(WhatIfBlock, IsNamedWithTheSecondOpinionWhereBothAreOfAnotherVersion) {
    const Read read = readWith("Second Opinion 1.1\r\n4\r\nWhat If 1.1\r\nEnd\r\n");
    EXPECT_EQ(read.unread, "Second Opinion, What If");
    EXPECT_EQ(read.project.whatIf, WhatIfInputs{});
    EXPECT_FALSE(read.whole);
}

TEST(WhatIfBlock, LeavesWhatIsBuiltInToAProjectWithoutIt) {
    EXPECT_EQ(readText(withoutWhatIf, projectWithWhatIf(unusualWhatIf())).project.whatIf,
              WhatIfInputs{});
}

TEST(WhatIfBlock, GivesWhatIsBuiltInWhereverItIsCut) {
    const std::string block = whatIfBlock(unusualWhatIf());
    for (std::size_t length = 1; length + 1 < block.size(); ++length) {
        const Read read = readWith(block.substr(0, length));
        ASSERT_EQ(read.project.whatIf, WhatIfInputs{}) << length;
        ASSERT_TRUE(read.leftover) << length;
        ASSERT_EQ(read.unread, "What If") << length;
    }
    // A line may end in a carriage return alone.
    EXPECT_EQ(readWith(block.substr(0, block.size() - 1)).project.whatIf, unusualWhatIf());
}

TEST(WhatIfBlock, GivesWhatIsBuiltInForAnotherVersionOrAFalseValue) {
    for (const std::string tail :
         {"What If 1.1\r\nEnd\r\n", "What If 2.0\r\n", "What If 1.0\r\ncostFoot\r\nEnd\r\n",
          "What If 1.0\r\ncostFoot 1e999\r\nEnd\r\n", "What If 1.0\r\ncostFoot 12 13\r\nEnd\r\n",
          "What If 1.0\r\nmeasure 0.5\r\nEnd\r\n", "What If 1.0\r\ncorner 12\r\nEnd\r\n",
          "What If 1.0\r\nnoGo 1 2 3\r\nEnd\r\n", "What If 1.0\r\nnoGo\r\nEnd\r\n",
          "What If 1.0\r\nalternative\r\nA\r\n99999\r\nEnd\r\n",
          "What If 1.0\r\nalternative\r\nA\r\nmany\r\nEnd\r\n",
          "What If 1.0\r\nalternative\r\nA\r\n3\r\n1\r\n2\r\n3\r\nEnd\r\n"}) {
        const Read read = readWith(tail);
        EXPECT_EQ(read.project.whatIf, WhatIfInputs{}) << tail;
        EXPECT_EQ(read.unread, "What If") << tail;
    }
}

TEST(WhatIfBlock, KeepsTheNamesOfANewerProgram) {
    const Read read = readWith("What If 1.0\r\nsoilLayers 3 of clay\r\ncostFoot 15\r\nEnd\r\n");
    EXPECT_FALSE(read.leftover);
    EXPECT_EQ(read.project.whatIf.prices.costFoot, 15);
    EXPECT_EQ(whatIfBlock(read.project.whatIf),
              "What If 1.0\r\ncostFoot 15\r\nsoilLayers 3 of clay\r\nEnd\r\n");
}

TEST(WhatIfBlock, TakesAValueThatItsFieldWouldRefuseAsItStands) {
    EXPECT_EQ(readWith("What If 1.0\r\ncostYears 5000\r\nEnd\r\n").project.whatIf.prices.costYears,
              5'000);
}

}  // namespace
}  // namespace varnholt
