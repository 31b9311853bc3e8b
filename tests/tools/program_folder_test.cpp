// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/program_folder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/temporary_names.h"
#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class ProgramFolder : public testing::Test {
 protected:
    ProgramFolder() {
        scratch.write("from/pumps/PumpList.vht", "index");
        scratch.write("from/help/index.html", "help");
        scratch.write("from/help/vht.qch", "compiled");
        scratch.write("from/tables/english/FluidTables.html", "fluids");
        scratch.write("from/examples/office.zon", "zones");
        scratch.write("from/examples/office.vht", "project");
        scratch.write("from/examples/school.gt1", "months");
        scratch.write("from/examples/office.csv", "hours");
        scratch.write("from/examples/tour.vscript", "script");
    }
    std::string folder(const std::string& name) const {
        return scratch.path("data/varnholt/" + name);
    }

    ScratchFolder scratch;
    InstalledFiles from{scratch.path("from"), scratch.path("from/examples")};
};

TEST_F(ProgramFolder, IsFilledOnTheFirstStart) {
    fillProgramFolder(folder(""), from);
    EXPECT_EQ(readWholeFile(folder("pumps/PumpList.vht")), "index");
    EXPECT_EQ(readWholeFile(folder("OnlineHelp/index.html")), "help");
    EXPECT_EQ(readWholeFile(folder("OnlineHelp/vht.qch")), "compiled");
    EXPECT_EQ(readWholeFile(folder("tables/english/FluidTables.html")), "fluids");
    EXPECT_EQ(readWholeFile(folder("zones/office.zon")), "zones");
    EXPECT_EQ(readWholeFile(folder("work files/office.vht")), "project");
    EXPECT_EQ(readWholeFile(folder("zones/school.gt1")), "months");
    EXPECT_EQ(readWholeFile(folder("zones/office.csv")), "hours");
    EXPECT_TRUE(fs::is_directory(folder("Data")));
    EXPECT_FALSE(fs::exists(folder("zones/tour.vscript")));
}

TEST_F(ProgramFolder, IsLeftAloneOnLaterStarts) {
    fillProgramFolder(scratch.path("own"), from);
    fs::remove_all(scratch.path("own/pumps"));
    fs::remove_all(scratch.path("own/tables"));
    scratch.write("own/zones/office.zon", "changed");
    fillProgramFolder(scratch.path("own"), from);
    EXPECT_FALSE(fs::exists(scratch.path("own/pumps")));
    EXPECT_FALSE(fs::exists(scratch.path("own/tables")));
    EXPECT_EQ(readWholeFile(scratch.path("own/zones/office.zon")), "changed");
}

TEST_F(ProgramFolder, OfAnOlderProgramIsGivenTheTablesAndTheHelpOnce) {
    scratch.write("own/zones/office.zon", "mine");
    scratch.write("own/OnlineHelp/index.html", "older help");
    fillProgramFolder(scratch.path("own"), from);
    EXPECT_EQ(readWholeFile(scratch.path("own/tables/english/FluidTables.html")), "fluids");
    EXPECT_EQ(readWholeFile(scratch.path("own/OnlineHelp/vht.qch")), "compiled");
    // What stands there is the user's, and what he does not want does not come back.
    EXPECT_EQ(readWholeFile(scratch.path("own/OnlineHelp/index.html")), "older help");
    EXPECT_FALSE(fs::exists(scratch.path("own/pumps")));
    fs::remove_all(scratch.path("own/tables"));
    fillProgramFolder(scratch.path("own"), from);
    EXPECT_FALSE(fs::exists(scratch.path("own/tables")));
}

TEST_F(ProgramFolder, OfAnOlderProgramThatMayNotBeWrittenToStaysAsItIs) {
    scratch.write("own/zones/office.zon", "mine");
    // A file stands where the folder would be made, which no right helps against.
    scratch.write("own/tables", "a file");
    EXPECT_NO_THROW(fillProgramFolder(scratch.path("own"), from));
    EXPECT_EQ(readWholeFile(scratch.path("own/tables")), "a file");
    EXPECT_EQ(readWholeFile(scratch.path("own/zones/office.zon")), "mine");
}

