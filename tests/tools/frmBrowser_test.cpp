// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmBrowser.h"

#include <gtest/gtest.h>

#include "basis/run_time_error.h"
#include "forms/fake_platform.h"
#include "tools/modResource.h"
#include "tools/page_reader.h"
#include "tools/reference_tools.h"
#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

/// An engine worked by the test: it loads as long as the test lets it.
class SlowEngine : public PageEngine {
 public:
    SlowEngine(PageEvents& events, std::vector<std::string>& asked)
        : events_(events), asked_(asked) {}

    void navigate(const std::string& address) override { begin(address); }
    bool goBack() override { return past("back"); }
    bool goForward() override { return past("forward"); }
    void refresh() override { begin("refresh"); }
    void goHome() override { begin("home"); }
    void goSearch() override { begin("search"); }
    void stop() override {
        asked_.emplace_back("stop");
        busy_ = false;
    }
    bool busy() const override { return busy_; }
    std::string title() const override { return title_; }
    void runTimer(bool on) override { ticking_ = on; }

    bool ticking() const { return ticking_; }
    void tick() {
        if (ticking_) events_.tick();
    }
    void end(const std::string& address, const std::string& title) {
        busy_ = false;
        title_ = title;
        events_.navigateComplete(address);
        events_.downloadComplete();
    }
    void refuse(PageRefusal why) { events_.refused(why, "http://varnholt.example/x"); }

 private:
    void begin(const std::string& what) {
        asked_.push_back(what);
        busy_ = true;
    }
    bool past(const char* what) {
        asked_.emplace_back(what);
        return false;
    }

    PageEvents& events_;
    std::vector<std::string>& asked_;
    std::string title_;
    bool busy_ = false, ticking_ = false;
};

class SlowPages : public PageSource {
 public:
    std::unique_ptr<PageEngine> newEngine(PageEvents& events, const PagePlaces& wanted) override {
        if (fault != 0) throw RunTimeError(fault);
        places = wanted;
        auto engine = std::make_unique<SlowEngine>(events, asked);
        last = engine.get();
        return engine;
    }
    SlowEngine* last = nullptr;
    int fault = 0;
    std::vector<std::string> asked;
    PagePlaces places;
};

class BrowserTest : public testing::Test {
 protected:
    BrowserTest() {
        language.LoadSatellite(VARNHOLT_RESOURCE_DIR "/language", 0x409);
        main.start();
    }
    frmBrowser& open(const std::string& address) {
        tools.browse(address);
        return dynamic_cast<frmBrowser&>(*main.activeWindow());
    }
    SlowEngine& engine() { return *pages.last; }

    FakePlatform platform;
    LanguageResource language;
    Varnmain main{platform, language, "/program"};
    SlowPages pages;
    UnseenHelp help;
    ReferenceTools tools{main, pages, help};
};

TEST_F(BrowserTest, WithoutAStartingAddressOpensEmpty) {
    frmBrowser& browser = open("");
    EXPECT_EQ(browser.control("cboAddress").text(), "");
    EXPECT_TRUE(browser.control("cboAddress").items().empty());
    EXPECT_TRUE(pages.asked.empty());
    EXPECT_FALSE(engine().ticking());
    EXPECT_EQ(browser.caption(), "Browser");
    // An address can be typed all the same.
    browser.type("cboAddress", "/a.html");
    browser.key("cboAddress", "Enter");
    EXPECT_EQ(pages.asked, std::vector<std::string>{"/a.html"});
}

TEST_F(BrowserTest, GoesToItsStartingAddressWhileTheTimerRuns) {
    frmBrowser& browser = open("/a.html");
    EXPECT_EQ(browser.control("cboAddress").text(), "/a.html");
    EXPECT_EQ(pages.asked, std::vector<std::string>{"/a.html"});
    EXPECT_TRUE(engine().ticking());
    EXPECT_EQ(browser.values().read("browserLoading"), PublicValue(true));
    EXPECT_EQ(browser.values().read("timTimer.Enabled"), PublicValue(true));
}

