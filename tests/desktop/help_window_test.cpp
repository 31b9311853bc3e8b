// SPDX-License-Identifier: GPL-3.0-or-later
// The help as a person meets it: keys, What's This, the window with contents, index and search.
#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeView>
#include <QWhatsThis>
#include <fstream>

#include "desk.h"
#include "desktop/reading/page_browser.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "loads/frmLinkOptions.h"

namespace varnholt {
namespace {

class HelpWindowTest : public testing::Test {
 protected:
    QWidget* window() {
        EXPECT_NE(desk.help.window(), nullptr) << "no page has been shown";
        return desk.help.window() == nullptr ? nullptr : desk.help.window()->window();
    }
    std::string pageText() { return plain(window()->findChild<QTextBrowser*>()->toPlainText()); }
    QWidget* widgetOf(Form& form, const std::string& control) {
        return desk.shelf.windowOf(form)->binder().require(control)->widget();
    }
    ChildWindow& open(const char* command) {
        desk.main().click(command);
        Desk::settle();
        return *desk.main().activeWindow();
    }

    Desk desk;
};

HelpRequest requestOf(const Desk& desk, HelpRequest::Kind kind, const std::string& keyword) {
    HelpRequest request;
    request.kind = kind;
    request.file = desk.folder() + "/OnlineHelp/vht.qch";
    request.topic = request.file + "::/index.html";
    request.keyword = keyword;
    return request;
}

TEST_F(HelpWindowTest, ShowsTheContentsFromTheMenu) {
    desk.main().click("mnuHelp");
    ASSERT_NE(window(), nullptr);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_NE(pageText().find("Varnholt help"), std::string::npos);
    auto* panes = window()->findChild<QTabWidget*>();
    ASSERT_EQ(panes->count(), 3);
    EXPECT_EQ(panes->currentIndex(), 0);
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(HelpWindowTest, F1OpensThePageOfTheFieldThatHasTheFocus) {
    ChildWindow& design = open("NewBorehole");
    design.control("BHTabs");
    QWidget* field = widgetOf(design, "FLInletTempText(0)");
    // The page that holds the field comes to the front.
    for (QWidget* around = field; around != nullptr; around = around->parentWidget())
        if (auto* tabs = qobject_cast<QTabWidget*>(around))
            for (int page = 0; page < tabs->count(); ++page)
                if (tabs->widget(page)->isAncestorOf(field)) tabs->setCurrentIndex(page);
    desk.window->activateWindow();
    field->setFocus();
    QTest::keyClick(field, Qt::Key_F1);
    Desk::settle();
    EXPECT_EQ(desk.main().HHTopicURL, "borehole.html#fluid");
    ASSERT_NE(window(), nullptr);
    EXPECT_EQ(desk.help.window()->page(), "borehole.html#fluid");
    EXPECT_EQ(design.control("FLInletTempText(0)").text(), "85.0") << "nothing is typed";
}

TEST_F(HelpWindowTest, F1OpensTheHelpInEveryWindow) {
    for (const char* command : {"NewBorehole", "NewHorizontal", "NewSurfaceWater", "mnuZoneManage",
                                "mnuAvgBlock", "mnuMonthlyLoadsImport", "EditAdd", "mnuDiffCalc",
                                "mnuEqvHours", "mnuPumpPowerCalc", "FluidProperties"}) {
        ChildWindow& opened = open(command);
        FormWindow* content = desk.shelf.windowOf(opened);
        desk.main().HHTopicURL.clear();
        content->setFocusPolicy(Qt::StrongFocus);
        content->setFocus();
        QTest::keyClick(content, Qt::Key_F1);
        Desk::settle();
        EXPECT_FALSE(desk.main().HHTopicURL.empty()) << opened.formName();
        EXPECT_NE(desk.main().HHTopicURL, "index.html") << opened.formName();
    }
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(HelpWindowTest, WhatsThisExplainsWhatLiesUnderThePointer) {
    ChildWindow& design = open("NewBorehole");
    FormWindow* content = desk.shelf.windowOf(design);
    QWidget* button = widgetOf(design, "CACalculateCommand");
    const QPoint place = button->mapTo(content, button->rect().center());
    QHelpEvent asks(QEvent::QueryWhatsThis, place, content->mapToGlobal(place));
    asks.ignore();
    QCoreApplication::sendEvent(content, &asks);
    EXPECT_TRUE(asks.isAccepted());
    QHelpEvent event(QEvent::WhatsThis, place, content->mapToGlobal(place));
    EXPECT_TRUE(QCoreApplication::sendEvent(content, &event));
    bool shown = false;
    for (const QWidget* top : QApplication::topLevelWidgets())
        shown = shown || (top->inherits("QWhatsThat") && top->isVisible());
    EXPECT_TRUE(shown);
    QWhatsThis::hideText();
}

TEST_F(HelpWindowTest, ItsHistoryHasTwoEnds) {
    desk.main().click("mnuHelp");
    const auto tool = [&](int i) { return window()->findChild<QToolBar*>()->actions().at(i); };
    EXPECT_FALSE(tool(0)->isEnabled());
    ChildWindow& design = open("NewBorehole");
    design.help("SOGroundTempText");
    EXPECT_EQ(desk.help.window()->page(), "borehole.html#soil");
    EXPECT_TRUE(tool(0)->isEnabled());
    EXPECT_FALSE(tool(1)->isEnabled());
    tool(0)->trigger();
    EXPECT_EQ(desk.help.window()->page(), "index.html");
    EXPECT_FALSE(tool(0)->isEnabled());
    tool(1)->trigger();
    EXPECT_EQ(desk.help.window()->page(), "borehole.html#soil");
    tool(2)->trigger();
    EXPECT_EQ(desk.help.window()->page(), "index.html");
}

TEST_F(HelpWindowTest, MarksThePageOnShowInTheContents) {
    open("NewBorehole").help("SOGroundTempText");
    const auto* contents = window()->findChild<QTreeView*>();
    ASSERT_NE(contents, nullptr);
    const auto marked = [contents] { return plain(contents->currentIndex().data().toString()); };
    // The contents are read beside the page.
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked() == "Borehole design"; })) << marked();
    window()->findChild<QToolBar*>()->actions().at(2)->trigger();
    EXPECT_EQ(marked(), "Varnholt help");
}

TEST_F(HelpWindowTest, IsLeftByEscape) {
    desk.main().click("mnuHelp");
    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(window(), Qt::Key_Escape);
    Desk::settle();
    EXPECT_FALSE(window()->isVisible());
    open("NewBorehole").help("SOGroundTempText");
    EXPECT_TRUE(window()->isVisible());
}

TEST_F(HelpWindowTest, CanBeReadBesideADialogThatAsks) {
    frmLinkOptions question(desk.main());
    desk.shelf.modalOpened(question);
    Desk::settle();
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    HelpRequest request = requestOf(desk, HelpRequest::Kind::topic, {});
    request.topic = request.file + "::/linking.html";
    EXPECT_NE(desk.help.display(request), 0);
    Desk::settle();
    EXPECT_EQ(desk.help.window()->page(), "linking.html");
    auto* tools = window()->findChild<QToolBar*>();
    const QWidget* home = tools->widgetForAction(tools->actions().at(2));
    // By way of the window system, which holds clicks back from windows that are stopped.
    QTest::mouseClick(window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      home->mapTo(window(), home->rect().center()));
    Desk::settle();
    EXPECT_EQ(desk.help.window()->page(), "index.html");
    const auto* menu = desk.window->menuBar();
    QTest::mouseClick(desk.window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      menu->mapTo(desk.window.get(), QPoint(20, menu->height() / 2)));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    desk.shelf.modalClosed(question);
}

TEST_F(HelpWindowTest, FindsAFieldAButtonAndAMessageByItsWords) {
    for (const auto& [words, page] :
         {std::pair("Ground Temperature", "borehole.html#soil"),
          std::pair("Calculate", "borehole.html#results"),
          std::pair("This file is already open in another window. Close that window first, or "
                    "choose another file name.",
                    "messages.html#m1201")}) {
        EXPECT_NE(desk.help.display(requestOf(desk, HelpRequest::Kind::keyword, words)), 0);
        const std::string shown = desk.help.window()->page();
        EXPECT_EQ(shown.substr(0, shown.find('#')), std::string(page).substr(0, shown.find('#')))
            << words;
    }
}

TEST_F(HelpWindowTest, SearchesItsPagesByTheirWords) {
    EXPECT_NE(desk.help.display(requestOf(desk, HelpRequest::Kind::search, {})), 0);
    auto* panes = window()->findChild<QTabWidget*>();
    EXPECT_EQ(panes->currentIndex(), 2);
    auto* words = panes->widget(2)->findChild<QLineEdit*>();
    auto* results = panes->widget(2)->findChild<QListWidget*>();
    words->setText(QStringLiteral("condenser"));
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return results->count() > 0; }, 20000));
    ASSERT_GT(results->count(), 0);
    results->itemActivated(results->item(0));
    EXPECT_NE(pageText().find("condenser"), std::string::npos);
}

