// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_fixture.h"

namespace varnholt {
namespace {

using Runner = ScriptTest;

TEST_F(Runner, CommentsAndEmptyLinesArePassedOver) {
    EXPECT_EQ(transcriptOf("# a comment\n\n   \t\n  # another\n#\n  forms  \n").substr(0, 8),
              "Varnmain");
    EXPECT_EQ(run("").status, 0);
}

TEST_F(Runner, ReadsLinesThatEndInCrLfAndALastLineWithoutEnd) {
    EXPECT_EQ(transcriptOf("type frmEveryKind.PlainText(0) a\r\nprint frmEveryKind.PlainText(0)"),
              "frmEveryKind#1.PlainText(0) = \"a\"\n");
}

TEST_F(Runner, ReadsUtf8WithAByteOrderMarkAndOldFilesInWindows1252) {
    EXPECT_EQ(transcriptOf("\xEF\xBB\xBFtype frmEveryKind.PlainText(0) \xC3\xA4\n"
                           "print frmEveryKind.PlainText(0)\n"
                           "type frmEveryKind.PlainText(0) \xE4\n"
                           "print frmEveryKind.PlainText(0)\n"),
              "frmEveryKind#1.PlainText(0) = \"\xC3\xA4\"\n"
              "frmEveryKind#1.PlainText(0) = \"\xC3\xA4\"\n");
}

TEST_F(Runner, PassesTypedTextOnUnchanged) {
    // Blanks at the ends, a no-break space, a zero-width no-break space, the separators of lines
    // and paragraphs, a next line, a vertical tab.
    std::string script, expected;
    for (const std::string text :
         {"  two blanks at both ends  ", "\xC2\xA0no-break\xC2\xA0", "\xEF\xBB\xBFzero-width",
          "line\xE2\x80\xA8paragraph\xE2\x80\xA9", "next\xC2\x85line", "vertical\vtab"}) {
        for (const std::string field : {"PlainText(0)", "NotesRichText"}) {
            script += "type frmEveryKind." + field + " " + text + "\n";
            script += "print frmEveryKind." + field + "\n";
            expected += "frmEveryKind#1." + field + " = \"" + text + "\"\n";
        }
        script += "clipboard " + text + "\nkey frmEveryKind.PlainText(1) Ctrl+V\n";
        script += "print frmEveryKind.PlainText(1)\n";
        expected += "frmEveryKind#1.PlainText(1) = \"" + text + "\"\n";
    }
    EXPECT_EQ(transcriptOf(script), expected);
}

TEST_F(Runner, DividesWordsAtBlanksAndTabsAlone) {
    EXPECT_EQ(run("forms\xC2\xA0\n").faults, "test.vscript:1: forms\xC2\xA0 is no command\n");
    EXPECT_EQ(run("\xC2\xA0# no comment\n").status, 2);
    EXPECT_EQ(run("# a comment\xE2\x80\xA8"
                  "forms\n")
                  .out,
              "");
}

TEST_F(Runner, DropsAByteOrderMarkBeforeTheFirstLineAlone) {
    EXPECT_EQ(run("\xEF\xBB\xBF# a comment\n").status, 0);
    EXPECT_EQ(run("# first\n\xEF\xBB\xBF# second\n").faults,
              "test.vscript:2: \xEF\xBB\xBF# is no command\n");
}

TEST_F(Runner, WindowsThatAreOpenBeforeTheFirstLineAreNotTold) {
    EXPECT_EQ(run("# nothing\n").out, "");
}

TEST_F(Runner, AnExceptionOutOfAHandlerIsAFaultOfTheProgram) {
    const Outcome result = runInWindow("forms\nclick frmEveryKind.BreakCommand\nforms\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.faults, "test.vscript:2: the program failed: broken\n");
    EXPECT_EQ(result.out,
              "Varnmain \"[1001]\"\nfrmEveryKind#1 \"Every kind of \\\"control\\\"\" active\n");
}

TEST_F(Runner, SoIsWhateverElseIsThrown) {
    EXPECT_EQ(runInWindow("click frmEveryKind.BreakOddlyCommand\n").faults,
              "test.vscript:1: the program failed\n");
    EXPECT_EQ(runInWindow("value frmEveryKind.broken\n").status, 1);
}

TEST_F(Runner, AModalFormTakesTheNextLinesUntilItCloses) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.ModalCommand\n"
                           "type frmSample.NameText Anna\n"
                           "forms\n"
                           "print frmEveryKind.PlainText(0)\n"
                           "click frmSample.OKCommand\n"
                           "value frmEveryKind.log\nforms\n"),
              "show frmSample#1 \"A dialog\"\n"
              "Varnmain \"[1001]\"\n"
              "frmEveryKind#1 \"Every kind of \\\"control\\\"\"\n"
              "frmSample#1 \"A dialog\" active\n"
              "frmEveryKind#1.PlainText(0) = \"first\"\n"
              "value frmEveryKind#1.log = \"dialog Anna;\"\n"
              "Varnmain \"[1001]\"\n"
              "frmEveryKind#1 \"Every kind of \\\"control\\\"\" active\n");
}

