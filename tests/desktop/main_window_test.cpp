// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/main_window.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <set>

#include "desk.h"
#include "desktop/binding/mnemonics.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/desktop_platform.h"
#include "forms/text_numbers/desktop.h"
#include "frame/menu_table.h"

namespace varnholt {
namespace {

class MainWindowTest : public testing::Test {
 protected:
    ChildWindow& open(const char* entry) {
        desk.window->menu().action(entry)->trigger();
        Desk::settle();
        return *desk.main().activeWindow();
    }
    QMdiSubWindow* frameOf(const Form& form) {
        return qobject_cast<QMdiSubWindow*>(desk.shelf.frameOf(form));
    }
    void drop(const std::string& path) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(qt(path))});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.window.get(), &enter);
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.window.get(), &event);
        Desk::settle();
    }

    Desk desk;
};

TEST_F(MainWindowTest, GivesEveryCommandAShortcutOfItsOwn) {
    std::set<QString> shortcuts;
    for (const QAction* action : desk.window->findChildren<QAction*>()) {
        const QString keys = action->shortcut().toString();
        if (keys.isEmpty()) continue;
        EXPECT_TRUE(shortcuts.insert(keys).second) << plain(keys);
    }
    for (const MenuRow& row : menuTable()) {
        if (row.menu == nullptr || row.captionText == 0) continue;
        EXPECT_FALSE(desk.window->menu().action(row.control)->shortcut().isEmpty()) << row.control;
    }
}

TEST_F(MainWindowTest, MarksAKeyInEveryMenuAndEntryAndNoneTwice) {
    std::map<std::string, std::set<QChar>> taken;
    for (const MenuRow& row : menuTable()) {
        if (row.captionText == 0) continue;
        const QString text = desk.window->menu().action(row.control)->text();
        const qsizetype at = text.indexOf(u'&');
        ASSERT_GE(at, 0) << row.control;
        EXPECT_TRUE(
            taken[row.menu == nullptr ? "" : row.menu].insert(text[at + 1].toLower()).second)
            << row.control;
        EXPECT_EQ(withoutMnemonic(text), desk.main().control(row.control).caption());
    }
}

TEST_F(MainWindowTest, ShowsEveryCommandOfTheToolbarAsAnIconWithATip) {
    for (std::size_t i = 0; i < toolTable().size(); ++i) {
        const QAction* action = desk.window->menu().action("tbrMain(" + std::to_string(i) + ")");
        ASSERT_NE(action, nullptr);
        EXPECT_FALSE(action->icon().pixmap(24).toImage().isNull());
        EXPECT_TRUE(action->toolTip().startsWith(qt(desk.main().text(toolTable()[i].tipText))));
    }
}

TEST_F(MainWindowTest, HidesItsToolbarAsTheViewMenuSays) {
    auto* toolbar = desk.window->findChild<QToolBar*>();
    EXPECT_TRUE(toolbar->isVisible());
    desk.window->menu().action("mnuShowToolbar")->trigger();
    EXPECT_FALSE(toolbar->isVisible());
    EXPECT_FALSE(desk.window->menu().action("mnuShowToolbar")->isChecked());
}

TEST_F(MainWindowTest, KeepsExactlyOneUnitSystemChecked) {
    const auto& menu = desk.window->menu();
    menu.action("Metric")->trigger();
    menu.action("Metric")->trigger();
    EXPECT_TRUE(menu.action("Metric")->isChecked());
    EXPECT_FALSE(menu.action("English")->isChecked());
}

TEST_F(MainWindowTest, SaysWhatToDoFirstUntilAWindowOpens) {
    EXPECT_FALSE(desk.window->area().isVisible());
    open("NewBorehole");
    EXPECT_TRUE(desk.window->area().isVisible());
    frameOf(*desk.main().activeWindow())->close();
    EXPECT_FALSE(desk.window->area().isVisible());
}

/// Assistive technology presses buttons and menu entries that keys and mouse cannot reach.
TEST_F(MainWindowTest, TakesNoCommandWhileABoxWaitsForItsAnswer) {
    ChildWindow& design = open("NewBorehole");
    Binder& binder = desk.shelf.windowOf(design)->binder();
    auto& metric = *qobject_cast<QAbstractButton*>(binder.widget("MetricCheck"));
    QDialog box(desk.window.get());
    box.setModal(true);
    box.show();
    ASSERT_EQ(QApplication::activeModalWidget(), &box);
    desk.window->menu().action("NewBorehole")->trigger();
    metric.click();
    EXPECT_EQ(desk.main().windows().size(), 1U);
    EXPECT_FALSE(design.control("MetricCheck").checked());
    EXPECT_FALSE(metric.isChecked());
    box.close();
    metric.click();
    EXPECT_TRUE(design.control("MetricCheck").checked());
    desk.window->menu().action("NewBorehole")->trigger();
    EXPECT_EQ(desk.main().windows().size(), 2U);
}

