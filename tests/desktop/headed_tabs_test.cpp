// SPDX-License-Identifier: GPL-3.0-or-later
// The bar of a window that goes into the line of the tabs, and columns whose empty notes take no
// place.
#include "desktop/widgets/headed_tabs.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

/// A bar of one size, whatever it shows.
class SteadyBar : public QWidget {
 public:
    QSize sizeHint() const override { return least; }
    QSize minimumSizeHint() const override { return least; }

    QSize least{300, 20};
};

class TabsWithBar : public testing::Test {
 protected:
    TabsWithBar() {
        tabs->addTab(new QWidget, QStringLiteral("Results"));
        tabs->addTab(new QWidget, QStringLiteral("Soil"));
        layout->onTurned = [this](bool beside) { turns.push_back(beside); };
    }
    /// Left of the bar when it stands beside the tabs: the edge before them and the gap.
    int tabsWidth() const { return gridStep + tabs->tabBar()->sizeHint().width() + gridStep; }
    int tabsHeight() const { return tabs->tabBar()->sizeHint().height(); }
    void layOut(int width) { layout->setGeometry({0, 0, width, 400}); }

    QWidget around;
    SteadyBar* bar = new SteadyBar;
    QTabWidget* tabs = new QTabWidget;
    HeadedTabsLayout* layout = new HeadedTabsLayout(&around, bar, tabs);
    std::vector<bool> turns;
};

TEST_F(TabsWithBar, HaveItAboveThemInANarrowWindow) {
    const int width = tabsWidth() + 300 - 1;
    layOut(width);
    EXPECT_FALSE(layout->isBeside());
    EXPECT_EQ(bar->geometry(), QRect(0, 0, width, 20));
    EXPECT_EQ(tabs->geometry(), QRect(0, 20, width, 380));
    EXPECT_TRUE(turns.empty());
}

TEST_F(TabsWithBar, HaveItInTheirLineInAWideOneAndKeepItThereUntilItFitsNoMore) {
    const int least = tabsWidth() + 300;
    // Eight steps to spare before it comes, none while it is there.
    layOut(least + 8 * gridStep - 1);
    EXPECT_FALSE(layout->isBeside());
    layOut(least + 8 * gridStep);
    EXPECT_TRUE(layout->isBeside());
    // A quarter of a step above the line, and the lower of both at its end.
    EXPECT_EQ(tabs->geometry(), QRect(0, 2, least + 64, 398));
    EXPECT_EQ(bar->geometry(), QRect(tabsWidth(), 2 + tabsHeight() - 20, 364, 20));
    layOut(least);
    EXPECT_TRUE(layout->isBeside());
    layOut(least - 1);
    EXPECT_FALSE(layout->isBeside());
    EXPECT_EQ(turns, (std::vector<bool>{true, false}));
}

TEST_F(TabsWithBar, HaveItAtTheLeftWhereTheLanguageReadsFromTheRight) {
    around.setLayoutDirection(Qt::RightToLeft);
    layOut(1000);
    ASSERT_TRUE(layout->isBeside());
    EXPECT_EQ(bar->x(), 0);
    EXPECT_EQ(bar->width(), 1000 - tabsWidth());
}

TEST_F(TabsWithBar, LeaveTheLineToThemWhenItIsMuchHigher) {
    layOut(1000);
    ASSERT_TRUE(layout->isBeside());
    bar->least.setHeight(tabsHeight() + 2 * gridStep);
    layOut(1000);
    EXPECT_TRUE(layout->isBeside());
    bar->least.setHeight(tabsHeight() + 2 * gridStep + 1);
    layOut(1000);
    EXPECT_FALSE(layout->isBeside());
}

TEST_F(TabsWithBar, AskForWhatItMayComeToNeed) {
    layout->barNeeds = [] { return 700; };
    layOut(tabsWidth() + 700 + 8 * gridStep - 1);
    EXPECT_FALSE(layout->isBeside());
    layOut(tabsWidth() + 700 + 8 * gridStep);
    EXPECT_TRUE(layout->isBeside());
}

/// The units of a design in a window of a width, in the window's coordinates.
QRect unitsIn(FormWindow& window, int width) {
    window.resize(width, 700);
    window.show();
    Desk::settle();
    const QWidget* units = window.binder().widget("MetricCheck");
    return {units->mapTo(&window, QPoint(0, 0)), units->size()};
}

