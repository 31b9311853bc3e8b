// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_fixture.h"

namespace varnholt {
namespace {

using Verbs = ScriptTest;

TEST_F(Verbs, TypeReplacesTheWholeTextByTheRestOfTheLineInOneChange) {
    EXPECT_EQ(transcriptOf("type frmEveryKind.PlainText(0)  two  words \n"
                           "print frmEveryKind.PlainText(0)\n"
                           "value frmEveryKind.log\n"),
              "frmEveryKind#1.PlainText(0) = \" two  words \"\n"
              "value frmEveryKind#1.log = \"change PlainText(0);\"\n");
}

TEST_F(Verbs, TypeMayEmptyAField) {
    EXPECT_EQ(transcriptOf("type frmEveryKind.PlainText(0)\nprint frmEveryKind.PlainText(0)\n"
                           "type frmEveryKind.gains(2,0) \nprint frmEveryKind.gains(2,0)\n"),
              "frmEveryKind#1.PlainText(0) = \"\"\nfrmEveryKind#1.gains(2,0) = \"\"\n");
}

TEST_F(Verbs, TypeTakesBackslashesAsTheyStand) {
    EXPECT_EQ(transcriptOf("type frmEveryKind.PlainText(0) a\\nb\nprint frmEveryKind.PlainText(0)"),
              "frmEveryKind#1.PlainText(0) = \"a\\\\nb\"\n");
}

TEST_F(Verbs, TypeWorksInRichTextAndInACombosOwnText) {
    EXPECT_EQ(transcriptOf("type frmEveryKind.NotesRichText x\nprint frmEveryKind.NotesRichText\n"
                           "type frmEveryKind.TypedCombo y\nprint frmEveryKind.TypedCombo\n"),
              "frmEveryKind#1.NotesRichText = \"x\"\nfrmEveryKind#1.TypedCombo = \"y\"\n");
}

TEST_F(Verbs, LeaveMovesTheFocusOutOfTheField) {
    transcriptOf("type frmEveryKind.PlainText(0) 1\nleave frmEveryKind.PlainText(0)\n");
    EXPECT_EQ(window().log, "change PlainText(0);leave;");
}

TEST_F(Verbs, TypingElsewhereIsNoLeaving) {
    transcriptOf("type frmEveryKind.PlainText(0) 1\ntype frmEveryKind.PlainText(1) 1\n");
    EXPECT_EQ(window().log, "change PlainText(0);change PlainText(1);");
}

TEST_F(Verbs, KeyPressesEnterAndCtrlV) {
    transcriptOf("key frmEveryKind.PlainText(0) Enter\nkey frmEveryKind.PlainText(0) Ctrl+V\n");
    EXPECT_EQ(window().log, "key Enter;key Ctrl+V;");
}

TEST_F(Verbs, CtrlVPastesTheClipboardIntoTheOneLineOfAField) {
    EXPECT_EQ(transcriptOf("clipboard 1\\t2\\r\\n\\\\\nkey frmEveryKind.PlainText(1) Ctrl+V\n"
                           "print frmEveryKind.PlainText(1)\n"),
              "frmEveryKind#1.PlainText(1) = \"1\\t2 \\\\\"\n");
}

TEST_F(Verbs, CtrlVLeavesALockedFieldAlone) {
    EXPECT_EQ(transcriptOf("clipboard x\nkey frmEveryKind.LockedText Ctrl+V\n"
                           "print frmEveryKind.LockedText\n"),
              "frmEveryKind#1.LockedText = \"as it is\"\n");
}

TEST_F(Verbs, ClickPressesAButton) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.StaleCommand\n"
                           "print frmEveryKind.StaleCommand.backcolor\n"),
              "frmEveryKind#1.StaleCommand.backcolor = 14281207\n");
}

TEST_F(Verbs, ClickTogglesACheckBox) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.MetricCheck\nprint frmEveryKind.MetricCheck\n"
                           "click frmEveryKind.MetricCheck\nprint frmEveryKind.MetricCheck\n"),
              "frmEveryKind#1.MetricCheck = true\nfrmEveryKind#1.MetricCheck = false\n");
    EXPECT_EQ(window().log, "click MetricCheck;click MetricCheck;");
}

TEST_F(Verbs, ClickChoosesAnOptionButton) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.KindOption(1)\nclick frmEveryKind.KindOption(1)\n"
                           "print frmEveryKind.KindOption(0)\nprint frmEveryKind.KindOption(1)\n"),
              "frmEveryKind#1.KindOption(0) = false\nfrmEveryKind#1.KindOption(1) = true\n");
    EXPECT_EQ(window().log, "click KindOption(1);");
}

