// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/drawings.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QLabel>
#include <algorithm>
#include <memory>

#include "design/modCalculations/trench_layout.h"
#include "design/picture_sentences.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "forms/text_numbers/pictures.h"
#include "loads/import/month_pictures.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

int pixelsUnlike(const QImage& image, const QColor& ground) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != ground) ++count;
    return count;
}

/// Lengths of the runs of one colour along a level line, in pixels.
std::vector<int> runsOf(const QImage& image, const QColor& colour, int y) {
    std::vector<int> runs;
    bool inside = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool match = image.pixelColor(x, y) == colour;
        if (match && !inside) runs.push_back(0);
        if (match) ++runs.back();
        inside = match;
    }
    return runs;
}

/// What a screen reader tells of a picture.
template <class Picture>
QString told(const Picture& picture) {
    return qt(describe(picture, pictureTexts()));
}

PumpPicture samplePump() {
    PumpPicture picture;
    picture.pump.name = "HV036";
    picture.temperatureUnit = "deg F";
    picture.capacityUnit = "MBtu/hr";
    picture.powerUnit = "kW";
    picture.designWater = {85, 50};
    for (const Mode mode : modes) {
        picture.pump.capacity[mode].curve = {{40, 30}, {60, 34}, {100, 26}};
        picture.pump.capacity[mode].points = {{40, 30.5}, {60, 33.5}, {100, 26}};
        picture.pump.power[mode].curve = {{40, 2}, {100, 3.2}};
    }
    return picture;
}

TEST(Drawings, ShowSomethingInBothSchemesAtEveryScale) {
    for (const DrawingSample& sample : drawingSamples()) {
        SCOPED_TRACE(sample.name);
        for (const Look* look : {&lightLook(), &darkLook()})
            for (const double ratio : {1.0, 1.5, 2.0}) {
                const QImage image = renderedSample(sample, *look, ratio);
                EXPECT_GT(pixelsUnlike(image, look->surface), 20);
            }
    }
}

TEST(Drawings, AreNotMirroredWhereTheLanguageReadsFromTheRight) {
    const FieldPlan field = drawField(ArrangementValues());
    const std::unique_ptr<Drawing> drawing(newFieldDrawing([&] { return field; }, pictureTexts()));
    drawing->resize(420, 360);
    const QImage usual = drawing->grab().toImage();
    drawing->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(drawing->grab().toImage(), usual);
    EXPECT_GT(pixelsUnlike(usual, usual.pixelColor(0, 0)), 1000);
}

TEST(BorePicture, IsToScale) {
    // Placed at average, 1.9 in pipes leave three gaps of (5 - 2 * 1.9) / 3 = 0.4 in, so their
    // middles are 2.3 in apart. A line through the middles crosses four walls of 0.175 in each; an
    // inner diameter of 1.55 in lies between the walls of one pipe, 0.4 in between the pipes.
    const BoreDrawing bore = sampleBore(5, 1.9, 1.55, 0, 1);
    const DrawingSample sample{
        "", {400, 400}, [&](const Canvas& canvas) { paintBore(canvas, bore, pictureTexts()); }};
    const Look& look = lightLook();
    const QImage image = renderedSample(sample, look, 4);
    // Beside the line of centres, which hides the walls.
    const std::vector<int> walls = runsOf(image, look.pipe, image.height() / 2 + 12);
    ASSERT_EQ(walls.size(), 4u);
    const double room = (400 - 16 - 2 * 30) / 2.0;  // radius that the dimensions leave
    const double perInch = 4 * room / 2.5;
    for (const int wall : walls) EXPECT_NEAR(wall, 0.175 * perInch, 6);
}

TEST(BorePicture, IsDescribed) {
    EXPECT_EQ(told(sampleBore(5, 1.9, 1.55, 0, 1)),
              "Cross-section of a borehole of 5.00 in with one U-tube, to scale. The pipe's outer "
              "diameter is 1.90 in.");
    EXPECT_TRUE(told(sampleBore(6, 1.315, 1.08, 1, 1)).contains(QStringLiteral("two U-tubes")));
}

