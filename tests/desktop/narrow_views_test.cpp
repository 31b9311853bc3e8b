// SPDX-License-Identifier: GPL-3.0-or-later
// Windows of half a small screen: 683 of 1366 pixels, frame included.
#include <gtest/gtest.h>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTabWidget>
#include <set>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/widgets/house_widgets.h"

namespace varnholt {
namespace {

constexpr int halfOfASmallScreen = 683;

/// Turns to each page of each pane in the window and looks at it.
template <class Look>
void onEveryPage(QWidget& window, const Look& look) {
    for (QTabWidget* pages : window.findChildren<QTabWidget*>())
        for (int page = 0; page < pages->count(); ++page) {
            SCOPED_TRACE(page);
            pages->setCurrentIndex(page);
            Desk::settle();
            look();
        }
    look();
}

TEST(NarrowWindows, NeedNoHorizontalScrollBar) {
    Desk desk;
    desk.window->resize(1366, 740);
    std::set<std::string> seen;
    for (const char* command :
         {"NewBorehole", "NewHorizontal", "NewSurfaceWater", "mnuZoneManage", "mnuAvgBlock",
          "mnuMonthlyLoadsImport", "EditAdd", "mnuDiffCalc", "mnuEqvHours", "mnuPumpPowerCalc"}) {
        desk.main().click(command);
        ChildWindow& form = *desk.main().activeWindow();
        SCOPED_TRACE(form.formName());
        seen.insert(form.formName());
        auto* frame = qobject_cast<QMdiSubWindow*>(desk.shelf.frameOf(form));
        frame->resize(halfOfASmallScreen, 600);
        Desk::settle();
        EXPECT_EQ(frame->width(), halfOfASmallScreen);
        onEveryPage(*frame, [&] {
            for (const QScrollArea* area : frame->findChildren<QScrollArea*>())
                EXPECT_TRUE(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0);
        });
    }
    EXPECT_EQ(seen.size(), 10U);
}

TEST(NewWindows, FitIntoTheMainWindow) {
    Desk desk;
    desk.window->resize(1024, 700);
    for (const char* command : {"NewBorehole", "mnuZoneManage", "EditAdd"}) {
        desk.main().click(command);
        Desk::settle();
        const QRect room(QPoint(0, 0), desk.window->area().viewport()->size());
        EXPECT_TRUE(room.contains(desk.shelf.frameOf(*desk.main().activeWindow())->geometry()))
            << command;
    }
}

}  // namespace
}  // namespace varnholt
