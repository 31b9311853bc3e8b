// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QHashSeed>
#include <iostream>

#include "basis/system/process.h"
#include "desktop/windows/program.h"
#include "frame/program_version.h"
#include "script/command_line.h"
#include "script/script_fault.h"

namespace varnholt {
namespace {

int run(int& count, char** arguments) {
    const CommandLine line = parseCommandLine({arguments + 1, arguments + count}, Program::windows);
    if (!line.error.empty()) {
        std::cerr << "varnholt: " << line.error << '\n';
        return static_cast<int>(ScriptStatus::badLine);
    }
    if (line.help || line.version) {
        std::cout << (line.help ? usageOf(Program::windows) : versionOf(Program::windows));
        return 0;
    }
    // The same report makes the same file: nothing in it follows the order of a hash.
    QHashSeed::setDeterministicGlobalSeed();
    if (line.script) prepareForScript();
    QCoreApplication::setApplicationName(QStringLiteral("varnholt"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(programVersion));
    QGuiApplication::setDesktopFileName(QStringLiteral("varnholt"));
    QApplication application(count, arguments);
    return line.script ? runScriptInWindows(application, line) : runForPerson(application, line);
}

}  // namespace
}  // namespace varnholt

int main(int count, char** arguments) {
    varnholt::secureStandardStreams();
    try {
        const int status = varnholt::run(count, arguments);
        return std::cout.flush() ? status : static_cast<int>(varnholt::ScriptStatus::programFault);
    } catch (const std::exception& exception) {
        std::cerr << "varnholt: " << exception.what() << '\n';
        return static_cast<int>(varnholt::ScriptStatus::programFault);
    }
}
