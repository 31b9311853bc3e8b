// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands in pictures: parted where a person looks, as held everywhere else.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QGraphicsTextItem>
#include <QGraphicsView>
#include <QSvgGenerator>
#include <QXmlStreamReader>
#include <memory>

#include "desktop/drawings/drawings.h"
#include "desktop/drawings/what_if_paintings.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

using CanvasPainting = std::function<void(const Canvas&)>;

/// The texts that a painting writes, with a point for each thin space, which no editor shows.
QStringList textsOf(const CanvasPainting& paint, bool onPaper = false) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize({460, 360});
    QPainter painter(&generator);
    Canvas canvas =
        canvasFor(painter, {8, 8, 444, 344}, QApplication::palette(), QApplication::font());
    canvas.partsThousands = !onPaper;
    paint(canvas);
    painter.end();
    QStringList texts;
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"text")
            texts << reader.readElementText().replace(QChar(0x202F), QChar(0xB7));
    EXPECT_FALSE(reader.hasError());
    return texts;
}

bool writes(const QStringList& texts, const char* text) {
    return texts.contains(QString::fromUtf8(text));
}

/// The first column costs 30,000 to build and least over its life.
TowerPicture towerOf30000() {
    TowerPicture picture;
    picture.first = {30'000, 28'000};
    picture.tower = {0, 4'000};
    picture.life = {58'000, 59'000};
    picture.best = 0;
    picture.bestCost = "$58,000";
    return picture;
}

TEST(PartedThousands, StandOnTheAxesOfPictures) {
    const QStringList texts =
        textsOf([](const Canvas& canvas) { paintTower(canvas, towerOf30000(), pictureTexts()); });
    // 59,000 in about five figures: 11,800 is not above 20,000, the next of 1, 2, 5.
    for (const char* figure : {"0", "20·000", "40·000", "60·000"})
        EXPECT_TRUE(writes(texts, figure)) << figure;
}

TEST(PartedThousands, StandAtTheMarksOfPictures) {
    const QStringList texts =
        textsOf([](const Canvas& canvas) { paintTower(canvas, towerOf30000(), pictureTexts()); });
    EXPECT_TRUE(writes(texts, "0 %, $58·000"));
}

TEST(PartedThousands, StandBelowPicturesToo) {
    FieldsPicture fields;
    fields.fields = {{1000, 320, 120'000}, {2000, 300, 130'000}};
    fields.cheapest = "$120,000";
    fields.dearest = "$130,000";
    fields.unit = "ft";
    const QStringList texts =
        textsOf([&](const Canvas& canvas) { paintFields(canvas, fields, pictureTexts()); });
    // Steps of 200 bores from 1,000 on; the words of the legend are another table's.
    EXPECT_TRUE(writes(texts, "1·000"));
    EXPECT_TRUE(writes(texts, "1·200"));
    EXPECT_FALSE(texts.filter(QString::fromUtf8("$120·000")).isEmpty());
}

TEST(PartedThousands, StandAtDimensionsAndClassesOfAField) {
    const QStringList texts = textsOf(
        [](const Canvas& canvas) { paintField(canvas, sampleField(100, 100), pictureTexts()); });
    // 99 steps of 20 ft; 98 by 98 bores have four neighbours.
    EXPECT_TRUE(writes(texts, "1·980.0 ft"));
    EXPECT_TRUE(writes(texts, "Inside, 4 neighbours: 9·604"));
}

LoadsChart loadsOf12345() {
    LoadsChart loads = sampleLoads();
    loads.loads[cooling][1] = 12345.6;
    loads.largest[cooling] = 12345.6;
    return loads;
}

TEST(PartedThousands, StandAtBarsButNotOnThePagesOfAReport) {
    const auto paint = [](const Canvas& canvas) {
        paintLoads(canvas, loadsOf12345(), sampleCaptions(), pictureTexts());
    };
    EXPECT_TRUE(writes(textsOf(paint), "12·345.6"));
    EXPECT_TRUE(writes(textsOf(paint, true), "12345.6"));
}

TEST(PartedThousands, AreNotInTheSentenceOfAPicture) {
    const QString told = qt(describe(loadsOf12345(), sampleCaptions(), pictureTexts()));
    EXPECT_TRUE(told.contains(QStringLiteral("12345.6")));
}

/// The figures of a chart, with a point for whatever space parts them: the engine sets its words as
/// hypertext, in which a thin space may become a common one.
QStringList figuresOf(const Drawing& drawing) {
    QStringList figures;
    for (const QGraphicsView* chart : drawing.findChildren<QGraphicsView*>())
        for (const QGraphicsItem* item : chart->items())
            if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item))
                figures << text->toPlainText().simplified().replace(u' ', QChar(0xB7));
    return figures;
}

TEST(PartedThousands, StandOnTheAxesOfCharts) {
    const std::unique_ptr<Drawing> day(newDayChart(loadsOf12345, sampleCaptions, pictureTexts()));
    day->resize(500, 400);
    day->show();
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    // 12,345.6 in at most four steps: 3,086.4 is not above 5,000, the next of 1, 2, 2.5, 5.
    const QStringList figures = figuresOf(*day);
    for (const char* figure : {"0", "5·000", "10·000", "15·000"})
        EXPECT_TRUE(figures.contains(QString::fromUtf8(figure))) << figure;
}

TEST(PartedThousands, LeaveAChartWithDecimalsItsPoint) {
    LoadsChart loads = sampleLoads();
    loads.loads = {};
    loads.loads[cooling][1] = 2;
    loads.largest = {2, 0};
    const std::unique_ptr<Drawing> day(
        newDayChart([&] { return loads; }, sampleCaptions, pictureTexts()));
    day->resize(500, 400);
    day->show();
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    // 2 in four steps of 0.5.
    EXPECT_TRUE(figuresOf(*day).contains(QStringLiteral("1.5")));
}

}  // namespace
}  // namespace varnholt
