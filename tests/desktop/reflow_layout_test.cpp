// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/reflow_layout.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// A piece of a least and a usual size.
class SizedWidget : public QWidget {
 public:
    SizedWidget(const QSize& least, const QSize& usual) : least_(least), usual_(usual) {}
    QSize sizeHint() const override { return usual_; }
    QSize minimumSizeHint() const override { return least_; }

 private:
    QSize least_, usual_;
};

class Reflow : public testing::Test {
 protected:
    SizedWidget* add(const QSize& least, const QSize& usual, int stretch, bool grows = false) {
        auto* block = new SizedWidget(least, usual);
        layout->addPiece(block, stretch, grows);
        return block;
    }
    void layOut(int width, int height) { layout->setGeometry({0, 0, width, height}); }

    QWidget around;
    ReflowLayout* layout = new ReflowLayout(&around);
};

TEST_F(Reflow, SetsPiecesSideBySideWhereThereIsRoom) {
    const SizedWidget* left = add({200, 50}, {250, 60}, 1);
    const SizedWidget* right = add({300, 80}, {350, 90}, 1);
    layOut(708, 100);
    // (708 - 8)/2 each, both as high as the area
    EXPECT_EQ(left->geometry(), QRect(0, 0, 350, 100));
    EXPECT_EQ(right->geometry(), QRect(358, 0, 350, 100));
    EXPECT_EQ(layout->heightForWidth(708), 90);
}

TEST_F(Reflow, SetsThemBelowOneAnotherWhereThereIsNone) {
    const SizedWidget* upper = add({200, 50}, {250, 60}, 1);
    const SizedWidget* lower = add({300, 80}, {350, 90}, 1);
    // 200 + 8 + 300 fit into 508 and not into 507
    EXPECT_EQ(layout->heightForWidth(508), 90);
    EXPECT_EQ(layout->heightForWidth(507), 60 + gridStep + 90);
    layOut(507, 158);
    EXPECT_EQ(upper->geometry(), QRect(0, 0, 507, 60));
    EXPECT_EQ(lower->geometry(), QRect(0, 68, 507, 90));
}

TEST_F(Reflow, IsNeverWiderThanItsWidestPieceMustBe) {
    add({200, 50}, {250, 60}, 1);
    add({300, 80}, {350, 90}, 1);
    EXPECT_EQ(layout->minimumSize().width(), 300);
    EXPECT_EQ(layout->sizeHint(), QSize(250 + gridStep + 350, 90));
}

TEST_F(Reflow, LeavesNoPieceBelowItsLeastWidth) {
    const SizedWidget* narrow = add({100, 50}, {100, 50}, 1);
    const SizedWidget* wide = add({400, 50}, {400, 50}, 1);
    layOut(608, 50);
    EXPECT_EQ(narrow->width(), 200);
    EXPECT_EQ(wide->width(), 400);
}

TEST_F(Reflow, GivesAPieceWithoutAShareWhatItAsksFor) {
    const SizedWidget* fields = add({200, 50}, {240, 50}, 0);
    const SizedWidget* picture = add({200, 50}, {300, 50}, 1);
    layOut(808, 50);
    EXPECT_EQ(fields->width(), 240);
    EXPECT_EQ(picture->width(), 560);
}

TEST_F(Reflow, GivesTheHeightLeftOverToWhatGrows) {
    const SizedWidget* fields = add({300, 50}, {300, 60}, 0);
    const SizedWidget* picture = add({300, 80}, {300, 90}, 1, true);
    layOut(400, 358);
    EXPECT_EQ(fields->height(), 60);
    EXPECT_EQ(picture->geometry(), QRect(0, 68, 400, 290));
}

TEST_F(Reflow, EndsWithItsAreaWhereNothingGrows) {
    add({300, 50}, {300, 60}, 0);
    const SizedWidget* last = add({300, 80}, {300, 90}, 0);
    layOut(400, 258);
    EXPECT_EQ(last->geometry().bottom(), 257);
}

TEST_F(Reflow, PassesOverWhatIsHidden) {
    add({300, 50}, {300, 60}, 1)->hide();
    const SizedWidget* shown = add({300, 80}, {300, 90}, 1);
    layOut(400, 90);
    EXPECT_EQ(shown->geometry(), QRect(0, 0, 400, 90));
}

TEST_F(Reflow, ReadsFromRightToLeftWhereTheLanguageDoes) {
    around.setLayoutDirection(Qt::RightToLeft);
    const SizedWidget* first = add({200, 50}, {200, 60}, 1);
    const SizedWidget* second = add({200, 50}, {200, 60}, 1);
    layOut(408, 60);
    EXPECT_EQ(first->x(), 208);
    EXPECT_EQ(second->x(), 0);
}

}  // namespace
}  // namespace varnholt
