// SPDX-License-Identifier: GPL-3.0-or-later
// A command ends the visit of the field that a person types in, as the focus would: real keys and
// presses on the real main window.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QWindow>

#include "desk.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

class FieldVisit : public testing::Test {
 protected:
    FieldVisit() {
        desk.window->menu().action("NewBorehole")->trigger();
        Desk::settle();
        design = desk.main().activeWindow();
        design->choose("BHTabs", 1);
        Desk::settle();
        field = static_cast<QLineEdit*>(content().binder().widget("FLInletTempText(0)"));
        field->setFocus();
        field->selectAll();
        EXPECT_EQ(QApplication::focusWidget(), field);
    }

    FormWindow& content() { return *desk.shelf.windowOf(*design); }
    void keys(const QString& text) {
        for (const QChar key : text) QTest::keyClick(screen(), key.toLatin1());
    }
    QWindow* screen() { return desk.window->windowHandle(); }
    std::string shown() { return design->control("FLInletTempText(0)").text(); }
    void expectLeft(const std::string& text) {
        EXPECT_EQ(shown(), text);
        EXPECT_EQ(plain(field->text()), text);
        EXPECT_EQ(design->visitedField(), "");
        EXPECT_EQ(QApplication::focusWidget(), field);
    }
    QToolButton* tool(const char* name) {
        return desk.window->findChild<QToolButton*>(QString::fromLatin1(name));
    }
    /// Chooses a menu's entry with the mouse.
    void choose(const char* menu, const char* entry) {
        QMenu* open = desk.window->menu().menu(menu);
        QMenuBar* bar = desk.window->menuBar();
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          bar->actionGeometry(open->menuAction()).center());
        QTest::mouseClick(open, Qt::LeftButton, {},
                          open->actionGeometry(desk.window->menu().action(entry)).center());
        Desk::settle();
    }

    Desk desk;
    ChildWindow* design = nullptr;
    QLineEdit* field = nullptr;
};

TEST_F(FieldVisit, LastsWhileAPersonTypes) {
    keys(QStringLiteral("91"));
    EXPECT_EQ(shown(), "91");
    EXPECT_EQ(design->visitedField(), "FLInletTempText(0)");
}

TEST_F(FieldVisit, EndsWithACommandByItsShortcut) {
    keys(QStringLiteral("91"));
    desk.platform.picks = {desk.folder() + "/work files/visit.vht"};
    QTest::keyClick(screen(), Qt::Key_S, Qt::ControlModifier);
    expectLeft("91.0");
    EXPECT_TRUE(desk.platform.picks.empty());
}

TEST_F(FieldVisit, LeavesNoStarInTheTitleOnceItIsSaved) {
    keys(QStringLiteral("91"));
    const QMdiSubWindow* frame = desk.window->area().activeSubWindow();
    EXPECT_TRUE(frame->isWindowModified());
    desk.platform.picks = {desk.folder() + "/work files/visit.vht"};
    QTest::keyClick(screen(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(frame->isWindowModified());
}

TEST_F(FieldVisit, FillsAnEmptiedFieldBeforeItIsSaved) {
    QTest::keyClick(screen(), Qt::Key_Delete);
    EXPECT_EQ(shown(), "");
    desk.platform.picks = {desk.folder() + "/work files/visit.vht"};
    QTest::keyClick(screen(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(shown(), "");
    expectLeft(shown());
}

TEST_F(FieldVisit, EndsWithAButtonOfTheToolbar) {
    keys(QStringLiteral("91"));
    desk.platform.picks = {desk.folder() + "/work files/visit.vht"};
    QTest::mouseClick(tool("tbrMain(4)"), Qt::LeftButton);
    expectLeft("91.0");
    EXPECT_TRUE(desk.platform.picks.empty());
}

TEST_F(FieldVisit, EndsWithAnEntryOfAMenu) {
    keys(QStringLiteral("91"));
    choose("File", "mnuFileSave");
    EXPECT_EQ(shown(), "91.0");
    EXPECT_EQ(design->visitedField(), "");
}

TEST_F(FieldVisit, OutlastsTheCommandsOfTheEditMenu) {
    keys(QStringLiteral("91"));
    choose("mnuEdit", "mnuSelectAll");
    EXPECT_EQ(shown(), "91");
    EXPECT_EQ(design->visitedField(), "FLInletTempText(0)");
}

TEST_F(FieldVisit, EndsWithAButtonThatIsPressedWithoutTheFocus) {
    keys(QStringLiteral("91"));
    static_cast<QPushButton*>(content().binder().widget("CACalculateCommand"))->click();
    expectLeft("91.0");
}

TEST_F(FieldVisit, EndsWithTheCloseBoxBeforeTheQuestion) {
    keys(QStringLiteral("91"));
    desk.platform.answers = {Answer::cancel};
    desk.shelf.pressCloseBox(*design);
    expectLeft("91.0");
}

TEST_F(FieldVisit, EndsWithTheCloseBoxOfTheMainWindow) {
    keys(QStringLiteral("91"));
    desk.platform.answers = {Answer::cancel};
    desk.window->close();
    expectLeft("91.0");
}

TEST_F(FieldVisit, IsOverOnceTheFieldHasBeenLeft) {
    keys(QStringLiteral("91"));
    QTest::keyClick(screen(), Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), field);
    EXPECT_EQ(shown(), "91.0");
    field->setFocus();
    int leaves = 0;
    class Leaves : public FormObserver {
     public:
        explicit Leaves(int& count) : count_(count) {}
        void propertyChanged(Control&, Property) override {}
        void captionChanged(Form&) override {}
        void settled(Form&) override { ++count_; }

     private:
        int& count_;
    } observer(leaves);
    design->addObserver(&observer);
    choose("mnuView", "mnuShowToolbar");
    EXPECT_EQ(leaves, 0);
}

TEST_F(FieldVisit, IsTheScriptsAffairWhereAScriptWorksTheWindows) {
    content().binder().setScripted();
    keys(QStringLiteral("91"));
    desk.platform.picks = {desk.folder() + "/work files/visit.vht"};
    QTest::keyClick(screen(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(shown(), "91");
    EXPECT_TRUE(desk.platform.picks.empty());
}

}  // namespace
}  // namespace varnholt