TEST(BorePicture, SaysThatThePipesDoNotFit) {
    EXPECT_TRUE(told(sampleBore(3, 1.9, 1.55, 0, 1))
                    .endsWith(QStringLiteral("The pipes do not fit into the borehole.")));
}

TEST(BorePicture, OfNothingIsEmpty) {
    const BoreDrawing bore = sampleBore(0, 0, 0, 0, 1);
    const DrawingSample sample{
        "", {200, 200}, [&](const Canvas& canvas) { paintBore(canvas, bore, pictureTexts()); }};
    EXPECT_EQ(pixelsUnlike(renderedSample(sample, lightLook(), 1), lightLook().surface), 0);
}

TEST(FieldPicture, CountsTheBoresOfEachClass) {
    // 6 by 4: 4 * 2 inside, 2 * (4 + 2) at the edges, 4 corners.
    EXPECT_EQ(told(sampleField(6, 4)),
              "Plan of 6 by 4 boreholes, 20.0 ft apart. From the first to the last the field is "
              "100.0 ft wide and 60.0 ft deep. Inside, 4 neighbours: 8. Edge, 3 neighbours: 12. "
              "Corner, 2 neighbours: 4.");
    EXPECT_TRUE(told(sampleField(8, 1))
                    .endsWith(QStringLiteral("In line, 2 neighbours: 6. End, 1 neighbour: 2.")));
    EXPECT_TRUE(told(sampleField(1, 1)).endsWith(QStringLiteral("No neighbour: 1.")));
    EXPECT_TRUE(
        told(sampleField(100, 100)).contains(QStringLiteral("Inside, 4 neighbours: 9604.")));
}

TEST(FieldPicture, WithoutRowsSaysWhatToDo) {
    EXPECT_EQ(told(sampleField(0, 4)),
              "Enter at least one row across and one row down to see the field.");
}

TEST(FieldPicture, OfAnySizeIsDrawn) {
    for (const double across : {1.0, 2.0, 41.0, 1000.0, 1e9, 1e300})
        for (const double down : {1.0, 3.0, 1e6}) {
            const FieldPlan field = sampleField(across, down);
            const DrawingSample sample{"", {300, 300}, [&](const Canvas& canvas) {
                                           paintField(canvas, field, pictureTexts());
                                       }};
            EXPECT_GT(pixelsUnlike(renderedSample(sample, lightLook(), 1), lightLook().surface),
                      100);
        }
}

TEST(TrenchPicture, TellsTheTrenchAndWhatLiesInIt) {
    EXPECT_EQ(told(sampleTrench(samplePipes(1, 6), 6, 18)),
              "Section of a trench to scale, 18.0 inches wide and 6.0 ft deep, with 6 pipes.");
    EXPECT_EQ(
        told(sampleTrench(samplePipes(3, 1), 5, 8)),
        "Section of a trench to scale, 8.0 inches wide and 5.0 ft deep, with a slinky of 36.0 "
        "inches lying flat. The slinky is wider than the trench.");
    EXPECT_EQ(told(sampleTrench(samplePipes(0, 1), 0, 8)),
              "Enter the depth and the width of the trench to see it.");
}

TEST(TrenchPicture, OfAnyTrenchIsDrawn) {
    for (const double depth : {1e-6, 6.0, 1000.0, 1e300})
        for (const double width : {1e-6, 8.0, 1e6})
            for (const auto arrangement :
                 {modCalculations::singleColumn, modCalculations::threeColumns,
                  modCalculations::lyingCoil, modCalculations::standingCoil}) {
                const TrenchDrawing trench =
                    sampleTrench(samplePipes(arrangement, 3), depth, width);
                const DrawingSample sample{"", {300, 300}, [&](const Canvas& canvas) {
                                               paintTrench(canvas, trench, pictureTexts());
                                           }};
                EXPECT_GT(pixelsUnlike(renderedSample(sample, lightLook(), 1), lightLook().surface),
                          100);
            }
}

