// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "scripts/script_run.h"

namespace varnholt {
namespace {

/// varnholt-script as it is called from a shell.
class Program : public testing::Test {
 protected:
    /// @param arguments the rest of the command line, redirections included
    ScriptOutcome call(const std::string& arguments) const {
        const std::string out = temporary / "out";
        const std::string faults = temporary / "faults";
        const std::string command = "cd '" + temporary.path() + "' && HOME='" + temporary.path() +
                                    "' XDG_DATA_HOME= " + VARNHOLT_BIN_DIR "/varnholt-script " +
                                    arguments + " >'" + out + "' 2>'" + faults + "'";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, wholeFile(out), wholeFile(faults)};
    }

    /// The call ends with the status of a script that cannot be run, and says why.
    void expectFault(const std::string& arguments, const std::string& fault) const {
        const ScriptOutcome outcome = call(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.faults, fault + "\n") << arguments;
    }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(temporary / name) << text;
    }

    TemporaryFolder temporary;
};

const std::string printUnits = "print Varnmain.Metric.checked\n";

TEST_F(Program, ReadsAFileOrStandardInput) {
    write("units.vscript", printUnits);
    const std::string expected = "Varnmain.Metric.checked = false\n";
    const std::string options = " --locale 409 --program-folder . ";
    EXPECT_EQ(call("units.vscript" + options).transcript, expected);
    EXPECT_EQ(call(options + "< units.vscript").transcript, expected);
    EXPECT_EQ(call("-" + options + "< units.vscript").transcript, expected);
}

TEST_F(Program, NamesTheFileAndTheLineOfAFault) {
    write("bad.vscript", "# first\ndance\n");
    expectFault("bad.vscript --program-folder .", "bad.vscript:2: dance is no command");
    expectFault("--program-folder . < bad.vscript", "-:2: dance is no command");
}

TEST_F(Program, AnUnknownOptionAndAMissingFileAreStatusTwo) {
    expectFault("--fast </dev/null", "varnholt-script: unknown option --fast");
    expectFault("missing.vscript", "varnholt-script: missing.vscript cannot be read");
    EXPECT_EQ(call(".").status, 2);
}

TEST_F(Program, IsStoppedByNoScriptThatNeverEnds) {
    ASSERT_EQ(::mkfifo(std::string(temporary / "pipe.vscript").c_str(), 0600), 0);
    EXPECT_EQ(call("pipe.vscript").status, 2);
    expectFault("/dev/zero", "varnholt-script: /dev/zero cannot be read");
    expectFault("--program-folder . </dev/zero", "-:1: the line is longer than 16 MB");
}

