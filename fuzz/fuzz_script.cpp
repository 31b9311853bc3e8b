// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a script over the whole program. A script may fail, the program may not.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>

#include "app/application.h"
#include "script/form_driver.h"
#include "script/script_runner.h"
#include "tools/program_folder.h"

using namespace varnholt;

namespace {

constexpr std::size_t longestScript = 4000;
constexpr int mostLines = 200;

/// One program folder for all runs of the process: what one script leaves, the next one finds.
std::string programFolder() {
    static const std::string folder = [] {
        std::string name = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        name += "/program";
        fillProgramFolder(name, installedFiles());
        return name;
    }();
    return folder;
}

/// Without the lines that could write outside the program's folder.
std::string harmless(const std::string& script) {
    std::istringstream lines(script);
    std::string kept;
    int count = 0;
    for (std::string line; std::getline(lines, line) && count < mostLines; ++count) {
        const bool names = line.find("pick") != std::string::npos;
        const bool outside = line.find("..") != std::string::npos ||
                             line.find(" /") != std::string::npos ||
                             line.find("\t/") != std::string::npos;
        const bool writes =
            line.find("save") != std::string::npos || line.find("shot") != std::string::npos;
        if (!writes && !(names && outside)) kept += line + "\n";
    }
    return kept;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > longestScript) return 0;
    std::ostringstream out, faults;
    Transcript transcript(out);
    ScriptPlatform platform(transcript, programFolder(), Date{2026, 1, 15});
    Application application(platform, {programFolder(), installedFiles().resources, 0x409});
    application.start();
    FormDriver driver(application.main());
    std::istringstream input(harmless({reinterpret_cast<const char*>(data), size}));
    ScriptReader reader(input, "fuzz");
    ScriptRunner runner(application.main(), platform, driver, transcript, reader, faults);
    if (runner.run() == static_cast<int>(ScriptStatus::programFault)) {
        std::fputs(faults.str().c_str(), stderr);
        std::abort();
    }
    return 0;
}
