// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

#include "desktop/widgets/look.h"
#include "desktop/widgets/theme.h"

namespace varnholt {
namespace {

qint64 drawingOf(const char* name, int side, QIcon::Mode mode = QIcon::Normal) {
    const QPixmap picture =
        houseIcon(QString::fromLatin1(name)).pixmap(QSize(side, side), 1.0, mode);
    EXPECT_FALSE(picture.isNull()) << name;
    return picture.cacheKey();
}

TEST(Icons, AreDrawnOnceASizeHoweverOftenTheyAreShown) {
    const qint64 first = drawingOf("window", 24);
    EXPECT_EQ(drawingOf("window", 24), first);
    EXPECT_NE(drawingOf("window", 16), first);
    EXPECT_NE(drawingOf("refused", 24), first);
    EXPECT_NE(drawingOf("window", 24, QIcon::Disabled), first);
}

TEST(Icons, OfMessagesTellNewsQuestionsAndWarningsApart) {
    applyTheme(*qApp, Scheme::light);
    const auto drawn = [](QStyle::StandardPixmap icon) {
        return QApplication::style()->standardIcon(icon).pixmap(QSize(32, 32)).toImage();
    };
    const QImage news = drawn(QStyle::SP_MessageBoxInformation);
    const QImage question = drawn(QStyle::SP_MessageBoxQuestion);
    const QImage warning = drawn(QStyle::SP_MessageBoxWarning);
    EXPECT_FALSE(news.isNull());
    EXPECT_NE(news, question);
    EXPECT_NE(news, warning);
    EXPECT_NE(question, warning);
}

TEST(Icons, AreDrawnInTheColourOfTheWordsOnAChosenRow) {
    const QImage chosen =
        houseIcon(QStringLiteral("refused")).pixmap(QSize(48, 48), 1.0, QIcon::Selected).toImage();
    const Look& look = lookOf(QApplication::palette());
    int words = 0, alarms = 0;
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 48; ++x) {
            words += chosen.pixelColor(x, y) == look.onAccent ? 1 : 0;
            alarms += chosen.pixelColor(x, y) == look.heating ? 1 : 0;
        }
    EXPECT_GT(words, 20);
    EXPECT_EQ(alarms, 0);
}

}  // namespace
}  // namespace varnholt
