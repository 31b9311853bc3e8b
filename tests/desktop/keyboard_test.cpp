// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever has no pointer comes everywhere and does everything.
#include <gtest/gtest.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <set>

#include "desk.h"
#include "desktop/binding/button_keys.h"
#include "desktop/binding/giving_out.h"
#include "desktop/report_samples.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/report_preview.h"
#include "desktop/windows/report_windows.h"

namespace varnholt {
namespace {

/// Words of buttons in a window of their own, marked.
std::vector<std::string> markedWords(const std::vector<const char*>& words, QMenuBar* bar) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    if (bar != nullptr) bar->setParent(&window);
    std::vector<QPushButton*> buttons;
    for (const char* word : words) {
        buttons.push_back(new QPushButton(QString::fromLatin1(word)));
        layout->addWidget(buttons.back());
    }
    window.show();
    giveKeys(window);
    std::vector<std::string> marked;
    for (const QPushButton* button : buttons) marked.push_back(plain(button->text()));
    if (bar != nullptr) bar->setParent(nullptr);
    return marked;
}

TEST(ButtonKeys, AreLettersAtTheStartOfWordsWhereThoseAreFree) {
    EXPECT_EQ(markedWords({"Save", "Save As", "Sort"}, nullptr),
              (std::vector<std::string>{"&Save", "Save &As", "S&ort"}));
}

TEST(ButtonKeys, LeaveTheLettersOfTheMenusAlone) {
    QMenuBar bar;
    bar.addAction(QStringLiteral("&Save"));
    bar.addAction(QStringLiteral("Loa&ds"));
    EXPECT_EQ(markedWords({"Save", "SD"}, &bar), (std::vector<std::string>{"S&ave", "SD"}));
}

TEST(ButtonKeys, AreSharedWhereNoLetterIsLeft) {
    EXPECT_EQ(markedWords({"No", "On", "Noon"}, nullptr),
              (std::vector<std::string>{"&No", "&On", "&Noon"}));
}

TEST(ButtonKeys, AreLeftToTheButtonThatAnotherOneRepeats) {
    QWidget window;
    QPushButton beginners(QStringLiteral("New"), &window), own(QStringLiteral("New"), &window);
    own.setObjectName(QStringLiteral("NewCommand"));
    window.show();
    giveKeys(window);
    EXPECT_EQ(plain(beginners.text()), "New");
    EXPECT_EQ(plain(own.text()), "&New");
    own.setEnabled(false);
    giveKeys(window);
    EXPECT_NE(plain(beginners.text()), "New");
}

TEST(ButtonKeys, AreGivenFirstToTheButtonThatTheWindowIsAbout) {
    QWidget window;
    QPushButton calculator(QStringLiteral("Pump Power Calculator"), &window);
    QPushButton calculate(QStringLiteral("Calculate"), &window);
    QMenuBar menus(&window);
    for (const char* menu : {"&Pumps", "T&ables", "&Loads", "&Units", "&Tools", "&Edit"})
        menus.addAction(QString::fromLatin1(menu));
    calculate.setProperty(mainButtonProperty, true);
    window.show();
    giveKeys(window);
    EXPECT_EQ(plain(calculate.text()), "&Calculate");
    // Of "Pump Power Calculator" no word begins with a free letter: the first free one is the m.
    EXPECT_EQ(plain(calculator.text()), "Pu&mp Power Calculator");
}

TEST(ButtonKeys, KeepThoseThatTheWordsMarkThemselves) {
    EXPECT_EQ(markedWords({"S&ystem", "Yes"}, nullptr),
              (std::vector<std::string>{"S&ystem", "Y&es"}));
}

TEST(ButtonKeys, AreFoundAgainInTheSameWords) {
    QWidget window;
    QPushButton button(QStringLiteral("R&&D"), &window);
    window.show();
    giveKeys(window);
    giveKeys(window);
    EXPECT_EQ(plain(button.text()), "&R&&D");
    EXPECT_EQ(plain(wordsOfButton(button)), "R&D");
}

class ByKeyboard : public testing::Test {
 protected:
    ~ByKeyboard() override { EXPECT_TRUE(desk.faults.empty()); }

    QWidget& widget(const Form& form, const char* name) {
        return *desk.shelf.windowOf(form)->binder().require(name)->widget();
    }
    QWidget& focused(const Form& form, const char* name) {
        widget(form, name).setFocus();
        Desk::settle();
        return widget(form, name);
    }
    void press(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(desk.window->windowHandle(), static_cast<Qt::Key>(key), held);
        Desk::settle();
    }

