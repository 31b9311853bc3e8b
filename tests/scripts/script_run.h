// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "basis/temporary_folder.h"

namespace varnholt {

inline std::string wholeFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The text with every occurrence of one part replaced.
inline std::string replaced(std::string text, const std::string& part, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += by.size())
        text.replace(at, part.size(), by);
    return text;
}

/// What a run of a script gave.
struct ScriptOutcome {
    int status = 0;
    /// With "PROGRAM" for the program's folder, which is another one each time.
    std::string transcript;
    std::string faults;
};

/// One script of tests/scripts with the transcript that it must give.
///
/// It runs in a new program folder with the catalogue and the examples of loads that the program
/// ships with, and with the files of tests/scripts/NAME, where there is such a folder.
class SystemScript {
 public:
    explicit SystemScript(const std::string& name)
        : script_(folder() / (name + ".vscript")),
          expected_(folder() / (name + ".expected")),
          files_(folder() / name) {}

    static std::filesystem::path folder() { return VARNHOLT_SOURCE_DIR "/tests/scripts"; }

    std::string expectedTranscript() const { return wholeFile(expected_); }

    /// 0, or the number of a line "# exit: N" before the first command.
    int expectedStatus() const {
        std::ifstream file(script_);
        const std::string mark = "# exit: ";
        for (std::string line; std::getline(file, line) && (line.empty() || line[0] == '#');)
            if (line.substr(0, mark.size()) == mark) return std::stoi(line.substr(mark.size()));
        return 0;
    }

    /// @param program the program and its options, without those that every run has
    ScriptOutcome run(const std::vector<std::string>& program) const {
        const TemporaryFolder temporary;
        const std::filesystem::path folder = temporary / "program";
        fill(folder);
        const std::string out = temporary / "out";
        const std::string faults = temporary / "faults";
        std::string command = "cd '" + temporary.path() + "' &&";
        for (const std::string& word : program) command += " '" + word + "'";
        command += " '" + script_.string() + "' --program-folder '" + folder.string() +
                   "' --today 2026-01-15 --locale 409 >'" + out + "' 2>'" + faults + "' </dev/null";
        const int status = std::system(command.c_str());
        ScriptOutcome outcome;
        outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        outcome.transcript = replaced(wholeFile(out), folder.string(), "PROGRAM");
        outcome.faults = wholeFile(faults);
        return outcome;
    }

 private:
    void fill(const std::filesystem::path& program) const {
        namespace fs = std::filesystem;
        for (const char* name : {"work files", "zones", "pumps", "Data", "OnlineHelp"})
            fs::create_directories(program / name);
        fs::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", program / "pumps",
                 fs::copy_options::recursive);
        fs::copy(VARNHOLT_RESOURCE_DIR "/tables", program / "tables", fs::copy_options::recursive);
        fs::copy(VARNHOLT_RESOURCE_DIR "/help", program / "OnlineHelp");
        for (const char* name : {"school-south.gt1", "school-south.gth", "small-office.csv"})
            fs::copy(fs::path(VARNHOLT_SOURCE_DIR "/examples") / name, program / "zones");
        // A whole building, for scripts that need one.
        fs::copy(VARNHOLT_SOURCE_DIR "/examples/school-south.zon", program / "zones");
        fs::copy(VARNHOLT_SOURCE_DIR "/examples/school-south.vht", program / "work files");
        if (fs::is_directory(files_))
            fs::copy(files_, program,
                     fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }

    std::filesystem::path script_, expected_, files_;
};

/// The names of all scripts, in their order.
inline std::vector<std::string> systemScripts() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SystemScript::folder()))
        if (entry.path().extension() == ".vscript") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

inline std::string scriptTestName(const testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; }, '_');
    return name;
}

}  // namespace varnholt
