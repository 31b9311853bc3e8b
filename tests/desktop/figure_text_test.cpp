// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/figure_text.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

QString grouped(const char* text) {
    // A point stands for the thin space, which no editor shows.
    return groupedThousands(QString::fromUtf8(text)).replace(QChar(0x202F), QChar(0xB7));
}

TEST(GroupedThousands, PartTheWholePartOfEachNumberByThrees) {
    EXPECT_EQ(grouped("51134.6"), QString::fromUtf8("51·134.6"));
    EXPECT_EQ(grouped("5997.6 ft"), QString::fromUtf8("5·997.6 ft"));
    EXPECT_EQ(grouped("1234567"), QString::fromUtf8("1·234·567"));
    EXPECT_EQ(grouped("-1910.5"), QString::fromUtf8("-1·910.5"));
    EXPECT_EQ(grouped("+22.8"), QString::fromUtf8("+22.8"));
    EXPECT_EQ(grouped("365.2"), QString::fromUtf8("365.2"));
    EXPECT_EQ(grouped("10000 of 2000"), QString::fromUtf8("10·000 of 2·000"));
    EXPECT_EQ(grouped(""), QString());
}

TEST(GroupedThousands, LeaveDecimalsAlone) {
    EXPECT_EQ(grouped("0.12345"), QString::fromUtf8("0.12345"));
    EXPECT_EQ(grouped("1234.56789"), QString::fromUtf8("1·234.56789"));
}

TEST(GroupedThousands, PutThinSpacesInPlaceOfCommas) {
    EXPECT_EQ(grouped("8,297 ft"), QString::fromUtf8("8·297 ft"));
    EXPECT_EQ(grouped("$58,000"), QString::fromUtf8("$58·000"));
    EXPECT_EQ(grouped("EUR 1,234,567.5"), QString::fromUtf8("EUR 1·234·567.5"));
    EXPECT_EQ(grouped("0,12; 1,2,3"), QString::fromUtf8("0,12; 1,2,3"));
}

QString thin(const char* text) {
    return thinThousands(QString::fromUtf8(text)).replace(QChar(0x202F), QChar(0xB7));
}

TEST(ThinThousands, TakeThePlaceOfCommasAlone) {
    EXPECT_EQ(thin("3,249 ft of bore, $58,000 (the test's own price not deducted)."),
              QString::fromUtf8("3·249 ft of bore, $58·000 (the test's own price not deducted)."));
    EXPECT_EQ(thin("The prices are in $ of 2026."), QStringLiteral("The prices are in $ of 2026."));
    EXPECT_EQ(thin("Outline, 1: 0, 100"), QStringLiteral("Outline, 1: 0, 100"));
    EXPECT_EQ(thin("1,23 and 12,3456"), QStringLiteral("1,23 and 12,3456"));
    EXPECT_EQ(thin("100,000,000,"), QString::fromUtf8("100·000·000,"));
}

TEST(FigureText, GivesEveryDigitTheSameWidth) {
    const QFont font = QApplication::font();
    const double width = FigureText(QStringLiteral("111.1"), font).size().width();
    for (const char* text : {"000.0", "456.7", "888.9"})
        EXPECT_DOUBLE_EQ(FigureText(QString::fromUtf8(text), font).size().width(), width) << text;
}

TEST(FigureText, IsNotWholeWhereTheFaceLacksASign) {
    EXPECT_TRUE(FigureText(QStringLiteral("12.5 ft"), QApplication::font()).isWhole());
    // A character of the private use area, which no face of words has.
    EXPECT_FALSE(FigureText(QString(QChar(0xF8F0)), QApplication::font()).isWhole());
}

TEST(FigureLabels, KeepTheirTextAsItIs) {
    TextLabel label(QStringLiteral("51134.6"));
    const int plain = label.sizeHint().width();
    label.setFigures();
    EXPECT_EQ(label.text(), QStringLiteral("51134.6"));
    EXPECT_GE(label.sizeHint().width(), plain);  // with the thin space
    EXPECT_FALSE(label.grab().toImage().isNull());
}

/// A label as it is painted.
QImage paintedLabel(const QString& text, bool asSentence, bool wraps, int width) {
    TextLabel label(text);
    label.setWordWrap(wraps);
    if (asSentence) label.setSentence();
    label.resize(width, 80);
    return label.grab().toImage();
}

TEST(SentenceLabels, ShowThinSpacesAndKeepTheirText) {
    const QString held = QStringLiteral("3,249 ft of bore, $58,000");
    TextLabel label(held);
    label.setSentence();
    EXPECT_EQ(label.text(), held);
    for (const bool wraps : {false, true})
        for (const int width : {400, 90}) {
            SCOPED_TRACE(width);
            const QImage shown = paintedLabel(held, true, wraps, width);
            EXPECT_NE(shown, paintedLabel(held, false, wraps, width));
            EXPECT_EQ(shown, paintedLabel(thinThousands(held), false, wraps, width));
        }
}

TEST(SentenceLabels, TakeNoMoreRoomThanTheirTextDoes) {
    TextLabel label(QStringLiteral("$58,000,000"));
    const int before = label.sizeHint().width();
    label.setSentence();
    EXPECT_LE(label.sizeHint().width(), before);
}

TEST(FigureLabels, OfAWindowTellScriptsTheFigureThatTheFormHolds) {
    Desk desk;
    desk.main().click("NewBorehole");
    ChildWindow& form = *desk.main().windows().back();
    form.control("CATotalLengthLabel(0)").setCaption("51134.6");
    const BoundControl* label =
        desk.shelf.windowOf(form)->binder().require("CATotalLengthLabel(0)");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(std::get<std::string>(label->shown(Property::caption)), "51134.6");
}

}  // namespace
}  // namespace varnholt