TEST_F(Program, TellsItsOptionsAndItsVersion) {
    const ScriptOutcome help = call("--help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.transcript.find("--program-folder"), std::string::npos);
    const ScriptOutcome version = call("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.transcript.substr(0, 16), "varnholt-script ");
}

TEST_F(Program, TheLocaleSettlesTheUnitsToStartWith) {
    write("units.vscript", printUnits);
    EXPECT_EQ(call("units.vscript --program-folder . --locale 407").transcript,
              "Varnmain.Metric.checked = true\n");
    EXPECT_EQ(call("units.vscript --program-folder . --locale 407 --locale 409").transcript,
              "Varnmain.Metric.checked = false\n");
}

TEST_F(Program, AProgramFolderIsUsedAsItStandsAndTheUsersOwnIsFilled) {
    std::filesystem::create_directory(temporary / "own");
    EXPECT_EQ(call("--program-folder own </dev/null").status, 0);
    EXPECT_TRUE(std::filesystem::is_empty(temporary / "own"));
    EXPECT_FALSE(std::filesystem::exists(temporary / ".local"));
    EXPECT_EQ(call("</dev/null").status, 0);
    EXPECT_TRUE(std::filesystem::exists(temporary / ".local/share/varnholt/pumps/PumpList.vht"));
}

TEST_F(Program, TheProgramFolderIsKnownByItsFullPath) {
    write("folder.vscript", "value Varnmain.MainDirectory\n");
    EXPECT_EQ(call("folder.vscript --program-folder ./own/").transcript,
              "value Varnmain.MainDirectory = \"" + (temporary / "own") + "\"\n");
}

/// The exit status of a line of a shell with the program in place of PROGRAM, and what it says to
/// standard error.
class Failure : public Program {
 protected:
    ScriptOutcome shell(const std::string& line) const {
        const std::string faults = temporary / "faults";
        const std::string command = "cd '" + temporary.path() + "' && ( " +
                                    replaced(line, "PROGRAM", VARNHOLT_BIN_DIR "/varnholt-script") +
                                    " ) 2>'" + faults + "'";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, {}, wholeFile(faults)};
    }
};

TEST_F(Failure, ToWriteTheTranscriptIsStatusOne) {
    write("units.vscript", printUnits);
    const ScriptOutcome full = shell("PROGRAM --program-folder . units.vscript >/dev/full");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(full.faults, "units.vscript:1: the transcript cannot be written\n");
    EXPECT_EQ(shell("PROGRAM --help >/dev/full").status, 1);
    EXPECT_EQ(shell("PROGRAM --program-folder . units.vscript >&-").status, 1);
    write("status", "");
    // By then nobody reads any more.
    shell("{ sleep 0.3; PROGRAM --program-folder . units.vscript; echo $? >status; } | true");
    EXPECT_EQ(wholeFile(temporary / "status"), "1\n");
}

TEST_F(Failure, OfAllStandardStreamsHarmsNoFile) {
    write("save.vscript",
          "click Varnmain.NewBorehole\npick school.vht\nclick Varnmain.mnuFileSaveAs\n"
          "print frmBHDesign.INProjectNameText\nnonsense\n");
    // The fault of the last line has nowhere to go, and goes into no file.
    EXPECT_EQ(shell("PROGRAM --program-folder . save.vscript <&- >out 2>&-").status, 2);
    EXPECT_EQ(shell("PROGRAM --program-folder . save.vscript <&- >&- 2>&-").status, 1);
    const std::string saved = wholeFile(temporary / "school.vht");
    EXPECT_TRUE(saved.starts_with("Varnholt Data File Version ")) << saved.substr(0, 80);
    EXPECT_EQ(saved.find("nonsense"), std::string::npos);
}

TEST_F(Failure, OfTheHomeIsOneSentenceWithThePath) {
    const std::string below = ".local/share/varnholt";
    const ScriptOutcome unset = shell("env -u HOME -u XDG_DATA_HOME PROGRAM </dev/null");
    EXPECT_EQ(unset.status, 1);
    EXPECT_EQ(unset.faults, "varnholt-script: the program's folder ~/" + below +
                                " cannot be found, since HOME is not set\n");
    const ScriptOutcome relative = shell("env -u XDG_DATA_HOME HOME=some/where PROGRAM </dev/null");
    EXPECT_EQ(relative.status, 1);
    EXPECT_NE(relative.faults.find("is no full path: some/where"), std::string::npos);
    write("file", "");
    const ScriptOutcome file = shell("env -u XDG_DATA_HOME HOME=$PWD/file PROGRAM </dev/null");
    EXPECT_EQ(file.status, 1);
    EXPECT_EQ(file.faults,
              "varnholt-script: Path not found: " + (temporary / ("file/" + below)) + "\n");
}

TEST_F(Failure, OfTheCurrentFolderIsToldOnlyWhereItMatters) {
    const std::string gone = "mkdir gone && cd gone && rmdir ../gone && ";
    EXPECT_EQ(shell(gone + "PROGRAM --program-folder / </dev/null").status, 0);
    const ScriptOutcome relative = shell(gone + "PROGRAM --program-folder own </dev/null");
    EXPECT_EQ(relative.status, 2);
    EXPECT_EQ(relative.faults,
              "varnholt-script: own cannot be found, since the current folder is gone\n");
}

const std::string newer =
    "Yes opens it as changed, No discards it, Cancel keeps it for the next start.";

TEST_F(Program, KeepsUnsavedWorkOfAScriptThatAsksForIt) {
    for (const char* name : {"work files", "zones", "pumps"})
        std::filesystem::create_directory(temporary / name);
    write("first.vscript",
          "click Varnmain.NewBorehole\npick school.vht\nclick Varnmain.mnuFileSaveAs\n"
          "type frmBHDesign.INProjectNameText Unsaved\n");
    write("next.vscript",
          "# offered before the first line that is no answer\nanswer yes\n"
          "print frmBHDesign.INProjectNameText\n");
    write("plain.vscript", printUnits);
    const std::string options = " --program-folder . --locale 409 ";
    EXPECT_EQ(call("first.vscript --recovery" + options).status, 0);
    // Nobody is asked who has not asked for it.
    EXPECT_EQ(call("plain.vscript" + options).transcript, "Varnmain.Metric.checked = false\n");
    const std::string offered =
        "question yes-no-cancel \"Unsaved Work\" \"school.vht, changed TIME, not saved.\\n\\nIts "
        "file on the disk is older: TIME.\\n\\n" +
        newer +
        "\" -> yes\n"
        "show frmBHDesign#1 \"Borehole Design Project - school.vht\"\n"
        "frmBHDesign#1.INProjectNameText = \"Unsaved\"\n";
    // It has not been saved the second time either.
    for (int start = 0; start < 2; ++start)
        EXPECT_EQ(call("next.vscript --recovery" + options).transcript, offered);
    write("refuse.vscript", "answer no\nforms\n");
    EXPECT_EQ(call("refuse.vscript --recovery" + options).status, 0);
    EXPECT_EQ(call("plain.vscript --recovery" + options).status, 0);
    EXPECT_FALSE(std::filesystem::exists(temporary / "recovery"));
}

TEST_F(Program, LinksRecoveredDesignsWithTheRecoveredLoadsThatTheyHad) {
    for (const char* name : {"work files", "zones", "pumps"})
        std::filesystem::create_directory(temporary / name);
    // Two designs of one building, whose zones were never saved.
    write("first.vscript",
          "click Varnmain.mnuZoneManage\nclick frmZoneManage.LONewCommand\n"
          "type frmZoneManage.LOGainsText(1) 36\n"
          "click Varnmain.NewBorehole\nclick Varnmain.mnuLink\n"
          "click Varnmain.NewBorehole\nclick Varnmain.mnuLink\n"
          "value frmBHDesign#1.linkType\nvalue frmBHDesign#2.linkType\n");
    write("next.vscript",
          "answer yes\nanswer yes\nanswer yes\n"
          "value frmBHDesign#1.linkType\nvalue frmBHDesign#2.linkType\n"
          "value frmBHDesign#2.ZoneList(0).gains(1,0)\n");
    const std::string options = " --program-folder . --locale 409 --recovery";
    const std::string linked =
        "value frmBHDesign#1.linkType = \"frmZoneManage\"\n"
        "value frmBHDesign#2.linkType = \"frmZoneManage\"\n";
    const ScriptOutcome first = call("first.vscript" + options);
    EXPECT_TRUE(first.transcript.ends_with(linked)) << first.transcript << first.faults;
    const ScriptOutcome next = call("next.vscript" + options);
    EXPECT_TRUE(
        next.transcript.ends_with(linked + "value frmBHDesign#2.ZoneList(0).gains(1,0) = 36\n"))
        << next.transcript << next.faults;
    EXPECT_EQ(next.transcript.find("without its loads"), std::string::npos) << next.transcript;
}

TEST_F(Program, KeepsNothingOfAScriptThatDoesNotAskForIt) {
    write("first.vscript",
          "click Varnmain.NewBorehole\ntype frmBHDesign.INProjectNameText Unsaved\n");
    EXPECT_EQ(call("first.vscript --program-folder .").status, 0);
    EXPECT_FALSE(std::filesystem::exists(temporary / "recovery"));
}

TEST_F(Failure, IsNoneWhereAFileIsOpenElsewhere) {
    write("make.vscript",
          "click Varnmain.NewBorehole\npick school.vht\nclick Varnmain.mnuFileSaveAs\n");
    ASSERT_EQ(shell("PROGRAM --program-folder . make.vscript >made").status, 0);
    write("second.vscript",
          "answer cancel\npick school.vht\nclick Varnmain.mnuFileOpen\n"
          "answer no\npick school.vht\nclick Varnmain.mnuFileOpen\n"
          "print frmBHDesign.NoticeLabel\nvalue frmBHDesign.FileName\n"
          "answer no\nclose frmBHDesign\n"
          "answer yes\npick school.vht\nclick Varnmain.mnuFileOpen\n"
          "value frmBHDesign.FileName\nvalue frmBHDesign.currentFileCheck\n");
    write("hold.sh",
          replaced("set -e\nmkfifo in\n"
                   "PROGRAM --program-folder . --locale 409 --recovery - <in >held &\n"
                   "exec 3>in\n"
                   "printf 'pick school.vht\\nclick Varnmain.mnuFileOpen\\n' >&3\n"
                   "printf 'value frmBHDesign.FileName\\n' >&3\n"
                   "until grep -q '^value' held; do sleep 0.05; done\n"
                   "PROGRAM --program-folder . --locale 409 --recovery second.vscript >out\n"
                   "exec 3>&-\nwait\n",
                   "PROGRAM", VARNHOLT_BIN_DIR "/varnholt-script"));
    const ScriptOutcome held = shell("timeout 20 sh hold.sh");
    ASSERT_EQ(held.status, 0) << held.faults;
    const std::string out = wholeFile(temporary / "out");
    const std::string asked =
        "question yes-no-cancel \"File Open Elsewhere\" \"school.vht is open already: on ";
    for (const char* answer : {"cancel", "no", "yes"})
        EXPECT_NE(out.find(std::string("will ask for a name.\" -> ") + answer), std::string::npos)
            << out;
    EXPECT_NE(out.find(asked), std::string::npos) << out;
    // Opened to be read, and then as a copy.
    EXPECT_NE(out.find("NoticeLabel = \"school.vht is open in another program: saving will ask for "
                       "a name.\"\nvalue frmBHDesign#1.FileName = \"school.vht\""),
              std::string::npos)
        << out;
    EXPECT_TRUE(
        out.ends_with("value frmBHDesign#1.FileName = \"\"\n"
                      "value frmBHDesign#1.currentFileCheck = false\n"))
        << out;
    for (const auto& entry : std::filesystem::directory_iterator(temporary.path()))
        EXPECT_EQ(entry.path().string().find("varnholt-lock"), std::string::npos) << entry.path();
}

TEST_F(Failure, BySignalLeavesNoMarkBesideAnOpenFile) {
    write("hold.sh", replaced("mkfifo in\n"
                              "for signal in TERM HUP; do\n"
                              "  PROGRAM --program-folder . --locale 409 --recovery - <in >held &\n"
                              "  exec 3>in\n"
                              "  printf 'click Varnmain.NewBorehole\\npick %s.vht\\n' $signal >&3\n"
                              "  printf 'click Varnmain.mnuFileSaveAs\\n' >&3\n"
                              "  printf 'value frmBHDesign.FileName\\n' >&3\n"
                              "  until grep -q '^value' held; do sleep 0.05; done\n"
                              "  ls -A | grep -c varnholt-lock\n"
                              "  kill -$signal $!\n  wait $!\n  echo $?\n"
                              "  ls -A | grep -c varnholt-lock\n"
                              "  exec 3>&-\n  rm held\n"
                              "done >out\n",
                              "PROGRAM", VARNHOLT_BIN_DIR "/varnholt-script"));
    const ScriptOutcome held = shell("timeout 20 sh hold.sh");
    ASSERT_EQ(held.status, 0) << held.faults;
    // One mark while the file is open, the end by the signal (128 and its number), no mark.
    EXPECT_EQ(wholeFile(temporary.path("out")), "1\n143\n0\n1\n129\n0\n");
}

}  // namespace
}  // namespace varnholt