TEST_F(Runner, AModalFormClosesByItsCloseBox) {
    transcriptOf("click frmEveryKind.ModalCommand\nclose frmSample\n");
    EXPECT_EQ(window().log, "dialog ;");
}

TEST_F(Runner, AModalFormKeepsAPersonFromTheOtherWindows) {
    const std::string blocked[] = {"type frmEveryKind.PlainText(0) 1", "click Varnmain.NewBorehole",
                                   "close frmEveryKind", "activate frmEveryKind"};
    for (const std::string& line : blocked) {
        SCOPED_TRACE(line);
        ScriptPlatform ownPlatform(transcript, "/program", Date{});
        Varnmain ownMain(ownPlatform, texts, "/program");
        ownMain.start();
        ownMain.open(std::make_unique<frmEveryKind>(ownMain));
        FormDriver ownDriver(ownMain);
        std::istringstream input("click frmEveryKind.ModalCommand\n" + line + "\n");
        std::ostringstream faults;
        ScriptReader reader(input, "s");
        EXPECT_EQ(ScriptRunner(ownMain, ownPlatform, ownDriver, transcript, reader, faults).run(),
                  2);
        EXPECT_NE(faults.str().find("cannot be used before frmSample is closed"),
                  std::string::npos);
    }
}

TEST_F(Runner, AScriptThatEndsInAModalFormEndsTheProgramAllTheSame) {
    const Outcome result = runInWindow("click frmEveryKind.ModalCommand\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.faults, "");
    EXPECT_EQ(window().log, "");
}

TEST_F(Runner, AFaultInAModalFormEndsTheScript) {
    const Outcome bad =
        runInWindow("click frmEveryKind.ModalCommand\nclick frmSample.None\nforms\n");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.out, "show frmSample#1 \"A dialog\"\n");
    EXPECT_EQ(bad.faults, "test.vscript:2: frmSample has no control None\n");
}