    Desk desk;
};

TEST_F(ByKeyboard, HasAKeyForEveryButtonOfTheLoadsWindow) {
    ChildWindow& loads = desk.opened("mnuAvgBlock");
    loads.click("LONewCommand");
    Desk::settle();
    int marked = 0;
    for (const auto* button : desk.shelf.windowOf(loads)->findChildren<QPushButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        EXPECT_FALSE(button->shortcut().isEmpty()) << plain(button->text());
        ++marked;
    }
    EXPECT_GE(marked, 10);
    EXPECT_EQ(desk.shelf.windowOf(loads)->binder().find("LONewCommand")->shown(Property::caption),
              Shown(loads.control("LONewCommand").caption()))
        << "the form's words are without it";
}

TEST_F(ByKeyboard, MakesTheFirstZoneByTheKeyOfTwoButtonsThatSayTheSame) {
    ChildWindow& loads = desk.opened("mnuZoneManage");
    press(Qt::Key_N, Qt::AltModifier);
    // A button that is pressed by its key shows that for a moment before it acts.
    EXPECT_TRUE(
        QTest::qWaitFor([&loads] { return loads.control("LOZoneList").items().size() == 1U; }));
}

TEST_F(ByKeyboard, TypesNoLetterIntoANumberByAKeyThatNoButtonHas) {
    ChildWindow& design = desk.opened("NewBorehole");
    design.choose("BHTabs", 2);
    Desk::settle();
    auto& edit = static_cast<QLineEdit&>(focused(design, "SOGroundTempText"));
    QTest::keyClick(&edit, Qt::Key_J, Qt::AltModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("62.0"));
}

TEST_F(ByKeyboard, ShowsAFieldThatIsOnlyReadByItsRingToo) {
    ChildWindow& loads = desk.opened("mnuAvgBlock");
    loads.click("LONewCommand");
    Desk::settle();
    QWidget& edit = focused(loads, "LOPowerText(1)");
    ASSERT_TRUE(static_cast<QLineEdit&>(edit).isReadOnly());
    ASSERT_TRUE(edit.hasFocus());
    const QImage picture = edit.grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, 0), lightLook().accent);
}

TEST_F(ByKeyboard, ComesBackToTheButtonThatHasOpenedAPanel) {
    ChildWindow& loads = desk.opened("mnuAvgBlock");
    loads.click("LONewCommand");
    Desk::settle();
    QWidget& select = focused(loads, "LOSelectCommand");
    QTest::keyClick(&select, Qt::Key_Return);
    Desk::settle();
    QWidget& cancel = focused(loads, "LOCancelCommand");
    ASSERT_TRUE(cancel.hasFocus());
    QTest::keyClick(&cancel, Qt::Key_Return);
    Desk::settle();
    EXPECT_FALSE(cancel.isVisible());
    EXPECT_TRUE(select.hasFocus());
}

TEST_F(ByKeyboard, ClosesTheWindowInFront) {
    desk.opened("NewBorehole");
    desk.opened("NewHorizontal");
    press(Qt::Key_W, Qt::ControlModifier);
    ASSERT_EQ(desk.main().windows().size(), 1U);
    EXPECT_EQ(desk.main().activeWindow()->formName(), "frmBHDesign");
    press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_TRUE(desk.main().windows().empty());
}

TEST_F(ByKeyboard, LeavesAWindowBesideAnotherByEscapeAndNoOtherOne) {
    ChildWindow& design = desk.opened("NewBorehole");
    design.click("CASecondOpinionCommand");
    Desk::settle();
    ASSERT_EQ(desk.main().activeWindow()->formName(), "frmSecondOpinion");
    press(Qt::Key_Escape);
    ASSERT_EQ(desk.main().activeWindow(), &design);
    press(Qt::Key_Escape);
    EXPECT_EQ(desk.main().activeWindow(), &design);
}

TEST_F(ByKeyboard, BeginsAtTheChosenOptionOfAWindow) {
    ChildWindow& design = desk.opened("NewBorehole");
    design.click("CAWhatIfCommand");
    Desk::settle();
    ChildWindow& what = *desk.main().activeWindow();
    ASSERT_EQ(what.formName(), "frmWhatIf");
    EXPECT_TRUE(what.control("WIMeasureOption(1)").checked());
    EXPECT_EQ(QApplication::focusWidget(), &widget(what, "WIMeasureOption(1)"));
}