TEST_F(HelpWindowTest, OpensTheExampleThatAPageOffers) {
    desk.main().click("mnuHelp");
    auto* browser = window()->findChild<QTextBrowser*>();
    browser->anchorClicked(QUrl(QStringLiteral("example:school-south.vht")));
    Desk::settle();
    EXPECT_EQ(desk.main().windowsNamed("frmBHDesign").size(), 1u);
    // A page cannot lead out of the folder of the examples.
    browser->anchorClicked(QUrl(QStringLiteral("example:../../../etc/passwd")));
    browser->anchorClicked(QUrl(QStringLiteral("file:///etc/passwd")));
    EXPECT_EQ(pageText().find("root:"), std::string::npos);
}

TEST_F(HelpWindowTest, PrintsAWholePageInDarkInk) {
    applyTheme(*qApp, Scheme::dark);
    desk.main().click("mnuHelp");
    const auto* page = dynamic_cast<PageBrowser*>(window()->findChild<QTextBrowser*>());
    ASSERT_NE(page, nullptr);
    const auto paper = page->printable();
    EXPECT_TRUE(paper->toPlainText().contains(QStringLiteral("Undo and redo")));
    int colours = 0;
    for (QTextBlock block = paper->begin(); block != paper->end(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (!format.hasProperty(QTextFormat::ForegroundBrush)) continue;
            ++colours;
            EXPECT_GT(contrast(format.foreground().color(), Qt::white), 4.5)
                << plain(part.fragment().text());
        }
    EXPECT_GT(colours, 5) << "the links";
    applyTheme(*qApp, Scheme::light);
}

TEST_F(HelpWindowTest, MakesADamagedCollectionAnew) {
    const std::string cache = desk.folder() + "/help cache";
    std::filesystem::create_directories(cache);
    std::ofstream(cache + "/help.qhc") << "this is no collection";
    desk.main().click("mnuHelp");
    EXPECT_TRUE(desk.platform.messages.empty());
    EXPECT_NE(pageText().find("Varnholt help"), std::string::npos);
}

TEST_F(HelpWindowTest, OfADamagedHelpFileIsAMessage) {
    // The second begins as a help file does and then breaks off.
    for (const std::string& bytes :
         {std::string("<html>"), std::string("SQLite format 3\0and no more", 27)}) {
        desk.platform.messages.clear();
        std::ofstream(desk.main().helpFile, std::ios::trunc) << bytes;
        desk.main().click("mnuHelp");
        ASSERT_EQ(desk.platform.messages.size(), 1u);
        EXPECT_EQ(desk.platform.messages[0].title, "HTML Help Class");
        EXPECT_EQ(desk.platform.messages[0].text,
                  desk.main().helpFile + " is not a valid HTML Help file.");
    }
}

TEST_F(HelpWindowTest, IsShownFromAFolderThatMayNotBeWrittenTo) {
    HelpPlaces places = desk.helpPlaces();
    // A file stands where the cache would be made, which no right helps against.
    places.cacheFolder = desk.folder() + "/blocked";
    std::ofstream(places.cacheFolder) << "a file";
    desk.help.setPlaces(places);
    desk.main().click("mnuHelp");
    Desk::settle();
    EXPECT_TRUE(desk.platform.messages.empty());
    EXPECT_NE(pageText().find("Varnholt help"), std::string::npos);
}

TEST(QuestionMark, GoesWithTheDeskThatAskedForIt) {
    {
        Desk desk;
        desk.main().click("mnuWhatsThis");
        EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    }
    EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
}

}  // namespace
}  // namespace varnholt