TEST_F(Verbs, ClickChoosesAMenuEntryAndAToolbarButton) {
    const Outcome result =
        run("click Varnmain.NewBorehole\nclick Varnmain.tbrMain(0)\n"
            "click Varnmain.Metric\nprint Varnmain.Metric.checked\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out,
              "show frmEveryKind#1 \"Every kind of \\\"control\\\"\"\n"
              "show frmEveryKind#2 \"Every kind of \\\"control\\\"\"\n"
              "Varnmain.Metric.checked = true\n");
}

TEST_F(Verbs, ChoosePicksAnEntryByItsTextOrItsIndex) {
    EXPECT_EQ(transcriptOf("choose frmEveryKind.FluidCombo Ethanol\nprint frmEveryKind.FluidCombo\n"
                           "choose frmEveryKind.FluidCombo #1\nprint frmEveryKind.FluidCombo\n"
                           "print frmEveryKind.FluidCombo.index\n"),
              "frmEveryKind#1.FluidCombo = \"Ethanol\"\nfrmEveryKind#1.FluidCombo = \"Methanol\"\n"
              "frmEveryKind#1.FluidCombo.index = 1\n");
    EXPECT_EQ(window().log, "click FluidCombo;click FluidCombo;");
}

TEST_F(Verbs, ChooseWorksInListBoxesAndBringsTabsToTheFront) {
    EXPECT_EQ(
        transcriptOf("choose frmEveryKind.ZoneList West\nprint frmEveryKind.ZoneList.selected\n"
                     "print frmEveryKind.ZoneList.text\n"
                     "choose frmEveryKind.OneList #x\nprint frmEveryKind.OneList.index\n"
                     "choose frmEveryKind.Tabs Soil\nprint frmEveryKind.Tabs\n"),
        "frmEveryKind#1.ZoneList.selected = [2]\nfrmEveryKind#1.ZoneList.text = \"West\"\n"
        "frmEveryKind#1.OneList.index = 0\nfrmEveryKind#1.Tabs = \"Soil\"\n");
}

TEST_F(Verbs, SelectMakesExactlyTheseRowsTheSelectedOnes) {
    EXPECT_EQ(
        transcriptOf("select frmEveryKind.ZoneList #1\nselect frmEveryKind.ZoneList #2 #0 #2\n"
                     "print frmEveryKind.ZoneList.selected\n"
                     "select frmEveryKind.ZoneList\nprint frmEveryKind.ZoneList.selected\n"),
        "frmEveryKind#1.ZoneList.selected = [0, 2]\n"
        "frmEveryKind#1.ZoneList.selected = []\n");
}

TEST_F(Verbs, SlideMovesASliderOrAnUpDownInTheUnitsShown) {
    EXPECT_EQ(transcriptOf("slide frmEveryKind.HybridSlider 35\nprint frmEveryKind.HybridSlider\n"
                           "slide frmEveryKind.RowsUpDown 2.25\nprint frmEveryKind.RowsUpDown\n"),
              "frmEveryKind#1.HybridSlider = 35\nfrmEveryKind#1.RowsUpDown = 2.25\n");
    EXPECT_EQ(window().log, "slide HybridSlider;slide RowsUpDown;");
}

TEST_F(Verbs, SlideGoesNoFurtherThanTheEnd) {
    EXPECT_EQ(transcriptOf("slide frmEveryKind.HybridSlider 350\nprint frmEveryKind.HybridSlider\n"
                           "slide frmEveryKind.HybridSlider -1\nprint frmEveryKind.HybridSlider\n"),
              "frmEveryKind#1.HybridSlider = 100\nfrmEveryKind#1.HybridSlider = 0\n");
}

TEST_F(Verbs, DateSetsADatePicker) {
    EXPECT_EQ(
        transcriptOf("date frmEveryKind.StartDate 2024-02-29\nprint frmEveryKind.StartDate\n"),
        "frmEveryKind#1.StartDate = 2024-02-29\n");
    EXPECT_EQ(window().log, "click StartDate;");
}

TEST_F(Verbs, DateTakesDaysBeforeTheCalendarWasIntroduced) {
    std::string script, expected;
    for (const std::string day : {"1752-09-13", "1582-10-10", "0001-01-01", "9999-12-31"}) {
        script += "date frmEveryKind.StartDate " + day + "\nprint frmEveryKind.StartDate\n";
        expected += "frmEveryKind#1.StartDate = " + day + "\n";
    }
    EXPECT_EQ(transcriptOf(script), expected);
}

