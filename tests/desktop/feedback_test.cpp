// SPDX-License-Identifier: GPL-3.0-or-later
// What a person is told, and what finds its way by keys and names.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <set>

#include "desk.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "desktop/windows/name_finder.h"
#include "desktop/windows/name_lines.h"
#include "loads/frmZoneManage.h"
#include "persistence/project_commands.h"

namespace varnholt {
namespace {

class Feedback : public testing::Test {
 protected:
    Feedback() { design = &desk.opened("NewBorehole"); }
    ~Feedback() override { EXPECT_TRUE(desk.faults.empty()); }

    QWidget& widget(const std::string& name) {
        return *desk.shelf.windowOf(*design)->binder().require(name)->widget();
    }
    QLineEdit& field(const std::string& name) {
        design->choose("BHTabs", 2);
        Desk::settle();
        auto& edit = static_cast<QLineEdit&>(widget(name));
        edit.setFocus();
        edit.selectAll();
        Desk::settle();
        return edit;
    }
    QLabel* hint() { return desk.window->findChild<QLabel*>(QStringLiteral("refusalHint")); }
    std::string told() {
        return plain(desk.window->findChild<QLabel*>(QStringLiteral("toldLabel"))->text());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(desk.window.get(), key, held);
        Desk::settle();
    }
    QTabWidget& tabs() { return static_cast<QTabWidget&>(widget("BHTabs")); }

