// SPDX-License-Identifier: GPL-3.0-or-later
// The browser window over the text browser, as a person meets it.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>
#include <QTextBrowser>
#include <filesystem>
#include <fstream>

#include "desk.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

class BrowserWindowTest : public testing::Test {
 protected:
    ChildWindow& open(const char* command) {
        desk.main().click(command);
        desk.pages.settle();
        return *desk.main().activeWindow();
    }
    QTextBrowser* pageOf(Form& form) {
        return dynamic_cast<QTextBrowser*>(widgetOf(form, "brwWebBrowser"));
    }
    QWidget* widgetOf(Form& form, const std::string& control) {
        return desk.shelf.windowOf(form)->binder().require(control)->widget();
    }
    void goTo(ChildWindow& browser, const std::string& address) {
        browser.type("cboAddress", address);
        browser.key("cboAddress", "Enter");
        desk.pages.settle();
    }

    Desk desk;
};

TEST_F(BrowserWindowTest, ShowsEveryReferencePageInBothUnits) {
    for (const char* units : {"English", "Metric"}) {
        desk.main().click(units);
        for (const auto& [command, title] :
             {std::pair("FluidProperties", "Fluid properties"),
              std::pair("PipeProperties", "Pipe and grout properties"),
              std::pair("SoilProperties", "Soil properties"),
              std::pair("Conversions", "Conversion tables")}) {
            ChildWindow& browser = open(command);
            EXPECT_EQ(browser.caption(), title);
            const QString text = pageOf(browser)->toPlainText();
            EXPECT_TRUE(text.contains(qt(title)));
            const bool metric = std::string(units) == "Metric";
            if (std::string(command) != "Conversions") {
                EXPECT_EQ(text.contains(QStringLiteral("Metric units.")), metric) << command;
            }
        }
    }
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(BrowserWindowTest, LaysTheWholePageOutInTheEnd) {
    ChildWindow& browser = open("PipeProperties");
    const QTextBrowser* page = pageOf(browser);
    // The last table of the page.
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return page->toPlainText().contains(QStringLiteral("Still water at 40 F")); }));
}

TEST_F(BrowserWindowTest, FollowsALinkOfThePage) {
    ChildWindow& browser = open("FluidProperties");
    pageOf(browser)->anchorClicked(QUrl(QStringLiteral("FluidTablesMetric.html")));
    desk.pages.settle();
    EXPECT_TRUE(pageOf(browser)->toPlainText().contains(QStringLiteral("kg/m")));
    EXPECT_TRUE(browser.control("cboAddress").text().ends_with("/FluidTablesMetric.html"));
    EXPECT_EQ(browser.control("cboAddress").items().size(), 2u);
}

TEST_F(BrowserWindowTest, GoesToAPlaceInAPage) {
    ChildWindow& browser = open("SoilProperties");
    goTo(browser, desk.folder() + "/tables/english/SoilTables.html#swing");
    EXPECT_TRUE(pageOf(browser)->toPlainText().contains(QStringLiteral("Birmingham AL")));
    EXPECT_TRUE(browser.control("cboAddress").text().ends_with("#swing"));
}

TEST_F(BrowserWindowTest, GivesTheAddressBoxTheWidthLessItsLabelAndThePageTheRest) {
    ChildWindow& browser = open("FluidProperties");
    FormWindow* content = desk.shelf.windowOf(browser);
    QWidget* box = widgetOf(browser, "cboAddress");
    QWidget* page = pageOf(browser);
    QWidget* frame = desk.shelf.frameOf(browser);
    frame->resize(700, 500);
    Desk::settle();
    const int boxBefore = box->width(), pageBefore = page->width(), heightBefore = page->height();
    frame->resize(900, 600);
    Desk::settle();
    EXPECT_EQ(box->width() - boxBefore, 200);
    EXPECT_EQ(page->width() - pageBefore, 200);
    EXPECT_EQ(page->height() - heightBefore, 100);
    const QPoint below = page->mapTo(content, QPoint(0, 0));
    EXPECT_GT(below.y(), box->mapTo(content, QPoint(0, box->height())).y() - 1);
    // A window too small for them leaves them as they are.
    frame->resize(60, 40);
    Desk::settle();
    EXPECT_GT(box->height(), 10);
}

TEST_F(BrowserWindowTest, ReadsNoOtherFileOfTheComputerIntoAPage) {
    const std::string secret = desk.folder() + "/secret.png";
    std::ofstream(secret) << "not for pages";
    const std::string page = desk.folder() + "/page.html";
    std::ofstream(page) << "<title>Spy</title><img src=\"secret.png\"><img src=\"" << secret
                        << "\"><iframe src=\"" << secret << "\"></iframe>"
                        << "<script src=\"http://127.0.0.1/x.js\"></script>";
    ChildWindow& browser = open("FluidProperties");
    goTo(browser, page);
    EXPECT_EQ(browser.caption(), "Spy");
    QTextBrowser* shown = pageOf(browser);
    const QVariant bytes =
        shown->document()->resource(QTextDocument::ImageResource, QUrl::fromLocalFile(qt(secret)));
    EXPECT_TRUE(bytes.toByteArray().isEmpty());
}

TEST_F(BrowserWindowTest, OfAPageThatMayNotBeReadShowsItsOwnError) {
    ChildWindow& browser = open("FluidProperties");
    goTo(browser, desk.folder() + "/no such page.html");
    EXPECT_EQ(browser.caption(), "This page cannot be shown");
    EXPECT_TRUE(pageOf(browser)->toPlainText().contains(QStringLiteral("no such page.html")));
    EXPECT_TRUE(desk.platform.messages.empty());
}

TEST_F(BrowserWindowTest, OpensAnExampleFromAPageOfTheHelpAlone) {
    ChildWindow& browser = open("FluidProperties");
    const QUrl example(QStringLiteral("example:school-south.vht"));
    pageOf(browser)->anchorClicked(example);
    desk.pages.settle();
    EXPECT_TRUE(desk.main().windowsNamed("frmBHDesign").empty());
    EXPECT_TRUE(browser.control("NoticeLabel").visible());
    goTo(browser, desk.folder() + "/OnlineHelp/first_steps.html");
    pageOf(browser)->anchorClicked(example);
    desk.pages.settle();
    EXPECT_EQ(desk.main().windowsNamed("frmBHDesign").size(), 1u);
    EXPECT_FALSE(browser.control("NoticeLabel").visible());
    EXPECT_TRUE(desk.faults.empty());
}

TEST_F(BrowserWindowTest, CanBeClosedWhileAPageIsLoading) {
    desk.main().click("FluidProperties");
    EXPECT_TRUE(desk.main().close(*desk.main().activeWindow()));
    Desk::settle();
    EXPECT_EQ(desk.main().browserCount, 0);
}

TEST_F(BrowserWindowTest, FollowsTheColourSchemeOfTheProgram) {
    ChildWindow& browser = open("FluidProperties");
    applyTheme(*qApp, Scheme::dark);
    Desk::settle();
    EXPECT_LT(pageOf(browser)->palette().color(QPalette::Base).lightness(), 80);
    EXPECT_TRUE(pageOf(browser)->toPlainText().contains(QStringLiteral("Sodium Chloride")));
    applyTheme(*qApp, Scheme::light);
}

}  // namespace
}  // namespace varnholt
