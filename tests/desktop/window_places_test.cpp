// SPDX-License-Identifier: GPL-3.0-or-later
// Where windows open, what is remembered of them, and how the Window menu orders them.
#include "desktop/windows/window_places.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTabWidget>

#include "basis/file_system.h"
#include "desk.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/window_order.h"
#include "forms/text_numbers/desktop.h"

namespace varnholt {
namespace {

TEST(WindowPlaces, ComeBackInTheNextSession) {
    const std::string file =
        (std::filesystem::temp_directory_path() / "varnholt-window-places-test.ini").string();
    std::filesystem::remove(file);
    const WindowPlace left{{40, 30, 700, 500}, true, {{"BHTabs", 4}}};
    {
        WindowPlaces places(file);
        EXPECT_EQ(places.placeOf("frmBHDesign"), std::nullopt);
        places.keep("frmBHDesign", left);
    }
    const WindowPlaces again(file);
    EXPECT_EQ(again.placeOf("frmBHDesign"), left);
    EXPECT_EQ(again.placeOf("frmZoneManage"), std::nullopt);
    std::filesystem::remove(file);
}

TEST(WindowPlaces, OfAFileThatIsNoneAreNone) {
    const std::string file =
        (std::filesystem::temp_directory_path() / "varnholt-window-places-none.ini").string();
    replaceWholeFile(file, "[frmBHDesign]\ngeometry=nonsense\n\x01\xff[[\n");
    EXPECT_EQ(WindowPlaces(file).placeOf("frmBHDesign"), std::nullopt);
    std::filesystem::remove(file);
}

TEST(WindowPlaces, AreFittedIntoTheRoomThatThereIs) {
    const QRect room(0, 0, 1000, 600);
    EXPECT_EQ(fittedInto(room, {100, 50, 400, 300}), QRect(100, 50, 400, 300));
    EXPECT_EQ(fittedInto(room, {900, 500, 400, 300}), QRect(600, 300, 400, 300));
    EXPECT_EQ(fittedInto(room, {-50, -20, 1400, 300}), QRect(0, 0, 1000, 300));
}

class Windows : public testing::Test {
 protected:
    Windows() { std::filesystem::remove(placesFile()); }
    ~Windows() override { std::filesystem::remove(placesFile()); }
    static std::string placesFile() {
        return (std::filesystem::temp_directory_path() / "varnholt-windows-test.ini").string();
    }
    ChildWindow& open(const char* entry) {
        desk.window->menu().action(entry)->trigger();
        Desk::settle();
        return *desk.main().activeWindow();
    }
    QMdiSubWindow* frameOf(const Form& form) {
        return qobject_cast<QMdiSubWindow*>(desk.shelf.frameOf(form));
    }
    QAction* windowCommand(int caption) {
        for (QAction* entry : desk.window->menu().menu("Window")->actions())
            if (entry->text().remove(u'&') == qt(desk.main().text(caption))) return entry;
        return nullptr;
    }
    QRect room() { return {QPoint(0, 0), desk.window->area().viewport()->size()}; }

