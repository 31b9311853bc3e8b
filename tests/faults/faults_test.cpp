// SPDX-License-Identifier: GPL-3.0-or-later
// Every call of the system that a save makes goes wrong once, in every way, and the program is
// killed at each of them: the file is the old one or the new one, complete, every time.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The program at work in a folder of its own, with one fault.
class Faults : public testing::Test {
 protected:
    Faults() {
        for (const char* name : {"work files", "zones", "pumps"})
            fs::create_directory(folder / name);
        write("old.vscript",
              "click Varnmain.NewBorehole\n"
              "type frmBHDesign.INProjectNameText Old\n"
              "pick work files/school.vht\nclick Varnmain.mnuFileSaveAs\n");
        write("save.vscript",
              "pick work files/school.vht\nclick Varnmain.mnuFileOpen\n"
              "type frmBHDesign.INProjectNameText New\n"
              "click Varnmain.mnuFileSave\n");
        EXPECT_EQ(run("old.vscript", "", 0).status, 0);
        old = bytesOf(school());
        // The same but for the name, and for the file's own account of it.
        fresh = old;
        fresh.replace(fresh.find("Old"), 3, "New");
    }

    std::string school() const { return folder / "work files/school.vht"; }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder / name) << text;
    }

    struct Outcome {
        int status = 0;
        bool killed = false;
        std::string transcript;
        std::vector<std::string> calls;
    };

    /// @param call  the number of the call that goes wrong, 0 for none
    Outcome run(const std::string& script, const std::string& fault, int call,
                const std::string& options = "") const {
        fs::remove(folder / "calls");
        const std::string command =
            "cd '" + folder.path() + "' && LD_PRELOAD='" VARNHOLT_FAULTS "' VARNHOLT_FAULT_LOG='" +
            (folder / "calls") + "' VARNHOLT_FAULT_FOLDER='" + (folder / faultyFolder) +
            "' VARNHOLT_FAULT='" + fault + "' VARNHOLT_FAULT_CALL=" + std::to_string(call) +
            " " VARNHOLT_BIN_DIR "/varnholt-script " + script +
            " --program-folder . --locale 409 " + options + " >transcript 2>faults </dev/null";
        const int status = std::system(command.c_str());
        Outcome outcome;
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        // The shell tells of a signal by a status of its own.
        outcome.killed = outcome.status == 128 + 9 || outcome.status == -1;
        outcome.transcript = bytesOf(folder / "transcript");
        std::ifstream calls(folder / "calls");
        for (std::string name; std::getline(calls, name);) outcome.calls.push_back(name);
        return outcome;
    }

    void putOldBack() const { std::ofstream(school(), std::ios::binary) << old; }
    std::vector<std::string> hiddenFiles() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder / "work files"))
            if (entry.path().filename().string().front() == '.')
                names.push_back(entry.path().string());
        return names;
    }

    TemporaryFolder folder;
    std::string faultyFolder = "work files";
    std::string old, fresh;
};

constexpr const char* faults[] = {"EIO", "ENOSPC", "EINTR", "SHORT", "KILL"};

TEST_F(Faults, OfASaveLeaveTheOldOrTheNewFileComplete) {
    const Outcome whole = run("save.vscript", "", 0);
    ASSERT_EQ(whole.status, 0) << whole.transcript;
    ASSERT_EQ(bytesOf(school()), fresh);
    // A save is no save without these; fewer calls would mean that the harness sees nothing.
    for (const char* call : {"open", "write", "fsync", "fchmod", "rename", "close"})
        EXPECT_NE(std::find(whole.calls.begin(), whole.calls.end(), call), whole.calls.end())
            << call;
    int olds = 0, news = 0, kills = 0;
    for (const std::string fault : faults)
        for (std::size_t call = 1; call <= whole.calls.size(); ++call) {
            SCOPED_TRACE(fault + " at " + std::to_string(call) + ", " + whole.calls[call - 1]);
            putOldBack();
            const Outcome outcome = run("save.vscript", fault, static_cast<int>(call));
            const std::string found = bytesOf(school());
            ASSERT_TRUE(found == old || found == fresh) << found.size() << " bytes";
            (found == old ? olds : news) += 1;
            kills += outcome.killed ? 1 : 0;
            if (outcome.killed) continue;
            // What was not saved has been told of.
            if (found == old) {
                EXPECT_NE(outcome.transcript.find("message exclamation"), std::string::npos)
                    << outcome.transcript;
            }
            EXPECT_TRUE(hiddenFiles().empty() || fault != "SHORT");
        }
    EXPECT_GT(olds, 0);
    EXPECT_GT(news, 0);
    EXPECT_EQ(kills, static_cast<int>(whole.calls.size()));
    RecordProperty("calls", static_cast<int>(whole.calls.size()));
    // The next save takes away what the killed ones have left.
    putOldBack();
    EXPECT_EQ(run("save.vscript", "", 0).status, 0);
    for (const std::string& name : hiddenFiles())
        EXPECT_EQ(name.find(".varnholt-save-"), std::string::npos) << name;
}

