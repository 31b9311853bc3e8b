// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page_address.h"

#include <gtest/gtest.h>

#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

using Kind = PageAddress::Kind;

Kind kindOf(const std::string& typed) { return pageAddressOf(typed, {}).kind; }
std::string shown(const std::string& typed, const std::string& base = {}) {
    return pageAddressOf(typed, base).shown();
}

TEST(PageAddress, OfAPathIsItselfWithBlanksAndAll) {
    EXPECT_EQ(kindOf("/a folder/my page.html"), Kind::local);
    EXPECT_EQ(shown("/a folder/my page.html"), "/a folder/my page.html");
    EXPECT_EQ(shown("  /a/b.html \t"), "/a/b.html");
    EXPECT_EQ(shown("\"/a folder/b.html\""), "/a folder/b.html");
    EXPECT_EQ(shown("/a/it's \"quoted\".html"), "/a/it's \"quoted\".html");
}

TEST(PageAddress, LosesItsDoubleDots) {
    EXPECT_EQ(shown("/a/b/../c.html"), "/a/c.html");
    EXPECT_EQ(shown("../c.html", "/a/b/page.html"), "/a/c.html");
    EXPECT_EQ(shown("/../../etc/./x"), "/etc/x");
}

TEST(PageAddress, OfAFileIsItsPath) {
    EXPECT_EQ(shown("file:///a%20b/c.html"), "/a b/c.html");
    EXPECT_EQ(shown("FILE://localhost/a/c.html#top"), "/a/c.html#top");
    EXPECT_EQ(shown("file:/a/c.html"), "/a/c.html");
    EXPECT_EQ(kindOf("file://elsewhere/a.html"), Kind::refused);
    // A percent sign that begins no number stands for itself.
    EXPECT_EQ(shown("file:///100%.html"), "/100%.html");
    EXPECT_EQ(shown("file:///a%4"), "/a%4");
}

TEST(PageAddress, KnowsThePlaceInAPageFromAHashInAName) {
    const ScratchFolder scratch;
    scratch.write("a#b.html", "page");
    const PageAddress named = pageAddressOf(scratch.path("a#b.html"), {});
    EXPECT_EQ(named.file, scratch.path("a#b.html"));
    EXPECT_EQ(named.fragment, "");
    const PageAddress place = pageAddressOf("/t/SoilTables.html#swing", {});
    EXPECT_EQ(place.file, "/t/SoilTables.html");
    EXPECT_EQ(place.fragment, "swing");
    EXPECT_EQ(shown("#swing", "/t/SoilTables.html"), "/t/SoilTables.html#swing");
}

TEST(PageAddress, OfTheWebKeepsWhatWasTyped) {
    EXPECT_EQ(kindOf("http://varnholt.example"), Kind::web);
    EXPECT_EQ(shown("HTTPS://varnholt.example/a?b=c#d"), "https://varnholt.example/a?b=c#d");
    EXPECT_EQ(shown("varnholt.example"), "http://varnholt.example");
    EXPECT_EQ(shown("localhost:8080/x"), "http://localhost:8080/x");
}

TEST(PageAddress, OfABareNameIsAFileBesideThePageWhereThereIsOne) {
    const ScratchFolder scratch;
    scratch.write("FluidTables.html", "page");
    EXPECT_EQ(shown("FluidTables.html", scratch.path("SoilTables.html")),
              scratch.path("FluidTables.html"));
    EXPECT_EQ(kindOf("FluidTables.html"), Kind::web);
}

TEST(PageAddress, OfAnyOtherSchemeIsRefused) {
    for (const char* typed :
         {"javascript:alert(1)", "JavaScript:alert(1)", " javascript:alert(1)",
          "data:text/html,<h1>x</h1>", "ftp://host/x", "mailto:a@b", "C:\\pages\\x.html", "about:x",
          "view-source:http://x", "vbscript:x", "example:school.vht"})
        EXPECT_EQ(kindOf(typed), Kind::refused) << typed;
}

TEST(PageAddress, OfAFileWithoutARootIsRefused) {
    for (const char* typed : {"file:", "file://", "file://localhost", "file:beside.html"})
        EXPECT_EQ(kindOf(typed), Kind::refused) << typed;
    EXPECT_EQ(shown("file:/"), "/");
}

TEST(PageAddress, OfTheWebWithoutAHostIsRefused) {
    for (const char* typed : {"http:", "https://", "HTTP:///", "https://?a=b", "http://#top"})
        EXPECT_EQ(kindOf(typed), Kind::refused) << typed;
}

TEST(PageAddress, OfTheWebIsWrittenWithTwoSlashes) {
    EXPECT_EQ(shown("http:varnholt.example/a"), "http://varnholt.example/a");
    EXPECT_EQ(shown("https:///varnholt.example"), "https://varnholt.example");
}

TEST(PageAddress, OfAHostWithBlanksIsRefused) {
    for (const char* typed : {"no such page.html", "http://two words/x", "two words:80"})
        EXPECT_EQ(kindOf(typed), Kind::refused) << typed;
    EXPECT_EQ(shown("varnholt.example/two words"), "http://varnholt.example/two words");
}

TEST(PageAddress, OfNothingIsNone) {
    EXPECT_EQ(kindOf(""), Kind::none);
    EXPECT_EQ(kindOf(" \t\r\n"), Kind::none);
}

TEST(PageTitle, IsWhatStandsBetweenItsTags) {
    EXPECT_EQ(titleOf("<html><head><TITLE lang=en> Soil\n  tables </Title></head>"), "Soil tables");
    EXPECT_EQ(titleOf("<title>a &amp; b &lt;c&gt; &quot;d&quot; &#228;&#xE9;</title>"),
              "a & b <c> \"d\" \xC3\xA4\xC3\xA9");
    EXPECT_EQ(titleOf("<title>a & b; c</title>"), "a & b; c");
    EXPECT_EQ(titleOf("<p>no title</p>"), "");
    EXPECT_EQ(titleOf("<title>never ended"), "");
    EXPECT_EQ(titleOf(""), "");
    // A page in the encoding of old files.
    EXPECT_EQ(titleOf("<title>K\xE4lte</title>"), "K\xC3\xA4lte");
}

}  // namespace
}  // namespace varnholt
