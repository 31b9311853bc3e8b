// SPDX-License-Identifier: GPL-3.0-or-later
// What the second opinion tells in words and pictures, of opinions made up by hand.
#include "design/second_opinion_texts.h"

#include <gtest/gtest.h>

#include "basis/file_system.h"
#include "design/second_opinion_pictures.h"
#include "tools/text_table.h"

namespace varnholt {
namespace {

/// The English texts as the build takes them.
class EnglishTexts : public Texts {
 public:
    EnglishTexts() {
        for (const char* name :
             {"2000_borehole", "2630_second_opinion", "2800_loads", "5000_calculators"}) {
            const std::string file =
                std::string(VARNHOLT_SOURCE_DIR "/resources/language/english/") + name + ".txt";
            table_.read(readWholeFile(file), file);
        }
    }
    std::string text(int number) const override {
        EXPECT_TRUE(table_.has(number)) << number;
        return table_.text(number);
    }
    std::string picture(int) const override { return {}; }

 private:
    TextTable table_;
};

constexpr UnitSystem englishUnits = UnitSystem::english, metricUnits = UnitSystem::metric;

/// 24 bores: heating is 26.8 percent longer than the classical 2,400 ft; cooling agrees.
SecondOpinion sample() {
    SecondOpinion opinion;
    opinion.soLength = {2000, 3043.2};
    opinion.soDepth = {83.333, 126.8};
    opinion.soMonth = {7, 229};
    opinion.classicalLength = {2000, 2400};
    opinion.lengthPart[cooling] = LengthParts{10, -4, -6};
    opinion.lengthPart[heating] = LengthParts{700.1, -20.5, -36.4};
    opinion.meanLimit = {88, 45};
    opinion.annualEnergy = {1000, 1200};
    opinion.designPeak = {400, 300};
    opinion.pulseHours = 4;
    opinion.shownDepth = 126.8;
    for (std::size_t month = 0; month < 12; ++month) {
        opinion.monthShare[month] = {month == 6 ? 0.45 : 0.05, month == 0 ? 0.34 : 0.06};
        opinion.monthPeak[month] = {0.5, 0.25};
    }
    opinion.monthPeak[6][cooling] = opinion.monthPeak[0][heating] = 1;
    opinion.year[cooling] = {7, 0.27, false, false};
    opinion.year[heating] = {1, 0.34, false, false};
    return opinion;
}

class OpinionTexts : public testing::Test {
 protected:
    EnglishTexts texts;
    SecondOpinion opinion = sample();
};

TEST_F(OpinionTexts, NameTheMonthThatGoverns) {
    // The 229th month: 19 years are 228, so it is the first of year 20.
    EXPECT_EQ(monthOfYearText(texts, 229), "January of year 20");
    EXPECT_EQ(monthOfYearText(texts, 7), "July of year 1");
    EXPECT_EQ(monthOfYearText(texts, 12), "December of year 1");
    EXPECT_EQ(monthOfYearText(texts, 0), "-");
}

TEST_F(OpinionTexts, TellTheDifferenceInPercentWithItsSign) {
    // 3043.2/2400 = 1.268.
    EXPECT_EQ(differenceOrDash(opinion, heating), "+26.8");
    EXPECT_EQ(differenceOrDash(opinion, cooling), "0.0");
    opinion.classicalLength[heating] = 4000;
    EXPECT_EQ(differenceOrDash(opinion, heating), "-23.9");
    opinion.classicalLength[heating] = 0;
    EXPECT_EQ(differenceOrDash(opinion, heating), "-");
}

TEST_F(OpinionTexts, ShowLengthsInTheUnitsAndADashWithoutThem) {
    EXPECT_EQ(lengthOrDash(opinion.soDepth, opinion, heating, englishUnits), "126.8");
    // 126.8 ft x 0.3048 = 38.649 m.
    EXPECT_EQ(lengthOrDash(opinion.soDepth, opinion, heating, metricUnits), "38.6");
    opinion.reasonOfMode[heating].failure = OpinionFailure::noLoadOfMode;
    EXPECT_EQ(lengthOrDash(opinion.soDepth, opinion, heating, englishUnits), "-");
    EXPECT_EQ(lengthOrDash(opinion.soDepth, opinion, cooling, englishUnits), "83.3");
}

TEST_F(OpinionTexts, NameTheLargestPartOfTheDifference) {
    EXPECT_EQ(partOrDash(opinion, heating, shortPulseAsLine, englishUnits), "-20.5");
    EXPECT_EQ(partOrDash(opinion, heating, neighboursAndEnds, metricUnits), "+213.4");
    EXPECT_EQ(differenceText(texts, opinion, heating, englishUnits),
              "Differs from the classical length by +26.8 %, mostly: Neighbours and bore ends "
              "(+700.1 ft).");
    opinion.lengthPart[heating] = LengthParts{10, -20, -900};
    EXPECT_NE(differenceText(texts, opinion, heating, englishUnits)
                  .find("Months, and the first years (-900.0 ft)"),
              std::string::npos);
    opinion.lengthPart[heating].reset();
    EXPECT_EQ(partOrDash(opinion, heating, neighboursAndEnds, englishUnits), "-");
}

TEST_F(OpinionTexts, NoteWhatTheFiguresRestOn) {
    EXPECT_EQ(opinionNote(texts, opinion),
              "The months are assumed: the zones give the design day and full-load hours only. "
              "Cooling peaks in July with 27 percent of the year. Heating peaks in January with 34 "
              "percent of the year. The peak of 4 hours takes no heat store of grout and fluid "
              "into account.");
    opinion.year[cooling].heldAtGreatest = true;
    opinion.year[heating].evenMonths = true;
    opinion.towerPercent = 35;
    opinion.pulseHours = 12;
    const std::string note = opinionNote(texts, opinion);
    EXPECT_NE(note.find("held at 40 percent"), std::string::npos);
    EXPECT_NE(note.find("Heating is spread evenly, one twelfth a month"), std::string::npos);
    EXPECT_NE(note.find("takes 35 percent"), std::string::npos);
    EXPECT_NE(note.find("peak of 12 hours"), std::string::npos);
}

TEST_F(OpinionTexts, NoteWhereTheMonthsComeFrom) {
    opinion.shape = typedYear;
    EXPECT_TRUE(opinionNote(texts, opinion).starts_with("Months as typed."));
    opinion.shape = importedYear;
    EXPECT_TRUE(opinionNote(texts, opinion).starts_with("Months as imported."));
}

TEST_F(OpinionTexts, NameEveryReasonOfBothModes) {
    const std::pair<OpinionFailure, const char*> reasons[] = {
        {OpinionFailure::noLoads, "no loads"},
        {OpinionFailure::noConductivity, "conductivity"},
        {OpinionFailure::noDiffusivity, "diffusivity"},
        {OpinionFailure::noBoreDiameter, "diameter of the bore"},
        {OpinionFailure::noRows, "no row of bores"},
        {OpinionFailure::noPredictionTime, "prediction time"},
        {OpinionFailure::boresTooClose, "separation"},
        {OpinionFailure::tooManyBores, "2,500 bores"},
        {OpinionFailure::notComputable, "could not be computed for these inputs"}};
    for (const auto& [failure, words] : reasons) {
        SecondOpinion none;
        none.reason.failure = failure;
        const std::string message = opinionMessage(texts, none, 62, englishUnits);
        EXPECT_NE(message.find(words), std::string::npos) << message;
        EXPECT_EQ(shownMessage(texts, none, 62, englishUnits), message);
        EXPECT_EQ(opinionNote(texts, none), "");
        EXPECT_EQ(lengthOrDash({1, 1}, none, cooling, englishUnits), "-");
    }
}

TEST_F(OpinionTexts, NameTheReasonOfAModeAndLeaveTheOther) {
    EXPECT_EQ(opinionMessage(texts, opinion, 62, englishUnits), "");
    opinion.reasonOfMode[heating] = {OpinionFailure::limitNotBelowGround, 0};
    // 45 F is 7.2 C, 40 F is 4.4 C.
    EXPECT_EQ(
        opinionMessage(texts, opinion, 40, metricUnits),
        "Heating: the mean fluid at its limit, 7.2 deg C, is not below the ground, 4.4 deg C.");
    opinion.reasonOfMode[heating] = {OpinionFailure::noLoadOfMode, 0};
    opinion.reasonOfMode[cooling] = {OpinionFailure::limitNotAboveGround, 0};
    EXPECT_EQ(opinionMessage(texts, opinion, 90, englishUnits),
              "Cooling: the mean fluid at its limit, 88.0 deg F, is not above the ground, 90.0 deg "
              "F. Heating: no load.");
}

TEST_F(OpinionTexts, TellHowFarTheWaterGoesWhereNoDepthIsEnough) {
    opinion.reasonOfMode[cooling] = {OpinionFailure::noDepthHoldsLimit, 104};
    EXPECT_EQ(opinionMessage(texts, opinion, 62, englishUnits),
              "Cooling: Add bores or widen the separation; at 2,000 ft the water still reaches 104 "
              "deg F.");
    // 2,000 ft are 609.6 m, 104 F are 40 C.
    EXPECT_EQ(opinionMessage(texts, opinion, 62, metricUnits),
              "Cooling: Add bores or widen the separation; at 610 m the water still reaches 40 deg "
              "C.");
}

TEST_F(OpinionTexts, SayThatTheImporterIsMissing) {
    opinion.importerMissing = true;
    EXPECT_EQ(opinionMessage(texts, opinion, 62, englishUnits),
              "The monthly importer is not open or holds no loads: the standard year stands in.");
}

TEST_F(OpinionTexts, TellWhyNothingIsDrawnThoughLengthsMayStand) {
    EXPECT_EQ(shownMessage(texts, opinion, 62, englishUnits), "");
    opinion.reasonOfShown.failure = OpinionFailure::noDesignLength;
    EXPECT_EQ(shownMessage(texts, opinion, 62, englishUnits),
              "The classical method has no length to draw for.");
    opinion.reasonOfShown.failure = OpinionFailure::limitNotBelowGround;
    EXPECT_EQ(shownMessage(texts, opinion, 40, englishUnits),
              "Heating: the mean fluid at its limit, 45.0 deg F, is not below the ground, 40.0 deg "
              "F.");
    EXPECT_EQ(opinionMessage(texts, opinion, 40, englishUnits), "");
}

class OpinionPictures : public OpinionTexts {
 protected:
    OpinionPictures() {
        opinion.water.resize(opinionMonths);
        // The water rises by 0.5 F a year and swings by 10 F, the warmest in July.
        for (std::size_t n = 0; n < opinion.water.size(); ++n) {
            const double year = static_cast<double>(n / 12);
            opinion.water[n].mean = 60 + 0.5 * year;
            if (n % 12 == 6) opinion.water[n].entering[cooling] = 70 + 0.5 * year;
            if (n % 12 == 0) opinion.water[n].entering[heating] = 50 + 0.5 * year;
        }
        opinion.gFunction = {{1, 8760, 87600, 438000}, {0.1, 5, 9, 11}, {0.1, 4.5, 6, 6.5}};
    }
    OpinionScene scene(UnitSystem units = englishUnits) const {
        return {texts, units, "", {85, 40}, 20};
    }
};

TEST_F(OpinionPictures, DrawEachYearsExtremes) {
    const HistoryPicture picture = historyPicture(opinion, scene());
    ASSERT_EQ(picture.years.size(), 20U);
    EXPECT_EQ(picture.years[0], (HistoryPicture::Range{50, 70}));
    EXPECT_EQ(picture.years[19], (HistoryPicture::Range{59.5, 79.5}));
    EXPECT_EQ(describe(picture, texts),
              "Entering water with bores of 126.8 ft: 50.0 to 70.0 deg F in year 1, 59.5 to 79.5 "
              "deg F in year 20; the limits are 85.0 deg F in cooling and 40.0 deg F in heating.");
}

TEST_F(OpinionPictures, DrawTheMonthsOfAYear) {
    OpinionScene ofYear = scene(metricUnits);
    ofYear.year = 2;
    const HistoryPicture picture = historyPicture(opinion, ofYear);
    ASSERT_EQ(picture.year, 2U);
    // In the third year 71 F are 21.67 C and 51 F 10.56 C.
    EXPECT_NEAR(picture.months[6][cooling].value(), 21.6667, 1e-4);
    EXPECT_FALSE(picture.months[6][heating]);
    EXPECT_EQ(describe(picture, texts),
              "Entering water in year 3: 21.7 deg C at most in July, 10.6 deg C at least in "
              "January.");
}

TEST_F(OpinionPictures, TellTheMonths) {
    EXPECT_EQ(describe(yearPicture(opinion, scene()), texts),
              "Cooling: 1000.0 MBtu a year, most in July with 45 percent, peak 400.0 MBtu/hr. "
              "Heating: 1200.0 MBtu a year, most in January with 34 percent, peak 300.0 MBtu/hr.");
    // 400 MBtu/hr x 0.2931 = 117.24 kW.
    EXPECT_NEAR(yearPicture(opinion, scene(metricUnits)).peaks[cooling][6], 117.24, 1e-9);
}

TEST_F(OpinionPictures, TellTheGFunction) {
    EXPECT_EQ(
        describe(gFunctionPicture(opinion, scene()), texts),
        "g-function of bores of 126.8 ft: 5.00 after 1 year, 9.00 after 10 and 11.00 after 50 "
        "years; a bore alone has 6.50 after 50 years.");
}

TEST_F(OpinionPictures, SayWhyThereIsNothingToDraw) {
    SecondOpinion none;
    none.reason.failure = OpinionFailure::noRows;
    OpinionScene empty = scene();
    empty.empty = shownMessage(texts, none, 62, englishUnits);
    const char* words = "There is no row of bores across, or none down.";
    EXPECT_EQ(describe(historyPicture(none, empty), texts), words);
    EXPECT_EQ(describe(yearPicture(none, empty), texts), words);
    EXPECT_EQ(describe(gFunctionPicture(none, empty), texts), words);
}

}  // namespace
}  // namespace varnholt