TEST(TrenchPlanPicture, TellsTheFieldAndHowMuchOfItIsDrawn) {
    EXPECT_EQ(told(sampleTrenchPlan(samplePipes(2, 6), 3)),
              "Plan of 3 trenches, 12.0 ft apart, with pipes side by side.");
    EXPECT_EQ(told(sampleTrenchPlan(samplePipes(3, 1), 12)),
              "Plan of 12 trenches, 12.0 ft apart, with a slinky of 36.0 inches, its loops 18.0 "
              "inches apart. 4 of 12 trenches are drawn.");
}

TEST(MonthsPicture, TellsTheLargestMonthsOfItsMode) {
    EXPECT_EQ(told(sampleMonths(heating)),
              "Heating by months: columns of energy up to 300.0 ( MBtu ) in July, marks of peaks "
              "up to 90.5 (MBtu/Hr) in July.");
}

TEST(MonthsPicture, WithoutLoadsSaysWhatToDo) {
    EXPECT_EQ(told(MonthsChart()), "No loads yet. Type them in the table, or read a file.");
}

TEST(MonthsPicture, DrawsThePeakMonthStrong) {
    MonthsChart flat = sampleMonths(cooling);
    const DrawingSample none{
        "", {440, 200}, [&](const Canvas& canvas) { paintMonths(canvas, flat, pictureTexts()); }};
    const QColor strong = lightLook().cooling;
    const int with = pixelsUnlike(renderedSample(none, lightLook(), 1), strong);
    flat.peakMonth.reset();
    const int without = pixelsUnlike(renderedSample(none, lightLook(), 1), strong);
    EXPECT_LT(with, without);
}

TEST(LoadsPicture, TellsTheLoadsOfEachMode) {
    EXPECT_EQ(
        describe(sampleLoads(), sampleCaptions(), pictureTexts()),
        "Heat gains 24.0, 42.5, 38.2 and 6.0 MBtu/hr from 8 a.m. on, the largest in the "
        "block 12-4. Heat losses 31.0, 12.4, 9.0 and 27.5 MBtu/hr from 8 a.m. on, the largest "
        "in the block 8-12.");
    EXPECT_EQ(describe(LoadsChart(), sampleCaptions(), pictureTexts()),
              "Enter loads to see the day.");
}

/// The chart engine's widgets within a drawing.
int chartsIn(const Drawing& drawing) {
    const QList<QWidget*> inside = drawing.findChildren<QWidget*>();
    return static_cast<int>(std::count_if(inside.begin(), inside.end(), [](const QWidget* widget) {
        return widget->inherits("QChartView");
    }));
}

TEST(Charts, AreNotCreatedBeforeTheyAreShown) {
    const std::unique_ptr<Drawing> day(newDayChart(sampleLoads, sampleCaptions, pictureTexts()));
    EXPECT_EQ(chartsIn(*day), 0);
    day->show();
    EXPECT_EQ(chartsIn(*day), 1);
}

TEST(Charts, AreNotCreatedBeforeThereIsSomethingToShow) {
    LoadsChart loads;
    const std::unique_ptr<Drawing> day(
        newDayChart([&] { return loads; }, sampleCaptions, pictureTexts()));
    day->show();
    EXPECT_EQ(chartsIn(*day), 0);
    loads = sampleLoads();
    day->refresh();
    EXPECT_EQ(chartsIn(*day), 1);
}

TEST(Charts, SaySoWhereThePartThatDrawsThemIsMissing) {
    const std::unique_ptr<Drawing> day(newDayChart(sampleLoads, sampleCaptions, pictureTexts(),
                                                   []() -> ChartModule* { return nullptr; }));
    day->show();
    EXPECT_EQ(chartsIn(*day), 0);
    const auto* hint = day->findChild<QLabel*>();
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text().toStdString(), pictureTexts().text(1369));
    EXPECT_FALSE(hint->text().isEmpty());
}