TEST(HeadedWindows, HaveTheirUnitsBesideTheTabsWhereThereIsRoom) {
    Desk desk;
    ViewRegistry views;
    desk.main().click("NewBorehole");
    FormWindow window(*desk.main().activeWindow(), views.maker(), {});
    const auto* tabs = static_cast<QTabWidget*>(window.binder().widget("BHTabs"));
    const auto tabsTop = [&] { return tabs->tabBar()->mapTo(&window, QPoint(0, 0)).y(); };
    const QRect narrow = unitsIn(window, 683);
    EXPECT_LE(narrow.bottom(), tabsTop());
    const QRect wide = unitsIn(window, 1300);
    EXPECT_GT(wide.bottom(), tabsTop());
    EXPECT_LE(wide.bottom(), tabsTop() + tabs->tabBar()->height());
    EXPECT_GT(wide.left(), tabs->tabBar()->tabRect(tabs->count() - 1).right());
}

TEST(HeadedWindows, BeginWithTheirUnitsWhereverTheyStand) {
    Desk desk;
    ViewRegistry views;
    desk.main().click("NewBorehole");
    FormWindow window(*desk.main().activeWindow(), views.maker(), {});
    for (const int width : {683, 1300}) {
        unitsIn(window, width);
        const QWidget* first = window.nextInFocusChain();
        while ((first->focusPolicy() & Qt::TabFocus) == 0) first = first->nextInFocusChain();
        EXPECT_EQ(first, window.binder().widget("MetricCheck")) << width;
    }
}

TEST(PassingLabels, TakeNoPlaceWhileTheySayNothing) {
    auto* note = new TextLabel;
    auto* upper = new TextLabel(QStringLiteral("Above"));
    auto* lower = new TextLabel(QStringLiteral("Below"));
    const std::unique_ptr<QWidget> all(column(upper, passing(note), lower));
    const auto laidOut = [&] {
        all->resize(200, 200);
        all->layout()->activate();
        return lower->y();
    };
    const int line = upper->sizeHint().height();
    EXPECT_EQ(laidOut(), line + gridStep);
    // It is not hidden: a script and a screen reader find it as the form tells.
    EXPECT_FALSE(note->isHidden());
    note->setText(QStringLiteral("Noted"));
    EXPECT_EQ(laidOut(), 2 * (line + gridStep));
    EXPECT_EQ(note->geometry().y(), line + gridStep);
    note->setText(QString());
    EXPECT_EQ(laidOut(), line + gridStep);
    EXPECT_EQ(note->height(), 0);
}

TEST(GroupTitles, StandInTheLineOfTheHeadsOfATable) {
    auto* frame = new GroupBox;
    frame->setTitle(QStringLiteral("Coefficients"));
    FieldRow heads, figures;
    heads.fields = {new TextLabel(QStringLiteral("a"))};
    figures.caption = new TextLabel(QStringLiteral("Capacity"));
    figures.fields = {new TextLabel(QStringLiteral("1.5"))};
    QWidget* head = heads.fields.front();
    const FieldRow both = titled(frame, heads);
    const std::unique_ptr<QWidget> card(group(frame, grid(both, figures)));
    card->resize(400, 200);
    card->show();
    Desk::settle();
    const QWidget* title = frame->titleLabel();
    EXPECT_TRUE(title->isVisible());
    EXPECT_EQ(title->mapTo(frame, QPoint(0, 0)).y(), head->mapTo(frame, QPoint(0, 0)).y());
    EXPECT_EQ(title->mapTo(frame, QPoint(0, 0)).x(),
              figures.caption->mapTo(frame, QPoint(0, 0)).x());
    EXPECT_EQ(frame->title(), QStringLiteral("Coefficients"));
}

TEST(GroupTitles, BreakInsteadOfWideningTheirGroup) {
    GroupBox frame;
    const QString title = QStringLiteral("Heat Pump Specifications at Design Temperature");
    frame.setTitle(title);
    const int whole = frame.titleLabel()->fontMetrics().horizontalAdvance(title);
    frame.breakTitleBeyond(whole);
    EXPECT_FALSE(frame.titleLabel()->wordWrap());
    EXPECT_GE(frame.minimumSizeHint().width(), whole);
    frame.setTitle(title + QStringLiteral(" and Flow Rate"));
    EXPECT_TRUE(frame.titleLabel()->wordWrap());
    EXPECT_LT(frame.minimumSizeHint().width(), whole);
}

}  // namespace
}  // namespace varnholt