TEST_F(BrowserTest, ReadsWorkingUntilTheEngineIsNotBusy) {
    frmBrowser& browser = open("/a.html");
    engine().tick();
    EXPECT_EQ(browser.caption(), "Working...");
    engine().tick();
    EXPECT_EQ(browser.caption(), "Working...");
    engine().end("/a.html", "Page A");
    EXPECT_EQ(browser.caption(), "Page A");
    EXPECT_EQ(browser.values().read("browserLoading"), PublicValue(false));
    EXPECT_TRUE(engine().ticking());
    engine().tick();
    EXPECT_EQ(browser.caption(), "Page A");
    EXPECT_FALSE(engine().ticking()) << "the timer stops with the first tick that finds no work";
}

TEST_F(BrowserTest, WhileItLoadsItsFirstPageTheAddressBoxStartsNothing) {
    frmBrowser& browser = open("/a.html");
    browser.type("cboAddress", "/b.html");
    browser.key("cboAddress", "Enter");
    EXPECT_EQ(pages.asked.size(), 1u);
    engine().end("/a.html", "Page A");
    browser.type("cboAddress", "/b.html");
    browser.key("cboAddress", "Enter");
    EXPECT_EQ(pages.asked.back(), "/b.html");
    EXPECT_TRUE(engine().ticking());
}

TEST_F(BrowserTest, ListsEachAddressOnceNewestFirst) {
    frmBrowser& browser = open("/a.html");
    engine().end("/a.html", "Page A");
    engine().end("/b.html", "Page B");
    const Control& list = browser.control("cboAddress");
    EXPECT_EQ(list.items(), (std::vector<std::string>{"/b.html", "/a.html"}));
    EXPECT_EQ(list.text(), "/b.html");
    pages.asked.clear();
    engine().end("/a.html", "Page A");
    EXPECT_EQ(list.items(), (std::vector<std::string>{"/b.html", "/a.html"}));
    EXPECT_EQ(list.text(), "/b.html") << "an address that is listed already leaves the text";
    EXPECT_TRUE(pages.asked.empty()) << "the list starts no navigation";
}

TEST_F(BrowserTest, AFirstPageThatEndsNowhereIsNotListed) {
    frmBrowser& browser = open("/a.zip");
    engine().end("", "");
    EXPECT_TRUE(browser.control("cboAddress").items().empty());
    EXPECT_EQ(browser.control("cboAddress").text(), "/a.zip");
    browser.key("cboAddress", "Enter");
    EXPECT_EQ(pages.asked.size(), 2u) << "the window is not loading any more";
}

TEST_F(BrowserTest, AnAddressPickedFromTheListIsGoneTo) {
    frmBrowser& browser = open("/a.html");
    engine().end("/a.html", "Page A");
    engine().end("/b.html", "Page B");
    browser.choose("cboAddress", 1);
    EXPECT_EQ(pages.asked.back(), "/a.html");
}

TEST_F(BrowserTest, ToolBarAsksTheEngineAndStartsTheTimer) {
    frmBrowser& browser = open("");
    for (int i = 0; i < 6; ++i) {
        const Control& button = browser.element("tbToolBar", i);
        EXPECT_TRUE(button.enabled());
        engine().runTimer(false);
        browser.click(button.name());
        EXPECT_EQ(engine().ticking(), i != 5) << button.caption();
    }
    EXPECT_EQ(pages.asked,
              (std::vector<std::string>{"back", "forward", "refresh", "home", "search", "stop"}));
    EXPECT_TRUE(platform.messages.empty()) << "the ends of the history are nobody's business";
}

TEST_F(BrowserTest, StopEndsTheLoadingAndShowsTheTitle) {
    frmBrowser& browser = open("/never.html");
    engine().tick();
    browser.click("tbToolBar(5)");
    EXPECT_FALSE(engine().ticking());
    EXPECT_FALSE(engine().busy());
    EXPECT_EQ(browser.caption(), "Browser") << "there is no page yet";
    browser.type("cboAddress", "/b.html");
    browser.key("cboAddress", "Enter");
    EXPECT_EQ(pages.asked.back(), "/b.html");
}