TEST_F(ByKeyboard, TypesOverTheFieldThatANewWindowBeginsAt) {
    desk.opened("NewBorehole").click("CASecondOpinionCommand");
    Desk::settle();
    const auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(edit, nullptr);
    EXPECT_FALSE(edit->text().isEmpty());
    EXPECT_EQ(edit->selectedText(), edit->text());
}

TEST_F(ByKeyboard, PressesAButtonOfTheToolbarByEnter) {
    auto* bar = desk.window->findChild<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    auto* first = bar->findChild<QToolButton*>(QStringLiteral("tbrMain(0)"));
    ASSERT_NE(first, nullptr);
    desk.window->activateWindow();
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Return);
    Desk::settle();
    ASSERT_NE(desk.main().activeWindow(), nullptr);
    EXPECT_EQ(desk.main().activeWindow()->formName(), "frmBHDesign");
}

TEST_F(ByKeyboard, TakesEveryPictureOnShowByTheMenuKey) {
    ChildWindow& design = desk.opened("NewBorehole");
    QWidget& button = focused(design, "CASecondOpinionCommand");
    QStringList names;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return;
        for (const QAction* entry : menu->actions())
            if (entry->menu() != nullptr && entry->menu()->actions().size() == 2)
                names << entry->text();
        menu->close();
    });
    const QPoint place = button.rect().center();
    QContextMenuEvent asks(QContextMenuEvent::Keyboard, place, button.mapToGlobal(place));
    QCoreApplication::sendEvent(&button, &asks);
    EXPECT_GE(names.size(), 2) << "the lengths and the field";
    EXPECT_EQ(std::set<QString>(names.begin(), names.end()).size(),
              static_cast<std::size_t>(names.size()));
}

class KeyboardInPreviews : public ByKeyboard {
 protected:
    ReportSamples samples{desk};
    ReportWindows windows{*desk.window, desk.platform, desk.program.reports(), desk.program.texts(),
                          0x409};
};

TEST_F(KeyboardInPreviews, ReachesAndPressesEveryTool) {
    ReportPreview* preview = windows.show(samples.borehole(0));
    desk.window->activateWindow();
    Desk::settle();
    const QList<QToolBar*> bars = preview->findChildren<QToolBar*>();
    int tools = 0;
    for (const QToolBar* bar : bars)
        for (QAction* action : bar->actions()) {
            const auto* tool = qobject_cast<QToolButton*>(bar->widgetForAction(action));
            if (tool == nullptr) continue;
            EXPECT_NE(tool->focusPolicy() & Qt::TabFocus, 0) << plain(tool->text());
            ++tools;
        }
    EXPECT_GE(tools, 9);
    auto* pdf = preview->findChild<QAction*>(QStringLiteral("savePdf"));
    auto* button =
        static_cast<QToolButton*>(preview->findChildren<QToolBar*>().front()->widgetForAction(pdf));
    EXPECT_FALSE(button->shortcut().isEmpty());
    const std::string path = desk.folder() + "/by keys.pdf";
    desk.platform.picks.emplace_back(path);
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    Desk::settle();
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(KeyboardInPreviews, ComeFromTheToolsToThePagesAndOutByEscape) {
    ReportPreview* preview = windows.show(samples.borehole(0));
    desk.window->activateWindow();
    desk.window->area().setActiveSubWindow(qobject_cast<QMdiSubWindow*>(preview->parentWidget()));
    auto* search = preview->findChild<QLineEdit*>(QStringLiteral("search"));
    search->setFocus();
    Desk::settle();
    press(Qt::Key_Escape);
    EXPECT_TRUE(preview->view().hasFocus());
    const QPointer<ReportPreview> left(preview);
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(left.isNull());
    EXPECT_EQ(desk.main().windows().size(), 1U) << "the design that the report tells of";
}

TEST_F(KeyboardInPreviews, GoFromPaneToPaneOfAReport) {
    ReportPreview* preview = windows.show(samples.borehole(0));
    desk.window->activateWindow();
    desk.window->area().setActiveSubWindow(qobject_cast<QMdiSubWindow*>(preview->parentWidget()));
    preview->view().setFocus();
    Desk::settle();
    const QList<QToolBar*> bars = preview->findChildren<QToolBar*>();
    ASSERT_EQ(bars.size(), 2);
    for (const QToolBar* bar : bars) {
        press(Qt::Key_F6);
        EXPECT_TRUE(bar->isAncestorOf(QApplication::focusWidget()));
    }
}

}  // namespace
}  // namespace varnholt
