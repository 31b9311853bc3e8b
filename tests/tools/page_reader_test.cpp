// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page_reader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

/// What an engine has told its window.
class Told : public PageEvents {
 public:
    void navigateComplete(const std::string& address) override { visited.push_back(address); }
    void downloadComplete() override { ++complete; }
    void tick() override { ++ticks; }
    void refused(PageRefusal why, const std::string& address) override {
        refusals.emplace_back(why, address);
    }

    std::vector<std::string> visited;
    std::vector<std::pair<PageRefusal, std::string>> refusals;
    int complete = 0, ticks = 0;
};

class PageReaderTest : public testing::Test {
 protected:
    PageReaderTest() {
        scratch.write("a.html", "<title>Page A</title>");
        scratch.write("b.html", "<title>Page B</title>");
        scratch.write("c.html", "<p>no title</p>");
    }
    /// Goes there, to the end.
    void go(const std::string& address) {
        reader.navigate(address);
        reader.finish();
    }
    void goTo(const std::string& name) { go(scratch.path(name)); }

    ScratchFolder scratch;
    Told told;
    PageReader reader{told,
                      {scratch.path("a.html"), scratch.path("b.html"), scratch.path(),
                       "Not to be shown", "%1 is missing"}};
};

TEST_F(PageReaderTest, IsBusyFromNavigationToItsEnd) {
    reader.navigate(scratch.path("a.html"));
    EXPECT_TRUE(reader.busy());
    EXPECT_EQ(reader.title(), "");
    reader.finish();
    EXPECT_FALSE(reader.busy());
    EXPECT_EQ(reader.title(), "Page A");
    EXPECT_EQ(told.visited, std::vector{scratch.path("a.html")});
    EXPECT_EQ(told.complete, 1);
}

TEST_F(PageReaderTest, CallsAPageWithoutATitleByItsFile) {
    goTo("c.html");
    EXPECT_EQ(reader.title(), "c.html");
}

TEST_F(PageReaderTest, TellsAMissingPageByAPageOfItsOwn) {
    goTo("missing.html");
    EXPECT_EQ(reader.title(), "Not to be shown");
    EXPECT_EQ(told.visited, std::vector{scratch.path("missing.html")});
    EXPECT_TRUE(told.refusals.empty());
    go(scratch.path());
    EXPECT_EQ(reader.title(), "Not to be shown") << "a folder is no page";
}

TEST_F(PageReaderTest, GoesBackAndForwardUpToTheEndsOfTheHistory) {
    EXPECT_FALSE(reader.goBack());
    EXPECT_FALSE(reader.goForward());
    goTo("a.html");
    goTo("b.html");
    EXPECT_FALSE(reader.goForward());
    ASSERT_TRUE(reader.goBack());
    reader.finish();
    EXPECT_EQ(reader.title(), "Page A");
    EXPECT_FALSE(reader.goBack());
    ASSERT_TRUE(reader.goForward());
    reader.finish();
    EXPECT_EQ(reader.title(), "Page B");
}

TEST_F(PageReaderTest, ForgetsWhatLayAheadWhenItGoesElsewhere) {
    goTo("a.html");
    goTo("b.html");
    reader.goBack();
    reader.finish();
    goTo("c.html");
    EXPECT_FALSE(reader.goForward());
    reader.goBack();
    reader.finish();
    EXPECT_EQ(reader.title(), "Page A");
}

TEST_F(PageReaderTest, RefreshReadsThePageAgain) {
    reader.refresh();
    EXPECT_FALSE(reader.busy()) << "nothing is on show";
    goTo("a.html");
    scratch.write("a.html", "<title>Changed</title>");
    reader.refresh();
    reader.finish();
    EXPECT_EQ(reader.title(), "Changed");
    EXPECT_FALSE(reader.goBack()) << "it is no step of the history";
}

TEST_F(PageReaderTest, HomeAndSearchAreItsPlaces) {
    reader.goHome();
    reader.finish();
    EXPECT_EQ(reader.title(), "Page A");
    reader.goSearch();
    reader.finish();
    EXPECT_EQ(reader.title(), "Page B");
}

TEST_F(PageReaderTest, StopEndsTheNavigationAndLeavesThePage) {
    goTo("a.html");
    reader.navigate(scratch.path("b.html"));
    reader.stop();
    reader.finish();
    EXPECT_EQ(reader.title(), "Page A");
    EXPECT_EQ(told.visited.size(), 1u);
}

TEST_F(PageReaderTest, TicksOnlyWhileTheTimerRuns) {
    reader.finish();
    EXPECT_EQ(told.ticks, 0);
    reader.runTimer(true);
    reader.finish();
    EXPECT_EQ(told.ticks, 1);
    reader.runTimer(false);
    reader.finish();
    EXPECT_EQ(told.ticks, 1);
}

TEST_F(PageReaderTest, RefusesOtherSchemesAndHandsTheWebOn) {
    goTo("a.html");
    go("javascript:alert(1)");
    go("http://varnholt.example/");
    EXPECT_EQ(reader.title(), "Page A");
    ASSERT_EQ(told.refusals.size(), 2u);
    EXPECT_EQ(told.refusals[0].first, PageRefusal::address);
    EXPECT_EQ(told.refusals[1],
              std::pair(PageRefusal::outside, std::string("http://varnholt.example/")));
    EXPECT_EQ(told.visited.size(), 1u);
}

TEST_F(PageReaderTest, RefusesAPageOfAHundredMegabytes) {
    scratch.write("large.html", "<title>Large</title>");
    // A file with a hole takes no room on the disk.
    std::filesystem::resize_file(scratch.path("large.html"), 100'000'000);
    goTo("large.html");
    EXPECT_EQ(reader.title(), "Not to be shown");
    ASSERT_EQ(told.refusals.size(), 1u);
    EXPECT_EQ(told.refusals[0].first, PageRefusal::tooLarge);
}

TEST_F(PageReaderTest, OfAnEmptyAddressStaysWhereItIs) {
    go("");
    go("  ");
    EXPECT_FALSE(reader.busy());
    EXPECT_TRUE(told.visited.empty());
    EXPECT_TRUE(told.refusals.empty());
}

TEST(ReadPages, SettleEndsWhatEveryEngineHasBegun) {
    const ScratchFolder scratch;
    scratch.write("a.html", "<title>Page A</title>");
    Told told;
    ReadPages pages;
    const auto one = pages.newEngine(told, {});
    auto two = pages.newEngine(told, {});
    one->navigate(scratch.path("a.html"));
    two->navigate(scratch.path("a.html"));
    two.reset();
    pages.settle();
    EXPECT_EQ(one->title(), "Page A");
    EXPECT_EQ(told.complete, 1);
}

TEST(ReadPages, MayEndBeforeTheirEngines) {
    Told told;
    auto pages = std::make_unique<ReadPages>();
    const auto engine = pages->newEngine(told, {});
    pages.reset();
    EXPECT_FALSE(engine->busy());
}

}  // namespace
}  // namespace varnholt