TEST_F(BrowserTest, TellsWhatWasRefusedInALineUntilTheNextNavigation) {
    frmBrowser& browser = open("");
    const Control& line = browser.control("NoticeLabel");
    for (const auto& [why, words] :
         {std::pair(PageRefusal::address, "neither"), std::pair(PageRefusal::tooLarge, "too large"),
          std::pair(PageRefusal::download, "save a file"),
          std::pair(PageRefusal::otherWindow, "another window"),
          std::pair(PageRefusal::certificate, "http://varnholt.example/x")}) {
        engine().refuse(why);
        EXPECT_TRUE(line.visible());
        EXPECT_NE(line.caption().find(words), std::string::npos) << line.caption();
    }
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_TRUE(platform.outside.empty());
    browser.click("tbToolBar(3)");
    EXPECT_FALSE(line.visible());
}

TEST_F(BrowserTest, HandsThePagesOfTheWebToTheSystemWhereItCannotShowThem) {
    frmBrowser& browser = open("");
    engine().refuse(PageRefusal::outside);
    EXPECT_EQ(platform.outside, std::vector<std::string>{"http://varnholt.example/x"});
    EXPECT_TRUE(browser.control("NoticeLabel").visible());
}

TEST_F(BrowserTest, IsCountedByTheMainWindow) {
    open("");
    frmBrowser& second = open("");
    EXPECT_EQ(main.browserCount, 2);
    EXPECT_TRUE(main.close(second));
    EXPECT_EQ(main.browserCount, 1);
    EXPECT_EQ(main.windowsNamed("frmBrowser").size(), 1u);
}

TEST_F(BrowserTest, HomeAndSearchArePagesOfTheHelp) {
    open("");
    EXPECT_EQ(pages.places.home, "/program/OnlineHelp/index.html");
    EXPECT_EQ(pages.places.search, "/program/OnlineHelp/search.html");
    EXPECT_EQ(pages.places.helpFolder, "/program/OnlineHelp");
}

std::string addressOf(Varnmain& main) {
    return dynamic_cast<frmBrowser&>(*main.activeWindow()).StartingAddress;
}

TEST_F(BrowserTest, OpensTheReferencePagesInTheUnitsOfTheMenu) {
    for (const auto& [command, page] :
         {std::pair("FluidProperties", "FluidTables"), std::pair("PipeProperties", "PipeTables"),
          std::pair("SoilProperties", "SoilTables"), std::pair("Conversions", "ConversionTable")}) {
        const std::string base = "/program/tables/english/" + std::string(page);
        main.click("English");
        main.click(command);
        EXPECT_EQ(addressOf(main), base + ".html");
        main.click("Metric");
        main.click(command);
        const bool hasMetric = std::string(command) != "Conversions";
        EXPECT_EQ(addressOf(main), base + (hasMetric ? "Metric.html" : ".html"));
    }
    EXPECT_EQ(main.browserCount, 8);
}

TEST_F(BrowserTest, WithMetricOnFluidPropertiesOpensThePageWithMetricBehindItsName) {
    main.click("Metric");
    main.click("FluidProperties");
    EXPECT_EQ(addressOf(main), "/program/tables/english/FluidTablesMetric.html");
}

TEST_F(BrowserTest, ConversionsHasNoMetricFormEvenWithMetricOn) {
    main.click("Metric");
    main.click("Conversions");
    EXPECT_EQ(addressOf(main), "/program/tables/english/ConversionTable.html");
}

TEST_F(BrowserTest, TellsAFailureByItsNumberAndDescription) {
    pages.fault = 53;
    main.click("SoilProperties");
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
    EXPECT_EQ(platform.messages[0].text, "53 - File not found");
    EXPECT_EQ(main.browserCount, 0);
    EXPECT_EQ(main.activeWindow(), nullptr);
}

TEST_F(BrowserTest, OfALanguageThatIsMissingStillOpens) {
    LanguageResource none;
    Varnmain other(platform, none, "/program");
    const ReferenceTools with(other, pages, help);
    other.start();
    other.click("FluidProperties");
    EXPECT_EQ(other.activeWindow()->caption(), noLocalData);
}

}  // namespace
}  // namespace varnholt