    Desk desk;
    ChildWindow* design = nullptr;
    const std::string ground = "SOGroundTempText";
};

TEST_F(Feedback, TellsBesideTheFieldAndInTheStatusBarWhyAValueWasRefused) {
    QTest::keyClicks(&field(ground), QStringLiteral("500"));
    Desk::settle();
    ASSERT_NE(hint(), nullptr);
    EXPECT_TRUE(hint()->isVisible());
    const std::string why = "Ground Temperature: 500 is outside 0.0 to 212.0 deg F; 62.0 stands.";
    EXPECT_EQ(plain(hint()->text()), why);
    EXPECT_EQ(told(), why);
    QTest::keyClick(&widget(ground), Qt::Key_Tab);
    Desk::settle();
    EXPECT_TRUE(hint()->isVisible());
    EXPECT_EQ(told(), why);
    QTest::keyClicks(&field(ground), QStringLiteral("60"));
    EXPECT_FALSE(hint()->isVisible());
    EXPECT_EQ(told(), "");
}

TEST_F(Feedback, TellsTheRangeOfARefusedValueInTheUnitsThatTheFieldShows) {
    design->click("MetricCheck");
    QTest::keyClicks(&field(ground), QStringLiteral("500"));
    Desk::settle();
    // 0 and 212 deg F are -17.8 and 100 deg C, the 62 deg F of a new design 16.7 deg C.
    const std::string why = "Ground Temperature: 500 is outside -17.8 to 100.0 deg C; 16.7 stands.";
    EXPECT_EQ(plain(hint()->text()), why);
    EXPECT_EQ(told(), why);
    EXPECT_EQ(plain(widget(ground).accessibleDescription()), why);
}

TEST_F(Feedback, TellsAScreenReaderOfTheLastOfSeveralRefusedValues) {
    QLineEdit& edit = field(ground);
    design->type(ground, "500");
    design->type(ground, "600");
    EXPECT_EQ(plain(edit.accessibleDescription()),
              "Ground Temperature: 600 is outside 0.0 to 212.0 deg F; 62.0 stands.");
    EXPECT_EQ(edit.actions().size(), 1);
}

TEST_F(Feedback, TakesNoKeyThatIsNoPartOfANumber) {
    QLineEdit& edit = field(ground);
    QTest::keyClicks(&edit, QStringLiteral("5x5 ,"));
    EXPECT_EQ(edit.text(), QStringLiteral("55"));
    EXPECT_EQ(design->control(ground).text(), "55");
    ASSERT_FALSE(desk.platform.told.empty());
    EXPECT_EQ(desk.platform.told.back(), "Only a number can be typed here.");
    edit.selectAll();
    QTest::keyClicks(&edit, QStringLiteral("-1.5e1"));
    EXPECT_EQ(edit.text().isEmpty(), false);
}

TEST_F(Feedback, TakesACommaForThePointWhereTheLocaleDoes) {
    desk.platform.mark = ',';
    QLineEdit& edit = field(ground);
    QTest::keyClicks(&edit, QStringLiteral("55,5"));
    EXPECT_EQ(edit.text(), QStringLiteral("55.5"));
    EXPECT_EQ(design->control(ground).text(), "55.5");
}

TEST_F(Feedback, LeavesTextsOfWordsAlone) {
    design->choose("BHTabs", 6);
    Desk::settle();
    auto& name = static_cast<QLineEdit&>(widget("INProjectNameText"));
    name.setFocus();
    QTest::keyClicks(&name, QStringLiteral("River, 1"));
    EXPECT_EQ(name.text(), QStringLiteral("River, 1"));
}

TEST_F(Feedback, SaysWhereTheProjectHasBeenSaved) {
    const std::string path = desk.folder() + "/work files/river.vht";
    desk.platform.picks.emplace_back(path);
    desk.window->menu().action("mnuFileSaveAs")->trigger();
    ASSERT_FALSE(desk.platform.told.empty());
    EXPECT_EQ(desk.platform.told.back(), "Saved as " + path + ".");
}

TEST_F(Feedback, SaysWhyALinkIsNotMade) {
    desk.window->menu().action("mnuLink")->trigger();
    EXPECT_EQ(desk.platform.told.back(),
              "Nothing is linked: open the Zone Manager or the Average Block first.");
    desk.main().click("NewBorehole");
    desk.main().click("mnuZoneManage");
    desk.window->menu().action("mnuLink")->trigger();
    EXPECT_TRUE(desk.platform.told.back().starts_with("Nothing is linked: several designs"));
}

TEST_F(Feedback, TellsInBothLoadsWindowsWhatIsToBeCheckedInTheZoneOnDisplay) {
    for (const char* command : {"mnuZoneManage", "mnuAvgBlock"}) {
        SCOPED_TRACE(command);
        desk.main().click(command);
        ChildWindow* loads = desk.main().activeWindow();
        loads->click("LONewCommand");
        Desk::settle();
        auto* lines =
            desk.shelf.windowOf(*loads)->findChild<QLabel*>(QStringLiteral("warningLines"));
        ASSERT_NE(lines, nullptr);
        EXPECT_FALSE(lines->isVisible());
        loads->type("LOGainsText(0)", "50");
        Desk::settle();
        EXPECT_TRUE(lines->isVisible());
        EXPECT_TRUE(lines->text().startsWith(QStringLiteral("To be checked: ")));
        EXPECT_TRUE(lines->text().endsWith(QStringLiteral(" has loads and no pump.")));
        loads->type("LOGainsText(0)", "0");
        Desk::settle();
        EXPECT_FALSE(lines->isVisible());
    }
}

TEST_F(Feedback, DimsOlderResultsAndMarksTheirPage) {
    openProjectFile(desk.main(), VARNHOLT_SOURCE_DIR "/examples/school-south.vht");
    design = desk.main().activeWindow();
    design->click("CACalculateCommand");
    Desk::settle();
    const auto figureIsDimmed = [&](const char* label) {
        return dynamic_cast<TextLabel&>(widget(label)).isDimmed();
    };
    const auto toneOf = [&](const char* button) {
        return plain(widget(button).property("tone").toString());
    };
    EXPECT_TRUE(tabs().tabIcon(0).isNull());
    EXPECT_EQ(toneOf("CACalculateCommand"), "primary");
    EXPECT_FALSE(figureIsDimmed("CATotalLengthLabel(0)"));
    // Another window changes the loads.
    ChildWindow& loads = *desk.main().find("frmZoneManage");
    desk.main().activate(loads);
    loads.type("LOGainsText(0)", "77");
    Desk::settle();
    EXPECT_FALSE(tabs().tabIcon(0).isNull());
    EXPECT_FALSE(tabs().tabToolTip(0).isEmpty());
    EXPECT_EQ(toneOf("CACalculateCommand"), "stale") << "though its window is not active";
    EXPECT_TRUE(figureIsDimmed("CATotalLengthLabel(0)"));
    EXPECT_TRUE(figureIsDimmed("CAUnitOutletLabel(1)"));
    EXPECT_FALSE(figureIsDimmed("CASecondLengthLabel(0)")) << "it follows what is typed";
    loads.undo();
    Desk::settle();
    EXPECT_TRUE(tabs().tabIcon(0).isNull());
    EXPECT_EQ(toneOf("CACalculateCommand"), "primary");
    EXPECT_FALSE(figureIsDimmed("CATotalLengthLabel(0)"));
}

TEST_F(Feedback, EndsWithTheNextThingThatIsDone) {
    desk.window->tell("Something.");
    EXPECT_EQ(told(), "Something.");
    QTest::keyClicks(&field(ground), QStringLiteral("6"));
    EXPECT_EQ(told(), "");
}

TEST_F(Feedback, PutsTheStarOfUnsavedChangesIntoTheTitle) {
    QWidget* frame = desk.shelf.frameOf(*design);
    EXPECT_FALSE(frame->isWindowModified());
    const std::string caption = design->caption();
    QTest::keyClicks(&field(ground), QStringLiteral("60"));
    Desk::settle();
    EXPECT_TRUE(frame->isWindowModified());
    EXPECT_EQ(design->caption(), caption);
}

using Keys = Feedback;

TEST_F(Keys, EnterPressesTheButtonWithTheKeyboard) {
    QWidget& metric = widget("CACalculateCommand");
    metric.setFocus();
    desk.platform.messages.clear();
    QTest::keyClick(&metric, Qt::Key_Return);
    // There are no loads: the command says so.
    EXPECT_FALSE(desk.platform.messages.empty());
}

TEST_F(Keys, F9Calculates) {
    desk.platform.messages.clear();
    press(Qt::Key_F9);
    EXPECT_FALSE(desk.platform.messages.empty());
}

TEST_F(Keys, F9CalculatesTheOnlyDesignOfTheLoadsInFront) {
    openProjectFile(desk.main(), VARNHOLT_SOURCE_DIR "/examples/office.vht");
    design = desk.main().activeWindow();
    ChildWindow& loads = *desk.main().find("frmZoneManage");
    desk.main().activate(loads);
    loads.type("LOGainsText(0)", "77");
    Desk::settle();
    ASSERT_TRUE(design->control("NoticeLabel").visible()) << "the results are out of date";
    press(Qt::Key_F9);
    EXPECT_FALSE(design->control("NoticeLabel").visible());
    EXPECT_EQ(desk.main().activeWindow(), &loads);
    desk.main().click("mnuUnlink");
    press(Qt::Key_F9);
    EXPECT_TRUE(told().starts_with("Nothing is calculated: ")) << told();
}

TEST_F(Keys, ControlAndPageKeysTurnThePages) {
    const int pages = tabs().count();
    const int first = tabs().currentIndex();
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), (first + 1) % pages);
    EXPECT_EQ(design->control("BHTabs").index(), tabs().currentIndex());
    press(Qt::Key_PageUp, Qt::ControlModifier);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), (first + pages - 1) % pages);
}