TEST_F(MainWindowTest, TakesTheStartPictureAwayWithTheFirstCommand) {
    QWidget* picture = desk.shelf.windowOf(*desk.main().splash());
    ASSERT_NE(picture, nullptr);
    Desk::settle();
    EXPECT_TRUE(picture->isVisible());
    open("NewBorehole");
    EXPECT_EQ(desk.main().splash(), nullptr);
}

TEST_F(MainWindowTest, ActivatesTheFormWhoseWindowComesToTheFront) {
    ChildWindow& first = open("NewBorehole");
    ChildWindow& second = open("mnuZoneManage");
    EXPECT_EQ(desk.window->area().activeSubWindow(), frameOf(second));
    desk.window->area().setActiveSubWindow(frameOf(first));
    EXPECT_EQ(desk.main().activeWindow(), &first);
    desk.main().activate(second);
    EXPECT_EQ(desk.window->area().activeSubWindow(), frameOf(second));
}

TEST_F(MainWindowTest, BringsTheWindowUsedBeforeToTheFrontWhenOneCloses) {
    ChildWindow& first = open("NewBorehole");
    ChildWindow& second = open("NewBorehole");
    ChildWindow& third = open("NewBorehole");
    desk.main().activate(first);
    frameOf(first)->close();
    Desk::settle();
    EXPECT_EQ(desk.main().activeWindow(), &third);
    EXPECT_EQ(desk.window->area().activeSubWindow(), frameOf(third));
    EXPECT_TRUE(desk.main().isOpen(&second));
}

TEST_F(MainWindowTest, StaysTheOnlyWindowOfTheScreenAndTheActiveOne) {
    Desk::settle();
    for (const char* entry : {"NewBorehole", "mnuZoneManage", "mnuAvgBlock"}) {
        open(entry);
        EXPECT_EQ(QApplication::activeWindow(), desk.window.get()) << entry;
        EXPECT_EQ(desk.window->area().activeSubWindow(), frameOf(*desk.main().activeWindow()));
    }
    for (const QWidget* widget : QApplication::topLevelWidgets())
        EXPECT_TRUE(!widget->isVisible() || widget == desk.window.get());
}

TEST_F(MainWindowTest, KeepsAWindowWhoseQuestionIsCancelled) {
    ChildWindow& design = open("NewBorehole");
    desk.platform.answers = {Answer::cancel};
    frameOf(design)->close();
    EXPECT_TRUE(desk.main().isOpen(&design));
    EXPECT_TRUE(frameOf(design)->isVisible());
}

TEST_F(MainWindowTest, StaysOpenWhenAWindowRefusesToClose) {
    open("NewBorehole");
    desk.platform.answers = {Answer::cancel};
    EXPECT_FALSE(desk.window->close());
    EXPECT_TRUE(desk.window->isVisible());
    desk.platform.answers = {Answer::no};
    EXPECT_TRUE(desk.window->close());
}

TEST_F(MainWindowTest, MarksAWindowWithUnsavedLoads) {
    ChildWindow& loads = open("mnuZoneManage");
    EXPECT_FALSE(frameOf(loads)->isWindowModified());
    loads.click("LONewCommand");
    EXPECT_TRUE(frameOf(loads)->isWindowModified());
    EXPECT_EQ(plain(frameOf(loads)->windowTitle()), loads.caption() + "[*]");
}

TEST_F(MainWindowTest, SetsTheMarkOfUnsavedWorkOnlyWhenItChanges) {
    class Marks : public QObject {
     public:
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::ModifiedChange) ++set;
            return false;
        }
        int set = 0;
    } marks;
    ChildWindow& loads = open("mnuZoneManage");
    frameOf(loads)->installEventFilter(&marks);
    loads.click("LONewCommand");
    loads.type("LOGainsText(0)", "1");
    loads.type("LOGainsText(0)", "12");
    EXPECT_TRUE(frameOf(loads)->isWindowModified());
    EXPECT_EQ(marks.set, 1);
}

TEST_F(MainWindowTest, TellsInTheStatusBarWhatACommandDoes) {
    desk.window->menu().action("mnuZoneManage")->showStatusText(desk.window.get());
    EXPECT_EQ(plain(desk.window->statusBar()->currentMessage()), desk.main().text(1313));
}

TEST_F(MainWindowTest, ListsTheOpenWindowsAndMarksTheOneInFront) {
    open("NewBorehole");
    open("mnuZoneManage");
    QMenu* menu = desk.window->menu().menu("Window");
    menu->aboutToShow();
    const QList<QAction*> entries = menu->actions();
    ASSERT_GE(entries.size(), 2);
    EXPECT_FALSE(entries[entries.size() - 2]->isChecked());
    EXPECT_TRUE(entries.back()->isChecked());
    entries[entries.size() - 2]->trigger();
    EXPECT_EQ(desk.main().activeWindow()->formName(), "frmBHDesign");
}

