// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/icons.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace varnholt
