// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/properties.h"
#include "script/script_fixture.h"

namespace varnholt {
namespace {

using Reading = ScriptTest;

/// One line of `print` and what it writes after the window's name.
struct Printed {
    const char* control;
    const char* line;
};

TEST_F(Reading, PrintWritesEveryPropertyAndLeavesTheDefaultsNameOut) {
    const Printed cases[] = {
        {"PlainText(0)", "PlainText(0) = \"first\""},
        {"PlainText(0).text", "PlainText(0) = \"first\""},
        {"NotesRichText", "NotesRichText = \"one\\r\\ntwo\""},
        {"FluidCombo", "FluidCombo = \"Water\""},
        {"FluidCombo.index", "FluidCombo.index = 0"},
        {"FluidCombo.items", "FluidCombo.items = [\"Water\", \"Methanol\", \"Ethanol\"]"},
        {"ZoneList", "ZoneList = [\"North\", \"South\", \"West\"]"},
        {"ZoneList.text", "ZoneList.text = \"\""},
        {"ZoneList.index", "ZoneList.index = -1"},
        {"ZoneList.selected", "ZoneList.selected = []"},
        {"NameLabel", "NameLabel = \"Name:\""},
        {"NameLabel.caption", "NameLabel = \"Name:\""},
        {"NameLabel.forecolor", "NameLabel.forecolor = 7829367"},
        {"NameLabel.bold", "NameLabel.bold = false"},
        {"StaleCommand", "StaleCommand = \"StaleCommand\""},
        {"GroupFrame", "GroupFrame = \"Group\""},
        {"MetricCheck", "MetricCheck = false"},
        {"MetricCheck.caption", "MetricCheck.caption = \"Metric\""},
        {"KindOption(0)", "KindOption(0) = true"},
        {"KindOption(0).checked", "KindOption(0) = true"},
        {"HybridSlider", "HybridSlider = 20"},
        {"HybridSlider.min", "HybridSlider.min = 0"},
        {"HybridSlider.max", "HybridSlider.max = 100"},
        {"RowsUpDown.value", "RowsUpDown = 1.5"},
        {"RowsUpDown.min", "RowsUpDown.min = 0.5"},
        {"StartDate", "StartDate = 2026-01-15"},
        {"StartDate.text", "StartDate.text = \"2026-01-15\""},
        {"imgBore", "imgBore = true"},
        {"Tabs", "Tabs = \"Fluid\""},
        {"Tabs.items", "Tabs.items = [\"Fluid\", \"Soil\"]"},
        {"DisabledText.enabled", "DisabledText.enabled = false"},
        {"PlainText(0).enabled", "PlainText(0).enabled = true"},
        {"HiddenText.visible", "HiddenText.visible = false"},
        {"HiddenText", "HiddenText = \"\""},
        {"LockedText.locked", "LockedText.locked = true"},
        {"PlainText(0).tooltip", "PlainText(0).tooltip = \"Say \\\"it\\\"\""},
        {"PlainText(0).backcolor", "PlainText(0).backcolor = 16777215"},
        {"NameLabel.backcolor", "NameLabel.backcolor = 15790320"},
    };
    std::string script, expected;
    for (const Printed& printed : cases) {
        script += std::string("print frmEveryKind.") + printed.control + "\n";
        expected += std::string("frmEveryKind#1.") + printed.line + "\n";
    }
    EXPECT_EQ(transcriptOf(script), expected);
}

TEST_F(Reading, MenuEntriesShowTheirCaptionAndTheMainWindowHasNoNumber) {
    EXPECT_EQ(run("print Varnmain.NewBorehole\nprint Varnmain#1.tbrMain(11).tooltip\n").out,
              "Varnmain.NewBorehole = \"[1015]\"\nVarnmain.tbrMain(11).tooltip = \"[1061]\"\n");
}

TEST_F(Reading, PrintWritesTheTextOfTheClipboard) {
    EXPECT_EQ(transcriptOf("print clipboard\nclipboard 1\\t2\\n\"3\"\nprint clipboard\n"),
              "clipboard = \"\"\nclipboard = \"1\\t2\\n\\\"3\\\"\"\n");
}

TEST_F(Reading, ValueWritesNumbersTextsFlagsAndDates) {
    EXPECT_EQ(transcriptOf("value frmEveryKind.boreLength(0)\nvalue frmEveryKind#1.boreLength(1)\n"
                           "value frmEveryKind.count\nvalue frmEveryKind.flag\n"
                           "value frmEveryKind.FileName\nvalue frmEveryKind.day\n"
                           "value frmEveryKind.ZoneList(2).pump.plf(1)\n"
                           "value Varnmain.windowCounter\n"),
              "value frmEveryKind#1.boreLength(0) = 3124.6899414062\n"
              "value frmEveryKind#1.boreLength(1) = 0.1\n"
              "value frmEveryKind#1.count = 7\n"
              "value frmEveryKind#1.flag = true\n"
              "value frmEveryKind#1.FileName = \"a\\\\b \\\"c\\\"\\r\\n\\t\"\n"
              "value frmEveryKind#1.day = 2026-01-15\n"
              "value frmEveryKind#1.ZoneList(2).pump.plf(1) = 2.1\n"
              "value Varnmain.windowCounter = 0\n");
}

TEST(NumberText, HasAsManyDigitsAsBringBackTheSameDouble) {
    EXPECT_EQ(numberText(3124.6899414062), "3124.6899414062");
    EXPECT_EQ(numberText(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(numberText(100000), "100000");
    EXPECT_EQ(numberText(-0.0001), "-0.0001");
    EXPECT_EQ(numberText(0), "0");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(1e300), "1e+300");
    EXPECT_EQ(numberText(1e-7), "1e-07");
}

TEST_F(Reading, FormsListsTheOpenWindowsWithOneActive) {
    EXPECT_EQ(run("forms\nclick Varnmain.NewBorehole\nclick Varnmain.NewBorehole\nforms\n").out,
              "Varnmain \"[1001]\" active\n"
              "frmSplash#1 \"[1001]\"\n"
              "show frmEveryKind#1 \"Every kind of \\\"control\\\"\"\n"
              "show frmEveryKind#2 \"Every kind of \\\"control\\\"\"\n"
              "Varnmain \"[1001]\"\n"
              "frmEveryKind#1 \"Every kind of \\\"control\\\"\"\n"
              "frmEveryKind#2 \"Every kind of \\\"control\\\"\" active\n");
}

TEST_F(Reading, ControlsListsEveryControlWithItsKind) {
    const std::string listed = transcriptOf("controls frmEveryKind\n");
    EXPECT_EQ(listed.substr(0, listed.find("frmEveryKind#1.TypedCombo")),
              "frmEveryKind#1.NameLabel label\n"
              "frmEveryKind#1.PlainText(0) text\n"
              "frmEveryKind#1.PlainText(1) text\n"
              "frmEveryKind#1.gains(2,0) text\n"
              "frmEveryKind#1.NotesRichText richText\n"
              "frmEveryKind#1.FluidCombo combo\n");
    EXPECT_EQ(std::count(listed.begin(), listed.end(), '\n'),
              static_cast<std::ptrdiff_t>(window().controls().size()));
}

TEST_F(Reading, AWindowWithoutNumberIsTheActiveOneOfItsNameOrElseTheOneOpenedLast) {
    for (int i = 0; i < 3; ++i) main.click("NewBorehole");
    EXPECT_EQ(run("type frmEveryKind#2.PlainText(0) two\nprint frmEveryKind.PlainText(0)\n"
                  "activate frmEveryKind#3\nprint frmEveryKind.PlainText(0)\n")
                  .out,
              "frmEveryKind#2.PlainText(0) = \"two\"\nfrmEveryKind#3.PlainText(0) = \"first\"\n");
}

TEST_F(Reading, NumbersCountTheWindowsThatAreOpen) {
    for (int i = 0; i < 3; ++i) main.click("NewBorehole");
    EXPECT_EQ(run("type frmEveryKind#3.PlainText(0) three\nclose frmEveryKind#1\n"
                  "print frmEveryKind#2.PlainText(0)\n")
                  .out,
              "frmEveryKind#2.PlainText(0) = \"three\"\n");
}

TEST_F(Reading, APictureIsSkippedWithANoteThatIsNoPartOfTheTranscript) {
    const Outcome result = runInWindow("shot frmEveryKind out/a.png\nforms\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out.substr(0, 9), "Varnmain ");
    EXPECT_EQ(result.faults,
              "test.vscript:1: no picture of frmEveryKind#1: skipped, there are no windows\n");
}

class TwoRowReport : public ReportSource {
 public:
    bool hasReport() const override { return true; }
    std::vector<ReportEntry> entries() const override {
        return {{"Header", "lblTitle", "A \"title\""}, {"Detail", "txtLength", "3124.7"}};
    }
    bool save(const std::string& path) const override {
        saved = path;
        return path.ends_with(".csv");
    }
    mutable std::string saved;
};

TEST_F(Reading, PrintReportWritesTheReportBandByBandRowByRow) {
    const TwoRowReport report;
    reports = &report;
    EXPECT_EQ(transcriptOf("print report\nsave report /out/my report.csv\n"),
              "Header.lblTitle = \"A \\\"title\\\"\"\nDetail.txtLength = \"3124.7\"\n");
    EXPECT_EQ(report.saved, "/out/my report.csv");
    const Outcome refused = run("save report /out/a.doc\n");
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.faults, "test.vscript:1: /out/a.doc is no .pdf, .html or .csv\n");
}

TEST(Properties, AreReadOnlyFromTheKindsThatHaveThem) {
    EXPECT_TRUE(hasProperty(ControlKind::label, Property::caption));
    EXPECT_FALSE(hasProperty(ControlKind::label, Property::text));
    EXPECT_TRUE(hasProperty(ControlKind::tabs, Property::items));
    EXPECT_FALSE(hasProperty(ControlKind::combo, Property::selected));
    EXPECT_FALSE(propertyNamed("size").has_value());
}

TEST(Properties, TheDefaultOfEveryKindIsOneThatItHas) {
    for (int kind = 0; kind <= static_cast<int>(ControlKind::tabs); ++kind) {
        const auto each = static_cast<ControlKind>(kind);
        EXPECT_TRUE(hasProperty(each, defaultProperty(each))) << nameOf(each);
    }
}

}  // namespace
}  // namespace varnholt
