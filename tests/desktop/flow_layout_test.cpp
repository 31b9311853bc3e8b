// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/flow_layout.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

class Flow : public testing::Test {
 protected:
    const QWidget* add(int width, int height) {
        auto* word = new QWidget;
        word->setFixedSize(width, height);
        layout->addWidget(word);
        return word;
    }

    QWidget around;
    FlowLayout* layout = new FlowLayout(&around);
};

TEST_F(Flow, StandsThePiecesOfALineInTheMiddleOfItsHeight) {
    const QWidget* low = add(100, 20);
    const QWidget* high = add(50, 30);
    EXPECT_EQ(layout->heightForWidth(158), 30);
    layout->setGeometry({0, 0, 158, 30});
    // (30 - 20)/2 above the lower one; 100 + 8 before the higher one
    EXPECT_EQ(low->geometry(), QRect(0, 5, 100, 20));
    EXPECT_EQ(high->geometry(), QRect(108, 0, 50, 30));
}

TEST_F(Flow, BreaksALineWhereTheNextPieceHasNoRoom) {
    const QWidget* first = add(100, 20);
    const QWidget* second = add(50, 30);
    // 100 + 8 + 50 fit into 158 and not into 157
    EXPECT_EQ(layout->heightForWidth(157), 20 + gridStep + 30);
    layout->setGeometry({0, 0, 157, 58});
    EXPECT_EQ(first->pos(), QPoint(0, 0));
    EXPECT_EQ(second->pos(), QPoint(0, 28));
}

TEST_F(Flow, BeginsAtTheRightWhereTheLanguageDoes) {
    around.setLayoutDirection(Qt::RightToLeft);
    const QWidget* first = add(100, 20);
    const QWidget* second = add(50, 20);
    layout->setGeometry({0, 0, 200, 20});
    // 200 - 100 for the first, 8 + 50 further left for the second
    EXPECT_EQ(first->x(), 100);
    EXPECT_EQ(second->x(), 42);
}

}  // namespace
}  // namespace varnholt