TEST(ChartAxes, EndAtRoundNumbers) {
    // 42.5 in at most 4 steps: 10.6 is not above 20, the next of 1, 2, 2.5, 5.
    const ChartAxis loads = axisFromZero(42.5);
    EXPECT_EQ(loads.step, 20);
    EXPECT_EQ(loads.highest, 60);
    EXPECT_EQ(loads.figures, 4);
    EXPECT_EQ(axisFromZero(100).highest, 100);
    // 612 / 3 = 204, which the next round step of 250 takes in three steps.
    const ChartAxis low = axisFromZero(612, 3);
    EXPECT_EQ(low.step, 250);
    EXPECT_EQ(low.highest, 750);
    EXPECT_EQ(low.figures, 4);
    EXPECT_EQ(axisFromZero(0).highest, 1);
    // 40 to 100 has steps of 20, and 4 % of 60 as room at each end.
    const ChartAxis water = axisAround(40, 100);
    EXPECT_EQ(water.step, 20);
    EXPECT_NEAR(water.lowest, 37.6, 1e-12);
    EXPECT_NEAR(water.highest, 102.4, 1e-12);
}

/// The words in the charts of a drawing.
QStringList wordsIn(const Drawing& drawing) {
    QStringList words;
    for (const QGraphicsView* chart : drawing.findChildren<QGraphicsView*>())
        for (const QGraphicsItem* item : chart->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item))
                words << text->toPlainText();
    return words;
}

TEST(Charts, ShowTheUnitAloneWhereAnAxisHasNoRoomForItsTitle) {
    LoopCurves curves;
    curves.lengthUnit = "ft";
    curves.differenceUnit = "deg F";
    for (const Mode mode : modes) curves.perTon[mode] = {{4, 600}, {24, 200}};
    const std::unique_ptr<Drawing> loops(newLoopChart([&] { return curves; }, pictureTexts()));
    const QString title = qt(pictureTexts().text(Text::loopChartPerTon)) + QStringLiteral(" (ft)");
    loops->resize(500, 500);
    loops->show();
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    EXPECT_TRUE(wordsIn(*loops).contains(title));
    loops->resize(500, 140);
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    EXPECT_FALSE(wordsIn(*loops).contains(title));
    EXPECT_TRUE(wordsIn(*loops).contains(QStringLiteral("ft")));
}

TEST(Charts, FollowTheirSource) {
    PumpPicture picture = samplePump();
    const std::unique_ptr<Drawing> curves(newPumpCurves([&] { return picture; }, pictureTexts()));
    curves->show();
    // At 50 degF, half way from 40 to 60, heating has (30 + 34) / 2 and 2 + 1.2 / 6 kW; at 85 degF
    // cooling has 34 - 8 * 25 / 40 = 29 and 2 + 1.2 * 45 / 60 = 2.9 kW.
    EXPECT_EQ(
        curves->description(),
        "Curves of HV036 over the entering water temperature. Cooling at 85.0 deg F: capacity "
        "29.0 MBtu/hr, power 2.9 kW. Heating at 50.0 deg F: capacity 32.0 MBtu/hr, power 2.2 "
        "kW.");
    picture.pump.name.clear();
    curves->refresh();
    EXPECT_EQ(curves->description(), "Choose a heat pump to see its curves.");
}

TEST(Charts, TellNothingBeyondACurvesEnds) {
    const PumpCurve curve{{{40, 30}, {60, 34}}, {}};
    EXPECT_EQ(valueAt(curve, 39), std::nullopt);
    EXPECT_EQ(valueAt(curve, 40), 30);
    EXPECT_EQ(valueAt(curve, 55), 33);
    EXPECT_EQ(valueAt(curve, 61), std::nullopt);
    EXPECT_EQ(valueAt({}, 50), std::nullopt);
}

TEST(LinkLights, SayWhatTheyStandFor) {
    bool lit = true;
    const std::unique_ptr<Drawing> light(newLinkLight(LinkPartner::block, [&lit] {
        return describeLinkLight(LinkPartner::block, lit, pictureTexts());
    }));
    light->refresh();
    EXPECT_EQ(light->accessibleName(), "Linked with the Average Block Loads");
    lit = false;
    light->refresh();
    EXPECT_EQ(light->accessibleName(), "Not linked with the Average Block Loads");
    EXPECT_EQ(light->toolTip(), light->accessibleName());
}

}  // namespace
}  // namespace varnholt