TEST_F(ProgramFolder, HasItsFoldersEvenWhenNothingIsInstalled) {
    fillProgramFolder(scratch.path("own"), {scratch.path("nothing"), scratch.path("nothing")});
    for (const char* name : {"work files", "zones", "pumps", "Data", "OnlineHelp"})
        EXPECT_TRUE(fs::is_directory(scratch.path("own") + "/" + name)) << name;
}

TEST_F(ProgramFolder, CopiesOfReadOnlyFilesCanBeWritten) {
    fs::permissions(scratch.path("from/examples/office.zon"), fs::perms::owner_read);
    fillProgramFolder(scratch.path("own"), from);
    const fs::perms copied = fs::status(scratch.path("own/zones/office.zon")).permissions();
    EXPECT_NE(copied & fs::perms::owner_write, fs::perms::none);
}

TEST_F(ProgramFolder, ThatCannotBeMadeIsAnErrorAndLeavesNothingBehind) {
    scratch.write("file", "a file where the folder should be");
    try {
        fillProgramFolder(scratch.path("file/varnholt"), from);
        FAIL() << "a folder below a file was made";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 76);
        EXPECT_NE(error.description().find(scratch.path("file/varnholt")), std::string::npos);
    }
    EXPECT_THROW(fillProgramFolder(scratch.path("file"), from), RunTimeError);
    for (const auto& entry : fs::directory_iterator(scratch.path()))
        EXPECT_EQ(entry.path().string().find(".varnholt-save-"), std::string::npos) << entry.path();
}

TEST_F(ProgramFolder, TakesAwayWhatAStartHasLeftThatWasKilled) {
    const std::string data = scratch.path("data");
    fs::create_directories(data);
    const pid_t child = ::fork();
    if (child == 0) {
        fs::create_directories(temporaryPath(data) + "/zones");
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_FALSE(fs::is_empty(data));
    fillProgramFolder(folder(""), from);
    EXPECT_EQ(std::distance(fs::directory_iterator(data), fs::directory_iterator()), 1);
}

TEST(InstalledFiles, LieBesideTheExecutablesFolder) {
    const ScratchFolder scratch;
    fs::create_directories(scratch.path("usr/share/varnholt"));
    const InstalledFiles files = installedFilesOf(scratch.path("usr/bin/varnholt"));
    EXPECT_EQ(files.resources, scratch.path("usr/share/varnholt"));
    EXPECT_EQ(files.examples, scratch.path("usr/share/varnholt/examples"));
    EXPECT_EQ(files.languageFolder(), scratch.path("usr/share/varnholt/language"));
}

TEST(InstalledFiles, OfABuiltProgramLieWhereTheBuildMadeThem) {
    EXPECT_EQ(installedFiles().resources, VARNHOLT_RESOURCE_DIR);
    EXPECT_TRUE(fs::equivalent(installedFiles().examples, VARNHOLT_SOURCE_DIR "/examples"));
}

TEST(UserProgramFolder, FollowsTheDesktopsFolderForData) {
    const char* old = std::getenv("XDG_DATA_HOME");
    const std::string before = old != nullptr ? old : "";
    setenv("XDG_DATA_HOME", "/somewhere/data", 1);
    EXPECT_EQ(userProgramFolder(), "/somewhere/data/varnholt");
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(userProgramFolder(), std::string(std::getenv("HOME")) + "/.local/share/varnholt");
    if (old != nullptr) setenv("XDG_DATA_HOME", before.c_str(), 1);
}

TEST(UserProgramFolder, IsNoneWhereTheHomeIsNoFullPath) {
    const char* oldData = std::getenv("XDG_DATA_HOME");
    const std::string data = oldData != nullptr ? oldData : "";
    const std::string home = std::getenv("HOME");
    unsetenv("XDG_DATA_HOME");
    for (const char* wrong : {"", "relative/home"}) {
        setenv("HOME", wrong, 1);
        EXPECT_THROW(userProgramFolder(), std::runtime_error) << wrong;
    }
    unsetenv("HOME");
    EXPECT_THROW(userProgramFolder(), std::runtime_error);
    setenv("HOME", home.c_str(), 1);
    if (oldData != nullptr) setenv("XDG_DATA_HOME", data.c_str(), 1);
}

}  // namespace
}  // namespace varnholt