TEST_F(Runner, AnExceptionInAModalFormIsAFaultOfTheProgram) {
    const Outcome result =
        runInWindow("click frmEveryKind.ModalCommand\nclick frmSample.BreakCommand\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.faults, "test.vscript:2: the program failed: broken in a dialog\n");
}

TEST_F(Runner, AHandlerThatSwallowsEverythingDoesNotOutliveTheScript) {
    const Outcome result = runInWindow("click frmEveryKind.SwallowCommand\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "show frmSample#1 \"A dialog\"\n");
    EXPECT_EQ(result.faults, "");
}

TEST_F(Runner, ALineEndsWhereItsLineFeedStandsHoweverLongItIs) {
    // About the 65,535 characters that are read at once, and at the end of the script.
    for (const std::size_t length : {65'533U, 65'534U, 65'535U, 65'536U, 131'070U, 131'071U}) {
        SCOPED_TRACE(length);
        const std::string comment = "#" + std::string(length - 1, 'c');
        EXPECT_EQ(run(comment + "\r\n\n" + comment + "\nnonsense\n").faults.substr(0, 15),
                  "test.vscript:4:");
        EXPECT_EQ(run(comment).status, 0);
        EXPECT_EQ(run("forms\n" + comment).status, 0);
    }
}

TEST_F(Runner, ALineOfMoreThan16MBIsRefused) {
    const std::size_t longest = 16 * 1024 * 1024;
    const Outcome refused = run("\n#" + std::string(longest, 'c') + "\nforms\n");
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.faults, "test.vscript:2: the line is longer than 16 MB\n");
    EXPECT_EQ(refused.out, "");
    const Outcome longestOfAll = run("#" + std::string(longest - 1, 'c') + "\nforms\n");
    EXPECT_EQ(longestOfAll.status, 0);
    EXPECT_EQ(longestOfAll.faults, "");
}

TEST_F(Runner, AProgramWhoseToolkitNoExceptionMayPassIsEndedWithTheStatus) {
    main.click("NewBorehole");
    std::istringstream input("click frmEveryKind.ModalCommand\nclick frmSample.None\n");
    std::ostringstream faults;
    ScriptReader reader(input, "s");
    ScriptRunner runner(main, platform, driver, transcript, reader, faults);
    int exitStatus = -1;
    runner.setExit([&](int status) { exitStatus = status; });
    runner.run();
    EXPECT_EQ(exitStatus, 2);
}

TEST_F(Runner, CloseAsksAndAnAnswerOfCancelKeepsTheWindow) {
    EXPECT_EQ(
        transcriptOf("click frmEveryKind.GuardCommand\nanswer cancel\nclose frmEveryKind\n"
                     "print frmEveryKind.PlainText(0)\nanswer no\nclose frmEveryKind\nforms\n"),
        "question yes-no-cancel \"Save\" \"Save it?\" -> cancel\n"
        "frmEveryKind#1.PlainText(0) = \"first\"\n"
        "question yes-no-cancel \"Save\" \"Save it?\" -> no\n"
        "Varnmain \"[1001]\" active\n");
}

TEST_F(Runner, AWindowMayCloseItselfInItsOwnHandler) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.CloseCommand\nforms\n"),
              "Varnmain \"[1001]\" active\n");
}

TEST_F(Runner, ClosingTheMainWindowEndsTheProgram) {
    const Outcome result = runInWindow("close Varnmain\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(main.windows().empty());
}

TEST_F(Runner, LinesAfterTheProgramsEndNameNoWindow) {
    const Outcome result = runInWindow("click Varnmain.mnuFileExit\nforms\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.faults, "test.vscript:2: the program has been closed\n");
}

TEST_F(Runner, ACancelOnClosingTheMainWindowKeepsTheProgram) {
    EXPECT_EQ(transcriptOf("click frmEveryKind.GuardCommand\nanswer cancel\n"
                           "click Varnmain.mnuFileExit\nprint frmEveryKind.PlainText(0)\n"),
              "question yes-no-cancel \"Save\" \"Save it?\" -> cancel\n"
              "frmEveryKind#1.PlainText(0) = \"first\"\n");
}

TEST_F(Runner, AScriptsEndClosesNothingAndAsksNothing) {
    const Outcome result = runInWindow("click frmEveryKind.GuardCommand\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(main.windows().size(), 1U);
}

TEST_F(Runner, TheStartPictureIsAWindowThatClosesByItsCloseBox) {
    EXPECT_EQ(run("print frmSplash.lblTitle\nclose frmSplash\nforms\n").out,
              "frmSplash#1.lblTitle = \"[1001]\"\nVarnmain \"[1001]\" active\n");
}

TEST_F(Runner, ADialogOfTheMainWindowItselfIsWorkedTheSameWay) {
    EXPECT_EQ(
        run("click Varnmain.mnuAbout\nprint frmAbout.cmdOK\nclick frmAbout.cmdOK\nforms\n").out,
        "show frmAbout#1 \"[1070]\"\nfrmAbout#1.cmdOK = \"[1071]\"\n"
        "Varnmain \"[1001]\" active\n");
}

}  // namespace
}  // namespace varnholt