TEST_F(Faults, OfASaveOfAFileWithSeveralNamesLeaveTheFileOrItsCopy) {
    fs::create_hard_link(school(), folder / "work files/other.vht");
    const Outcome whole = run("save.vscript", "", 0);
    ASSERT_EQ(bytesOf(folder / "work files/other.vht"), fresh);
    for (const std::string fault : faults)
        for (std::size_t call = 1; call <= whole.calls.size(); ++call) {
            SCOPED_TRACE(fault + " at " + std::to_string(call) + ", " + whole.calls[call - 1]);
            for (const std::string& name : hiddenFiles()) fs::remove(name);
            putOldBack();
            run("save.vscript", fault, static_cast<int>(call));
            const std::string found = bytesOf(school());
            bool safe = found == old || found == fresh;
            for (const std::string& name : hiddenFiles())
                safe = safe ||
                       (name.find(".varnholt-kept-") != std::string::npos && bytesOf(name) == old);
            ASSERT_TRUE(safe) << found.size() << " bytes";
            EXPECT_EQ(fs::hard_link_count(school()), 2U);
        }
}

TEST_F(Faults, OfKeepingUnsavedWorkLeaveItCompleteOrAbsent) {
    write("work.vscript",
          "click Varnmain.NewBorehole\n"
          "type frmBHDesign.INProjectNameText Unsaved\n");
    write("next.vscript", "answer yes\nprint frmBHDesign.INProjectNameText\n");
    faultyFolder = "recovery";
    const Outcome whole = run("work.vscript", "", 0, "--recovery");
    ASSERT_FALSE(whole.calls.empty());
    int complete = 0, absent = 0;
    for (const std::string fault : faults)
        for (std::size_t call = 1; call <= whole.calls.size(); ++call) {
            SCOPED_TRACE(fault + " at " + std::to_string(call) + ", " + whole.calls[call - 1]);
            fs::remove_all(folder / "recovery");
            run("work.vscript", fault, static_cast<int>(call), "--recovery");
            const Outcome next = run("next.vscript", "", 0, "--recovery");
            if (next.transcript.find("-> yes") == std::string::npos) {
                ++absent;
                continue;
            }
            ++complete;
            EXPECT_NE(next.transcript.find("INProjectNameText = \"Unsaved\""), std::string::npos)
                << next.transcript;
        }
    EXPECT_GT(complete, 0);
    EXPECT_GT(absent, 0);
}

TEST_F(Faults, OfARecoveryLoseNothing) {
    write("work.vscript",
          "click Varnmain.NewBorehole\n"
          "type frmBHDesign.INProjectNameText Unsaved\n");
    write("next.vscript", "answer yes\nprint frmBHDesign.INProjectNameText\n");
    faultyFolder = "recovery";
    run("work.vscript", "", 0, "--recovery");
    const fs::path kept = folder / "kept";
    fs::copy(folder / "recovery", kept, fs::copy_options::recursive);
    const Outcome whole = run("next.vscript", "", 0, "--recovery");
    ASSERT_NE(whole.transcript.find("\"Unsaved\""), std::string::npos) << whole.transcript;
    for (const std::string fault : faults)
        for (std::size_t call = 1; call <= whole.calls.size(); ++call) {
            SCOPED_TRACE(fault + " at " + std::to_string(call) + ", " + whole.calls[call - 1]);
            fs::remove_all(folder / "recovery");
            fs::copy(kept, folder / "recovery", fs::copy_options::recursive);
            run("next.vscript", fault, static_cast<int>(call), "--recovery");
            const Outcome again = run("next.vscript", "", 0, "--recovery");
            EXPECT_NE(again.transcript.find("\"Unsaved\""), std::string::npos) << again.transcript;
        }
}

TEST_F(Faults, OfANetworkThatHangsEndInTwoSeconds) {
    write("open.vscript", "pick work files/school.vht\nclick Varnmain.mnuFileOpen\nforms\n");
    const Outcome whole = run("open.vscript", "", 0);
    for (std::size_t call = 1; call <= std::min<std::size_t>(whole.calls.size(), 8); ++call) {
        SCOPED_TRACE(whole.calls[call - 1]);
        const auto start = std::chrono::steady_clock::now();
        const Outcome outcome = run("open.vscript", "HANG", static_cast<int>(call));
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2500));
        EXPECT_EQ(outcome.status, 0);
    }
}

}  // namespace
}  // namespace varnholt