TEST_F(Verbs, AnElementOfAControlArrayCarriesItsIndicesWithoutABlank) {
    transcriptOf("type frmEveryKind.gains(2,0) 1\n");
    EXPECT_EQ(window().log, "change gains(2,0);");
}

TEST_F(Verbs, AWindowThatIsWorkedComesToTheFront) {
    main.click("NewBorehole");
    EXPECT_EQ(transcriptOf("type frmEveryKind#1.PlainText(0) 1\nforms\n"),
              "Varnmain \"[1001]\"\n"
              "frmEveryKind#1 \"Every kind of \\\"control\\\"\" active\n"
              "frmEveryKind#2 \"Every kind of \\\"control\\\"\"\n");
}

TEST_F(Verbs, ReadingBringsNoWindowToTheFront) {
    main.click("NewBorehole");
    EXPECT_EQ(transcriptOf("print frmEveryKind#1.PlainText(0)\nvalue frmEveryKind#1.activations\n"),
              "frmEveryKind#1.PlainText(0) = \"first\"\nvalue frmEveryKind#1.activations = 1\n");
}

struct BadLine {
    const char* line;
    const char* what;
};

class UnusableLines : public ScriptTest, public testing::WithParamInterface<BadLine> {};

TEST_P(UnusableLines, EndTheScriptWithStatusTwo) {
    const Outcome result = runInWindow(std::string("# first\n\n") + GetParam().line + "\nforms\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.faults, std::string("test.vscript:3: ") + GetParam().what + "\n");
    EXPECT_EQ(window().log, "");
}

INSTANTIATE_TEST_SUITE_P(
    Verbs, UnusableLines,
    testing::Values(
        BadLine{"dance frmEveryKind.PlainText(0)", "dance is no command"},
        BadLine{"Type frmEveryKind.PlainText(0) 1", "Type is no command"},
        BadLine{"type", "the line ends too early"},
        BadLine{"type PlainText(0) 1", "PlainText(0) is not of the form FORM.CONTROL"},
        BadLine{"type frmEveryKind. 1", "frmEveryKind. is not of the form FORM.CONTROL"},
        BadLine{"type .PlainText(0) 1", " names no window"},
        BadLine{"type frmNone.PlainText(0) 1", "no window frmNone is open"},
        BadLine{"type frmEveryKind#2.PlainText(0) 1", "no window frmEveryKind#2 is open"},
        BadLine{"type frmEveryKind#0.PlainText(0) 1", "no window frmEveryKind#0 is open"},
        BadLine{"type frmEveryKind#x.PlainText(0) 1", "x is not a whole number"},
        BadLine{"type frmEveryKind#.PlainText(0) 1", " is not a whole number"},
        BadLine{"type frmEveryKind.PlainText(9) 1", "frmEveryKind has no control PlainText(9)"},
        BadLine{"type frmEveryKind.NameLabel 1",
                "NameLabel is a label and cannot be worked in this way"},
        BadLine{"type frmEveryKind.FluidCombo 1", "nothing can be typed in FluidCombo"},
        BadLine{"type frmEveryKind.DisabledText 1", "DisabledText is not enabled"},
        BadLine{"type frmEveryKind.HiddenText 1", "HiddenText is not visible"},
        BadLine{"type frmEveryKind.LockedText 1", "LockedText is locked"},
        BadLine{"leave frmEveryKind.HiddenText", "HiddenText is not visible"},
        BadLine{"leave frmEveryKind.imgBore",
                "imgBore is a image and cannot be worked in this way"},
        BadLine{"key frmEveryKind.PlainText(0)", "the line ends too early"},
        BadLine{"key frmEveryKind.PlainText(0) F13", "F13 is no key: Enter, Ctrl+V or F1"},
        BadLine{"key frmEveryKind.DisabledText Enter", "DisabledText is not enabled"},
        BadLine{"click frmEveryKind.PlainText(0)",
                "PlainText(0) is a text and cannot be worked in this way"},
        BadLine{"click frmEveryKind.StaleCommand twice", "twice is not expected here"},
        BadLine{"leave frmEveryKind.PlainText(0) now", "now is not expected here"},
        BadLine{"click Varnmain.Split1", "Split1 is a line between entries"},
        BadLine{"click Varnmain.mnuFileSave", "mnuFileSave is not enabled"},
        BadLine{"choose frmEveryKind.FluidCombo Wine", "FluidCombo has no entry \"Wine\""},
        BadLine{"choose frmEveryKind.FluidCombo", "FluidCombo has no entry \"\""},
        BadLine{"choose frmEveryKind.FluidCombo #3", "FluidCombo has no entry #3"},
        BadLine{"choose frmEveryKind.FluidCombo #99999999999", "99999999999 is not a whole number"},
        BadLine{"select frmEveryKind.ZoneList #3", "ZoneList has no entry #3"},
        BadLine{"select frmEveryKind.ZoneList 1", "1 is not an index such as #0"},
        BadLine{"select frmEveryKind.OneList #0 #1", "OneList selects one row"},
        BadLine{"select frmEveryKind.FluidCombo #0",
                "FluidCombo is a combo and cannot be worked in this way"},
        BadLine{"slide frmEveryKind.HybridSlider", "the line ends too early"},
        BadLine{"slide frmEveryKind.HybridSlider 3x", "3x is not a number"},
        BadLine{"slide frmEveryKind.HybridSlider nan", "nan is not a number"},
        BadLine{"slide frmEveryKind.HybridSlider 3 4", "4 is not expected here"},
        BadLine{"date frmEveryKind.StartDate 2026-02-29",
                "2026-02-29 is not a date of the form YYYY-MM-DD"},
        BadLine{"date frmEveryKind.StartDate #2026-01-15#",
                "#2026-01-15# is not a date of the form YYYY-MM-DD"},
        BadLine{"date frmEveryKind.StartDate 0000-01-01",
                "0000-01-01 is not a date of the form YYYY-MM-DD"},
        BadLine{"date frmEveryKind.StartDate 26-1-15",
                "26-1-15 is not a date of the form YYYY-MM-DD"},
        BadLine{"activate frmNone", "no window frmNone is open"},
        BadLine{"activate", "the line ends too early"},
        BadLine{"close frmEveryKind#2", "no window frmEveryKind#2 is open"},
        BadLine{"answer maybe", "maybe is no answer: yes, no, cancel or ok"},
        BadLine{"answer", "the line ends too early"},
        BadLine{"pick", "pick needs a path, or cancel"},
        BadLine{"clipboard a\\x", "a backslash is followed by r, n, t or another backslash"},
        BadLine{"clipboard a\\", "a backslash is followed by r, n, t or another backslash"},
        BadLine{"print frmEveryKind.PlainText(0).size",
                "frmEveryKind.PlainText(0).size ends in no property"},
        BadLine{"print frmEveryKind.PlainText(0).checked", "a text has no checked"},
        BadLine{"print frmEveryKind.PlainText(0) text", "text is not expected here"},
        BadLine{"value frmEveryKind.nothing", "frmEveryKind has no value nothing"},
        BadLine{"value frmEveryKind.boreLength", "frmEveryKind has no value boreLength"},
        BadLine{"value frmEveryKind.boreLength(2)", "frmEveryKind has no value boreLength(2)"},
        BadLine{"value frmEveryKind.boreLength(x)", "frmEveryKind has no value boreLength(x)"},
        BadLine{"print report", "no report has been shown"},
        BadLine{"save report out.pdf", "no report has been shown"},
        BadLine{"save file out.pdf", "only a report can be saved: save report PATH"},
        BadLine{"shot frmEveryKind", "the line ends too early"},
        BadLine{"forms frmEveryKind", "frmEveryKind is not expected here"},
        BadLine{"controls frmNone", "no window frmNone is open"}));

TEST_F(Verbs, AControlInAHiddenOrDisabledFrameCannotBeUsed) {
    const Outcome hidden = runInWindow(
        "type frmEveryKind.FramedText 1\nclick frmEveryKind.HideCommand\n"
        "print frmEveryKind.FramedText.visible\ntype frmEveryKind.FramedText 1\n");
    EXPECT_EQ(hidden.status, 2);
    EXPECT_EQ(hidden.out, "frmEveryKind#1.FramedText.visible = false\n");
    EXPECT_EQ(hidden.faults, "test.vscript:4: FramedText is not visible\n");
    const Outcome frozen =
        runInWindow("click frmEveryKind#2.FreezeCommand\ntype frmEveryKind#2.FramedText 1\n");
    EXPECT_EQ(frozen.faults, "test.vscript:2: FramedText is not enabled\n");
}

}  // namespace
}  // namespace varnholt
