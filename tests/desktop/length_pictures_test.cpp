// SPDX-License-Identifier: GPL-3.0-or-later
// What a design comes to, as its window shows it.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTabWidget>

#include "design/picture_sentences.h"
#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/drawings/drawings.h"
#include "desktop/drawings/length_strip.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "forms/text_numbers/lengths.h"

namespace varnholt {
namespace {

/// The pixels of a colour in columns from..to of the picture's upper or lower half.
int pixelsOf(const QImage& image, const QColor& colour, const QRect& place) {
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.pixelColor(x, y) == colour) ++count;
    return count;
}

TEST(LengthPicture, TellsEachModesPartsInASentence) {
    EXPECT_EQ(
        describe(sampleLengths(), pictureTexts()),
        "Cooling, 2029.1 ft: Long-term heat 20.0 ft, Monthly heat 447.1 ft, Short-term pulse "
        "465.0 ft, Bore resistance 894.1 ft, Temperature penalty 202.9 ft. "
        "Heating, 1420.1 ft: Long-term heat -46.2 ft, Monthly heat 253.4 ft, Short-term pulse "
        "527.0 ft, Bore resistance 1013.5 ft, Temperature penalty -327.6 ft.");
}

TEST(LengthPicture, SaysWhatToDoBeforeARun) {
    EXPECT_EQ(describe(LengthSummary(), pictureTexts()),
              pictureTexts().text(Text::lengthPartsEmpty));
}

TEST(LengthPicture, OfAFileSaysThatItsPartsAreNotKept) {
    LengthSummary lengths = sampleLengths();
    lengths.parts.clear();
    lengths.state = LengthSummary::State::kept;
    EXPECT_EQ(describe(lengths, pictureTexts()),
              "Saved lengths come without what they are made of. Press Calculate to see it.");
}

/// One long-term part for each mode in a picture without words.
LengthSummary twoBars(double cool, double heat) {
    LengthSummary lengths = sampleLengths();
    lengths.length = {"", ""};
    lengths.feet = {cool, heat};
    lengths.parts = {{"", {cool, heat}, {"", ""}}, {"", {}, {"", ""}}};
    return lengths;
}

TEST(LengthPicture, DrawsBothModesToOneScale) {
    const LengthSummary lengths = twoBars(1000, 250);
    const DrawingSample sample{"", {520, 130}, [&](const Canvas& canvas) {
                                   paintLengths(canvas, lengths, pictureTexts());
                               }};
    const QImage image = renderedSample(sample, lightLook(), 1);
    const int half = image.height() / 2;
    const int cool = pixelsOf(image, lightLook().cooling, {0, 0, image.width(), half - 10});
    const int heat = pixelsOf(image, lightLook().heating, {0, half - 20, image.width(), half - 10});
    EXPECT_GT(cool, 0);
    EXPECT_GT(cool, 3 * heat);
}

TEST(LengthPicture, DrawsWhatShortensLeftwardOfTheLineAtZero) {
    LengthSummary lengths = twoBars(1000, 1000);
    lengths.parts[0].feet = {1000, -500};
    lengths.parts[1].feet = {0, 1500};
    const DrawingSample sample{"", {520, 130}, [&](const Canvas& canvas) {
                                   paintLengths(canvas, lengths, pictureTexts());
                               }};
    const QImage image = renderedSample(sample, lightLook(), 1);
    // The filled bar of heating lies left of the one of cooling.
    int firstHeat = image.width(), firstCool = image.width();
    for (int x = 70; x < image.width(); ++x)
        for (int y = 0; y < image.height() - 25; ++y) {
            if (image.pixelColor(x, y) == lightLook().heating) firstHeat = std::min(firstHeat, x);
            if (image.pixelColor(x, y) == lightLook().cooling) firstCool = std::min(firstCool, x);
        }
    EXPECT_LT(firstHeat, firstCool - 50);
}

TEST(LengthPicture, LeavesTheMarkOfTheLengthFreeOfFigures) {
    // A part of 1000 ft that the next shortens to 520: the mark goes through the middle of its bar.
    LengthSummary lengths = twoBars(520, 520);
    lengths.parts = {{"", {1000, 1000}, {"1000.0 ft", "1000.0 ft"}}, {"", {-480, -480}, {"", ""}}};
    const DrawingSample sample{"", {520, 130}, [&](const Canvas& canvas) {
                                   paintLengths(canvas, lengths, pictureTexts());
                               }};
    LengthSummary wordless = lengths;
    wordless.parts[0].length = {"", ""};
    const DrawingSample bare{"", {520, 130}, [&](const Canvas& canvas) {
                                 paintLengths(canvas, wordless, pictureTexts());
                             }};
    const QImage image = renderedSample(sample, lightLook(), 1);
    const QImage without = renderedSample(bare, lightLook(), 1);
    EXPECT_NE(image, without) << "the figure stands beside the mark";
    // The mark is a column of ink over the height of a bar and beyond: beside it nothing differs.
    int marks = 0;
    for (int x = 80; x < without.width() - 2; ++x) {
        int ink = 0;
        for (int y = 0; y < 45; ++y)
            if (without.pixelColor(x, y) == lightLook().ink) ++ink;
        if (ink < 20) continue;
        ++marks;
        for (int near = x - 2; near <= x + 2; ++near)
            for (int y = 0; y < 45; ++y) EXPECT_EQ(image.pixel(near, y), without.pixel(near, y));
    }
    EXPECT_GT(marks, 0);
}

TEST(LengthStrips, TellTheLengthsAndWhetherTheyAreThoseOfTheInputs) {
    LengthSummary lengths = sampleLengths();
    LengthStrip strip([&] { return lengths; }, pictureTexts());
    strip.refresh();
    EXPECT_EQ(plain(strip.accessibleName()),
              "Required length: cooling 2029.1 ft, heating 1420.1 ft. Up to date.");
    lengths.state = LengthSummary::State::stale;
    strip.refresh();
    EXPECT_EQ(plain(strip.accessibleName()),
              "Required length: cooling 2029.1 ft, heating 1420.1 ft. Out of date.");
    lengths.state = LengthSummary::State::kept;
    strip.refresh();
    EXPECT_EQ(plain(strip.accessibleName()),
              "Required length: cooling 2029.1 ft, heating 1420.1 ft. As saved.");
    lengths = {};
    strip.refresh();
    EXPECT_EQ(plain(strip.accessibleName()), "Not calculated yet");
}

TEST(LengthStrips, MakeRoomForTheirFigures) {
    LengthSummary lengths = sampleLengths();
    lengths.length = {"9.1 ft", "0.1 ft"};
    LengthStrip strip([&] { return lengths; }, pictureTexts());
    strip.refresh();
    const int before = strip.minimumSizeHint().width();
    lengths = sampleLengths();
    strip.refresh();
    EXPECT_GT(strip.minimumSizeHint().width(), before);
    EXPECT_GT(strip.sizeHint().width(), strip.minimumSizeHint().width());
}

class LengthsInSight : public testing::Test {
 protected:
    ChildWindow& opened(const char* command) {
        desk.main().click(command);
        return *desk.main().windows().back();
    }
    Desk desk;
};

TEST_F(LengthsInSight, StandBelowEveryPageWithCalculate) {
    for (const char* command : {"NewBorehole", "NewHorizontal", "NewSurfaceWater"}) {
        ChildWindow& form = opened(command);
        SCOPED_TRACE(form.formName());
        FormWindow& window = *desk.shelf.windowOf(form);
        auto* pages = window.findChild<QTabWidget*>();
        ASSERT_NE(pages, nullptr);
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            Desk::settle();
            const QWidget* calculate = window.binder().find("CACalculateCommand")->widget();
            EXPECT_TRUE(calculate->isVisible());
            EXPECT_FALSE(pages->isAncestorOf(calculate));
        }
        EXPECT_TRUE(desk.faults.empty());
    }
}

}  // namespace
}  // namespace varnholt
