// SPDX-License-Identifier: GPL-3.0-or-later
// What only a person's own keys, clicks and focus bring about.
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <filesystem>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/drawings/drawings.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/qt_text.h"
#include "drawing_samples.h"
#include "frame/design_document.h"

namespace varnholt {
namespace {

class Person : public testing::Test {
 protected:
    Person() {
        desk.main().click("NewBorehole");
        design = desk.main().activeWindow();
        desk.window->activateWindow();
        design->choose("BHTabs", 1);
        Desk::settle();
    }
    ~Person() override { EXPECT_TRUE(desk.faults.empty()); }

    QLineEdit& field(const std::string& name) {
        auto* edit = qobject_cast<QLineEdit*>(desk.shelf.windowOf(*design)->binder().widget(name));
        edit->setFocus();
        Desk::settle();
        return *edit;
    }
    void type(QLineEdit& edit, const char* text) {
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
    void command(const char* name) {
        desk.window->menu().action(name)->trigger();
        Desk::settle();
    }
    std::string text(const std::string& name) const { return design->control(name).text(); }

    Desk desk;
    ChildWindow* design = nullptr;
    const std::string temperature = "FLInletTempText(0)";
};

TEST_F(Person, EndsTheVisitOfAFieldByACommandOfTheMenu) {
    QLineEdit& edit = field(temperature);
    ASSERT_TRUE(edit.hasFocus());
    type(edit, "72");
    EXPECT_EQ(text(temperature), "72");
    command("mnuZoneManage");
    EXPECT_EQ(text(temperature), "72.0");
}

TEST_F(Person, LeavesAHalfTypedFieldAloneByACommandOfTheEditMenu) {
    QLineEdit& edit = field(temperature);
    type(edit, "7");
    command("mnuSelectAll");
    EXPECT_EQ(edit.selectedText(), "7");
    command("mnuCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "7");
    EXPECT_EQ(text(temperature), "7");
    command("mnuCut");
    EXPECT_EQ(text(temperature), "");
}

TEST_F(Person, DoesNothingByAnEditKeyOverWhatHoldsNoText) {
    QWidget* check = desk.shelf.windowOf(*design)->binder().widget("MetricCheck");
    check->setFocus();
    Desk::settle();
    ASSERT_TRUE(check->hasFocus());
    const std::string before = text(temperature);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_C, Qt::Key_V, Qt::Key_A})
        QTest::keyClick(check, key, Qt::ControlModifier);
    for (const char* name : {"mnuCut", "mnuCopy", "mnuPaste", "mnuSelectAll"}) command(name);
    EXPECT_EQ(text(temperature), before);
    EXPECT_FALSE(design->control("MetricCheck").checked());
}

TEST_F(Person, TakesTheTypingBackFirstAndThenWhatTheDocumentHasSeen) {
    const std::string before = text(temperature);
    QLineEdit& edit = field(temperature);
    type(edit, "72");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(temperature), before);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(temperature), "72");
    field("FLInletTempText(1)");
    EXPECT_EQ(text(temperature), "72.0");
    // The visit has ended: its typing is a step of the document now.
    QLineEdit& again = field(temperature);
    EXPECT_FALSE(again.isUndoAvailable());
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::sendEvent(&again, &undo);
    EXPECT_FALSE(undo.isAccepted());
    command("mnuUndo");
    EXPECT_EQ(text(temperature), before);
}

TEST_F(Person, RestoresTheStartOfTheVisitByUndoInTheMidstOfIt) {
    const std::string before = text(temperature);
    type(field(temperature), "61");
    command("mnuUndo");
    EXPECT_EQ(text(temperature), before);
}

TEST_F(Person, WritesTheRecentFilesWhenAFileIsUsedAndAtNoKeystroke) {
    const std::string list = desk.folder() + "/recent.txt";
    desk.platform.picks.push_back(desk.folder() + "/work files/river.vht");
    command("mnuFileSaveAs");
    ASSERT_TRUE(std::filesystem::exists(list));
    std::filesystem::remove(list);
    type(field(temperature), "66.5");
    field("FLInletTempText(1)");
    EXPECT_FALSE(std::filesystem::exists(list));
    command("mnuFileSave");
    EXPECT_TRUE(std::filesystem::exists(list));
}

TEST(LinkLight, GoesOutForAMomentWhileLoadsPass) {
    const std::unique_ptr<Drawing> light(newLinkLight(LinkPartner::zones, [] { return ""; }));
    const QImage lit = light->grab().toImage();
    light->flash();
    EXPECT_NE(light->grab().toImage(), lit);
    QTest::qWait(400);
    EXPECT_EQ(light->grab().toImage(), lit);
}

}  // namespace
}  // namespace varnholt
