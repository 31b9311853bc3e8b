// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_topics.h"

#include <gtest/gtest.h>

namespace varnholt {
namespace {

const std::string page = R"(<title>Page</title><main>
<h1>Title</h1>
<p>The first <b>words</b>.</p>
<h2 id="rows">Rows</h2>
<table>
<tr id="soil"><th>Soil</th><td>temperature &amp;
conductivity</td></tr>
</table>
<h2 id="sum">Sum</h2>
<p>The power of a pump:</p>
<p class="formula">W = Q h<sub>f</sub></p>
<p>with the flow Q.</p>
<h2 id="last">Last</h2>
</main>)";

TEST(SectionText, SetsARowsCaptionApartByAColon) {
    EXPECT_EQ(sectionText(page, "soil"), "Soil: temperature & conductivity");
}

TEST(SectionText, OfAHeadingIsWhatStandsBelowIt) {
    EXPECT_EQ(sectionText(page, "sum"), "Sum. The power of a pump: W = Q hf");
}

TEST(SectionText, OfAHeadingTakesNothingFromTheNextOne) {
    EXPECT_EQ(sectionText(page, "rows"), "Rows");
    EXPECT_EQ(sectionText(page, "last"), "Last");
}

TEST(SectionText, OfAPageIsItsFirstParagraphWithoutBlanksBeforeItsStops) {
    EXPECT_EQ(sectionText(page, ""), "The first words.");
    EXPECT_EQ(sectionText("<main><h1>Title</h1></main>", ""), "");
}

TEST(SectionText, OfNoSuchSectionIsEmpty) { EXPECT_EQ(sectionText(page, "none"), ""); }

}  // namespace
}  // namespace varnholt