TEST_F(MainWindowTest, PlacesNewWindowsWithinItsArea) {
    for (int i = 0; i < 8; ++i) open("NewBorehole");
    const QRect room(QPoint(0, 0), desk.window->area().viewport()->size());
    for (const QMdiSubWindow* frame : desk.window->area().subWindowList())
        EXPECT_TRUE(room.contains(frame->geometry()));
}

TEST_F(MainWindowTest, OpensAZoneFileThatIsDroppedOnItAndRemembersIt) {
    std::string zones;
    for (const auto& file : std::filesystem::directory_iterator(desk.folder() + "/zones"))
        if (file.path().extension() == ".zon") zones = file.path().string();
    ASSERT_FALSE(zones.empty());
    drop(zones);
    EXPECT_TRUE(desk.faults.empty());
    for (const auto& message : desk.platform.messages) ADD_FAILURE() << message.text;
    ASSERT_NE(desk.main().find("frmZoneManage"), nullptr);
    EXPECT_GT(desk.main().find("frmZoneManage")->control("LOZoneList").items().size(), 0U);
    QMenu* recent = nullptr;
    for (QMenu* menu : desk.window->findChildren<QMenu*>())
        if (plain(menu->title()) == desk.main().text(Text::recentFiles)) recent = menu;
    ASSERT_NE(recent, nullptr);
    recent->aboutToShow();
    EXPECT_EQ(plain(recent->actions().front()->statusTip()), zones);
}

TEST_F(MainWindowTest, PassesOverDroppedFilesOfOtherKinds) {
    drop("/etc/hostname");
    EXPECT_TRUE(desk.main().windows().empty());
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(MainWindowTest, ChangesItsSchemeWhileWindowsAreOpen) {
    ChildWindow& design = open("NewBorehole");
    FormWindow& content = *desk.shelf.windowOf(design);
    content.binder().buildAll();
    Desk::settle();
    applyTheme(*qApp, Scheme::dark);
    Desk::settle();
    for (const auto& control : design.controls()) {
        const BoundControl* bound = content.binder().find(control->name());
        ASSERT_NE(bound, nullptr);
        const auto* label = qobject_cast<const QLabel*>(bound->widget());
        if (const auto* group = dynamic_cast<const GroupBox*>(bound->widget()))
            label = group->titleLabel();
        if (label == nullptr) continue;
        EXPECT_GE(contrast(label->palette().color(label->foregroundRole()), darkLook().surface),
                  4.5)
            << control->name();
    }
    applyTheme(*qApp, Scheme::light);
}

TEST(Mnemonics, TakeTheFirstFreeLetterOfAWord) {
    const std::vector<QString> marked = withMnemonics({"Save", "Save As", "Split", "A & S", "S"});
    EXPECT_EQ(plain(marked[0]), "&Save");
    EXPECT_EQ(plain(marked[1]), "Save &As");
    EXPECT_EQ(plain(marked[2]), "S&plit");
    EXPECT_EQ(plain(marked[3]), "A && S");
    EXPECT_EQ(plain(marked[4]), "S");
    EXPECT_EQ(withoutMnemonic(marked[3]), "A & S");
    EXPECT_EQ(withoutMnemonic(marked[1]), "Save As");
}

TEST(OpeningOutside, IsForPagesAndFilesOnly) {
    EXPECT_TRUE(mayOpenOutside("https://varnholt.example"));
    EXPECT_TRUE(mayOpenOutside("HTTP://varnholt.example/a?b"));
    EXPECT_TRUE(mayOpenOutside("file:///usr/share/doc"));
    EXPECT_FALSE(mayOpenOutside("javascript:alert(1)"));
    EXPECT_FALSE(mayOpenOutside("/usr/bin/xterm"));
    EXPECT_FALSE(mayOpenOutside(""));
}

TEST(FileFilters, AreReadInPairs) {
    const auto filters = fileFilters("All Files (*.*)|*.*|Zone Files (*.zon)|*.zon");
    ASSERT_EQ(filters.size(), 2U);
    EXPECT_EQ(nameFilter(filters[0]), "All Files (*)");
    EXPECT_EQ(nameFilter(filters[1]), "Zone Files (*.zon)");
    EXPECT_EQ(extensionOf(filters[0]), "");
    EXPECT_EQ(extensionOf(filters[1]), "zon");
    EXPECT_EQ(nameFilter({"Loads", "*.gt1;*.gth"}), "Loads (*.gt1 *.gth)");
    EXPECT_TRUE(fileFilters("").empty());
}

}  // namespace
}  // namespace varnholt
