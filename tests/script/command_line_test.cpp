// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/command_line.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace varnholt {
namespace {

CommandLine script(const std::vector<std::string>& arguments) {
    return parseCommandLine(arguments, Program::script);
}

CommandLine windows(const std::vector<std::string>& arguments) {
    return parseCommandLine(arguments, Program::windows);
}

TEST(CommandLine, AnAbsentFileOrAHyphenIsStandardInput) {
    EXPECT_EQ(script({}).script, "-");
    EXPECT_EQ(script({"-"}).script, "-");
    EXPECT_EQ(script({"a b.vscript"}).script, "a b.vscript");
    EXPECT_EQ(windows({}).script, std::nullopt);
    EXPECT_EQ(windows({"--script", "-"}).script, "-");
}

TEST(CommandLine, TakesTheOptionsOfBothProgramsBeforeAndAfterTheFile) {
    const CommandLine line = script(
        {"--program-folder", "/p/q/", "run.vscript", "--locale", "C0A", "--today", "2026-01-15"});
    EXPECT_EQ(line.error, "");
    EXPECT_EQ(line.script, "run.vscript");
    EXPECT_EQ(line.programFolder, "/p/q");
    EXPECT_EQ(line.localeNumber, 0xC0AU);
    EXPECT_EQ(line.today, (Date{2026, 1, 15}));
    EXPECT_EQ(windows({"--locale=0409", "--script=x"}).localeNumber, 0x409U);
    EXPECT_EQ(windows({"--locale=0x409", "--script=x"}).script, "x");
}

TEST(CommandLine, LeavesWhatIsNotGivenToTheProgram) {
    const CommandLine line = script({"x"});
    EXPECT_FALSE(line.programFolder || line.localeNumber || line.today);
    EXPECT_FALSE(line.help || line.version);
}

TEST(CommandLine, ARelativeProgramFolderIsTakenFromTheFolderOfTheStart) {
    EXPECT_EQ(script({"--program-folder", "p/../q"}).programFolder,
              (std::filesystem::current_path() / "q").string());
    EXPECT_EQ(script({"--program-folder", "/"}).programFolder, "/");
}

TEST(CommandLine, AnOptionGivenTwiceHoldsAsGivenLast) {
    const CommandLine line = windows({"--script", "a", "--locale", "409", "--today", "2025-01-01",
                                      "--program-folder", "/a", "--program-folder", "/b", "--today",
                                      "2026-01-15", "--locale", "407", "--script", "b"});
    EXPECT_EQ(line.script, "b");
    EXPECT_EQ(line.localeNumber, 0x407U);
    EXPECT_EQ(line.today, (Date{2026, 1, 15}));
    EXPECT_EQ(line.programFolder, "/b");
}

TEST(CommandLine, TheWindowsTakeFilesToOpen) {
    EXPECT_EQ(windows({"/x/school.vht", "/x/../y.zon"}).files,
              (std::vector<std::string>{"/x/school.vht", "/y.zon"}));
    EXPECT_EQ(windows({"--", "/--odd.vht"}).files, std::vector<std::string>{"/--odd.vht"});
}

TEST(CommandLine, WhatItCannotReadIsAnError) {
    EXPECT_EQ(script({"--fast"}).error, "unknown option --fast");
    EXPECT_EQ(script({"-x"}).error, "unknown option -x");
    EXPECT_EQ(script({"--script", "a"}).error, "unknown option --script");
    EXPECT_EQ(script({"--help=yes"}).error, "unknown option --help");
    EXPECT_EQ(script({"a", "b"}).error, "more than one script: b");
    EXPECT_EQ(script({"--locale"}).error, "--locale needs a value");
    EXPECT_EQ(script({"--locale", "english"}).error, "english is not a locale number such as 409");
    EXPECT_EQ(script({"--locale", ""}).error, " is not a locale number such as 409");
    EXPECT_EQ(script({"--today", "15.1.2026"}).error,
              "15.1.2026 is not a date of the form YYYY-MM-DD");
    EXPECT_EQ(script({"--today", "#2026-01-15#"}).error,
              "#2026-01-15# is not a date of the form YYYY-MM-DD");
    EXPECT_EQ(script({"--today", "0000-01-01"}).error,
              "0000-01-01 is not a date of the form YYYY-MM-DD");
    EXPECT_EQ(script({"--today", "2026-1-5"}).error,
              "2026-1-5 is not a date of the form YYYY-MM-DD");
    EXPECT_EQ(script({"--program-folder", ""}).error, "--program-folder needs a folder");
}

TEST(CommandLine, HelpNamesEveryOption) {
    EXPECT_TRUE(script({"--help"}).help);
    EXPECT_TRUE(windows({"--version"}).version);
    for (const Program program : {Program::script, Program::windows})
        for (const char* option :
             {"--program-folder", "--locale", "--today", "--recovery", "--help", "--version"})
            EXPECT_NE(usageOf(program).find(option), std::string::npos) << option;
    EXPECT_NE(usageOf(Program::windows).find("--script FILE"), std::string::npos);
    EXPECT_EQ(versionOf(Program::script).substr(0, 16), "varnholt-script ");
}

}  // namespace
}  // namespace varnholt