TEST_F(Keys, ControlAndPageKeysTurnThePagesFromAFieldOfThem) {
    field(ground);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 3);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tabs().currentIndex(), 2);
}

TEST_F(Keys, F6GoesFromPaneToPaneAndRound) {
    field(ground);
    std::vector<QWidget*> visited;
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_F6);
        visited.push_back(QApplication::focusWidget());
    }
    EXPECT_EQ(visited[0], tabs().tabBar());
    EXPECT_EQ(plain(visited[1]->objectName()), "MetricCheck");
    EXPECT_EQ(plain(visited[2]->objectName()), "CACalculateCommand") << "below the pages";
    EXPECT_TRUE(tabs().currentWidget()->isAncestorOf(visited[4]))
        << visited[4]->metaObject()->className();
}

TEST_F(Keys, EscapeLeavesAnOpenPanel) {
    desk.main().click("mnuZoneManage");
    Form* loads = desk.main().activeWindow();
    loads->click("LONewCommand");
    loads->click("LOSummaryCommand");
    ASSERT_TRUE(loads->control("LOSummaryPicture").visible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(loads->control("LOSummaryPicture").visible());
}

TEST_F(Keys, EscapeClosesAnOpenListAndNotThePanelAroundIt) {
    desk.main().click("mnuZoneManage");
    Form* loads = desk.main().activeWindow();
    loads->click("LONewCommand");
    loads->click("LOSelectCommand");
    Desk::settle();
    ASSERT_TRUE(loads->control("LOSelectFrame").visible());
    auto& combo = static_cast<QComboBox&>(
        *desk.shelf.windowOf(*loads)->binder().require("LOMfgCombo")->widget());
    combo.showPopup();
    Desk::settle();
    const QWidget* list = QApplication::activePopupWidget();
    ASSERT_NE(list, nullptr);
    QTest::keyClick(list->windowHandle(), Qt::Key_Escape);
    Desk::settle();
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_TRUE(loads->control("LOSelectFrame").visible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(loads->control("LOSelectFrame").visible());
}

TEST_F(Keys, AltAndHAreTheHelpAndNoMenusShareALetter) {
    std::set<QString> letters;
    for (const QAction* menu : desk.window->menuBar()->actions()) {
        const qsizetype at = menu->text().indexOf(u'&');
        ASSERT_GE(at, 0) << plain(menu->text());
        EXPECT_TRUE(letters.insert(menu->text().mid(at + 1, 1).toLower()).second);
    }
    EXPECT_TRUE(desk.window->menu().menu("Help")->title().startsWith(QStringLiteral("&H")));
}

TEST(Names, AreFoundByEveryWordAndThoseThatBeginWithItComeFirst) {
    const auto thing = [](const char* name, const char* place) {
        return NamedThing{NamedThing::Kind::field,
                          QString::fromLatin1(name),
                          QString::fromLatin1(place),
                          {},
                          true,
                          {}};
    };
    const std::vector<NamedThing> things{thing("Bore Diameter", "New Borehole"),
                                         thing("Diameter of the Pipe", "New Borehole"),
                                         thing("Save", "File")};
    const auto both = found(things, QStringLiteral("diam"));
    ASSERT_EQ(both.size(), 2U);
    EXPECT_EQ(both[0].name, QStringLiteral("Diameter of the Pipe"));
    EXPECT_EQ(found(things, QStringLiteral("bore  dia")).size(), 2U);
    EXPECT_EQ(found(things, QStringLiteral("xyz")).size(), 0U);
    EXPECT_EQ(found(things, QString()).size(), 3U);
}

class Finder : public Feedback {
 protected:
    NameFinder* open() {
        press(Qt::Key_K, Qt::ControlModifier);
        return desk.window->findChild<NameFinder*>();
    }
};

TEST_F(Finder, GoesToAFieldWhereverItIs) {
    design->choose("BHTabs", 0);
    NameFinder* finder = open();
    ASSERT_NE(finder, nullptr);
    QTest::keyClicks(&finder->typed(), QStringLiteral("ground temp"));
    ASSERT_GT(finder->list().count(), 0);
    QTest::keyClick(&finder->typed(), Qt::Key_Return);
    Desk::settle();
    EXPECT_EQ(design->control("BHTabs").index(), 2);
    // The screen of a test need not have made the window the active one.
    ASSERT_NE(desk.window->focusWidget(), nullptr);
    EXPECT_EQ(plain(desk.window->focusWidget()->objectName()), ground);
}

TEST_F(Finder, RunsACommandOfTheMenus) {
    NameFinder* finder = open();
    QTest::keyClicks(&finder->typed(), QStringLiteral("zone manager"));
    QTest::keyClick(&finder->typed(), Qt::Key_Return);
    Desk::settle();
    EXPECT_NE(desk.main().find("frmZoneManage"), nullptr);
}

TEST_F(Finder, OpensAnExample) {
    NameFinder* finder = open();
    QTest::keyClicks(&finder->typed(), QStringLiteral("trench-office"));
    QTest::keyClick(&finder->typed(), Qt::Key_Return);
    Desk::settle();
    EXPECT_NE(desk.main().find("frmHZDesign"), nullptr);
}

TEST_F(Finder, ListsWhatItFindsInGroupsWithTheKeysOfCommands) {
    design->choose("BHTabs", 2);
    NameFinder* finder = open();
    const QListWidget& list = finder->list();
    QStringList heads;
    for (int row = 0; row < list.count(); ++row)
        if (!list.item(row)->data(thingRole).isValid()) heads << list.item(row)->text();
    EXPECT_EQ(heads, QStringList({QStringLiteral("Commands"), QStringLiteral("Fields"),
                                  QStringLiteral("Examples")}));
    QTest::keyClicks(&finder->typed(), QStringLiteral("print preview"));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->flags(), Qt::NoItemFlags);
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(list.item(1)->data(placeRole).toString(), QStringLiteral("File"));
    EXPECT_EQ(list.item(1)->data(keysRole).toString(), QStringLiteral("Ctrl+P"));
    // A field whose name begins with what is typed comes before commands that only hold it.
    finder->typed().setText(QStringLiteral("ground temp"));
    ASSERT_NE(list.currentItem(), nullptr);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("Fields"));
    EXPECT_EQ(list.currentRow(), 1);
    QTest::keyClick(&finder->typed(), Qt::Key_Escape);
}

TEST_F(Finder, SaysSoWhereNothingHasTheName) {
    NameFinder* finder = open();
    QTest::keyClicks(&finder->typed(), QStringLiteral("no such thing"));
    EXPECT_EQ(finder->list().count(), 0);
    QTest::keyClick(&finder->typed(), Qt::Key_Escape);
    Desk::settle();
    EXPECT_EQ(desk.window->findChild<NameFinder*>(), nullptr);
}

}  // namespace
}  // namespace varnholt
