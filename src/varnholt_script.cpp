// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>
#include <memory>

#include "app/application.h"
#include "basis/date.h"
#include "basis/system/files.h"
#include "script/command_line.h"
#include "script/form_driver.h"
#include "script/script_runner.h"
#include "tools/locales.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

int runScript(const CommandLine& line, std::istream& input) {
    const InstalledFiles installed = installedFiles();
    const std::string folder = line.programFolder.value_or(userProgramFolder());
    if (!line.programFolder) fillProgramFolder(folder, installed);

    Transcript transcript(std::cout);
    ScriptPlatform platform(transcript, folder, line.today.value_or(dateOfToday()));
    Application application(
        platform, {folder, installed.resources, line.localeNumber.value_or(platformLocale()),
                   line.today.has_value()});
    application.reports().onShown = [&transcript](const auto& report) {
        transcript.line(toldReport(report->object, report->caption));
    };
    application.start();

    FormDriver driver(application.main());
    ScriptReader reader(input, *line.script);
    ScriptRunner runner(application.main(), platform, driver, transcript, reader, std::cerr);
    runner.setReports(&application.reports());
    runner.setAfterLine([&] { application.settlePages(); });
    return runner.run();
}

int usageFault(const std::string& what) {
    std::cerr << "varnholt-script: " << what << '\n';
    return static_cast<int>(ScriptStatus::badLine);
}

int run(const CommandLine& line) {
    if (!line.error.empty()) return usageFault(line.error);
    if (line.help || line.version) {
        std::cout << (line.help ? usageOf(Program::script) : versionOf(Program::script));
        return 0;
    }
    if (*line.script == "-") return runScript(line, std::cin);
    const std::unique_ptr<std::istream> file = openInput(*line.script);
    return file ? runScript(line, *file) : usageFault(*line.script + " cannot be read");
}

}  // namespace
}  // namespace varnholt

int main(int count, char** arguments) {
    using namespace varnholt;
    std::ios::sync_with_stdio(false);
    try {
        return run(parseCommandLine({arguments + 1, arguments + count}, Program::script));
    } catch (const std::exception& exception) {
        std::cerr << "varnholt-script: " << exception.what() << '\n';
        return static_cast<int>(ScriptStatus::programFault);
    }
}