    /// Outlives the windows, which are kept in it when they close.
    WindowPlaces places{placesFile()};
    Desk desk;
};

TEST_F(Windows, OpenWhereAPersonHasLeftTheLastOfTheirKind) {
    desk.shelf.rememberPlaces(places);
    ChildWindow& first = open("NewBorehole");
    frameOf(first)->setGeometry(60, 40, 720, 480);
    desk.shelf.windowOf(first)->findChild<QTabWidget*>()->setCurrentIndex(3);
    frameOf(first)->close();
    Desk::settle();
    ChildWindow& next = open("NewBorehole");
    EXPECT_EQ(frameOf(next)->geometry(), QRect(60, 40, 720, 480));
    EXPECT_EQ(next.control("BHTabs").index(), 3);
    // A second one does not hide the first.
    EXPECT_NE(frameOf(open("NewBorehole"))->pos(), frameOf(next)->pos());
}

TEST_F(Windows, OpenMaximisedWhereTheyWereAndKeepTheirOwnSize) {
    desk.shelf.rememberPlaces(places);
    ChildWindow& first = open("NewBorehole");
    frameOf(first)->setGeometry(60, 40, 720, 480);
    frameOf(first)->showMaximized();
    Desk::settle();
    frameOf(first)->close();
    Desk::settle();
    ChildWindow& next = open("NewBorehole");
    EXPECT_TRUE(frameOf(next)->isMaximized());
    frameOf(next)->showNormal();
    Desk::settle();
    EXPECT_EQ(frameOf(next)->geometry(), QRect(60, 40, 720, 480));
}

TEST_F(Windows, AreNotRememberedWithoutAPlaceToKeepThem) {
    ChildWindow& first = open("NewBorehole");
    frameOf(first)->setGeometry(60, 40, 720, 480);
    frameOf(first)->close();
    Desk::settle();
    EXPECT_NE(frameOf(open("NewBorehole"))->geometry(), QRect(60, 40, 720, 480));
}

TEST_F(Windows, StayMaximisedWhenAnotherIsActivated) {
    ChildWindow& design = open("NewBorehole");
    ChildWindow& loads = open("mnuZoneManage");
    frameOf(design)->showMaximized();
    Desk::settle();
    desk.main().activate(loads);
    Desk::settle();
    EXPECT_TRUE(frameOf(design)->isMaximized());
    EXPECT_FALSE(frameOf(loads)->isMaximized());
    desk.main().activate(design);
    Desk::settle();
    EXPECT_TRUE(frameOf(design)->isMaximized());
    EXPECT_EQ(desk.window->area().activeSubWindow(), frameOf(design));
}

TEST_F(Windows, InACascadeLeaveEveryTitleFree) {
    for (int i = 0; i < 5; ++i) open("NewBorehole");
    open("mnuZoneManage");
    frameOf(*desk.main().activeWindow())->showMaximized();
    windowCommand(Text::cascadeWindows)->trigger();
    Desk::settle();
    const QList<QMdiSubWindow*> stacked =
        desk.window->area().subWindowList(QMdiArea::StackingOrder);
    ASSERT_EQ(stacked.size(), 6);
    for (int i = 0; i < stacked.size(); ++i) {
        EXPECT_TRUE(room().contains(stacked[i]->geometry())) << i;
        const int title = stacked[i]->widget()->y();
        ASSERT_GT(title, 0);
        const QRect bar(stacked[i]->pos(), QSize(stacked[i]->width(), title));
        for (int above = i + 1; above < stacked.size(); ++above)
            EXPECT_FALSE(stacked[above]->geometry().intersects(bar)) << i << " " << above;
    }
}

TEST_F(Windows, OfALinkedPairStandSideBySide) {
    ChildWindow& loads = open("mnuZoneManage");
    loads.click("LONewCommand");
    ChildWindow& design = open("NewBorehole");
    QAction* command = windowCommand(Text::loadsBesideDesign);
    ASSERT_NE(command, nullptr);
    command->trigger();
    EXPECT_EQ(plain(desk.window->statusBar()->currentMessage()),
              desk.main().text(Text::noLinkedPair));
    desk.window->menu().action("mnuLink")->trigger();
    Desk::settle();
    ASSERT_TRUE(desk.platform.messages.empty());
    for (ChildWindow* front : {&loads, &design}) {
        desk.main().activate(*front);
        frameOf(*front)->showMaximized();
        command->trigger();
        Desk::settle();
        const int half = room().width() / 2;
        EXPECT_EQ(frameOf(loads)->geometry(), QRect(0, 0, half, room().height()));
        EXPECT_EQ(frameOf(design)->geometry(),
                  QRect(half, 0, room().width() - half, room().height()));
    }
}

}  // namespace
}  // namespace varnholt
