// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <signal.h>

#include <QProcess>
#include <chrono>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include "scripts/script_run.h"

namespace varnholt {

inline const std::string programWithWindows = VARNHOLT_BIN_DIR "/varnholt";

/// The real program with its windows, worked line by line over its standard input.
class StartedProgram {
 public:
    /// @param program the executable file
    /// @param options besides those that every run has
    explicit StartedProgram(const std::string& program, const QStringList& options = {}) {
        const std::filesystem::path folder = temporary_ / "program";
        for (const char* name : {"work files", "zones", "Data", "OnlineHelp"})
            std::filesystem::create_directories(folder / name);
        std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder / "pumps",
                              std::filesystem::copy_options::recursive);
        std::filesystem::copy(VARNHOLT_RESOURCE_DIR "/tables", folder / "tables",
                              std::filesystem::copy_options::recursive);
        std::filesystem::copy(VARNHOLT_RESOURCE_DIR "/help", folder / "OnlineHelp");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("XDG_CACHE_HOME"),
                           QString::fromStdString(temporary_.path()));
        // What the address sanitizer keeps apart after its release would count as in use.
        add(environment, "ASAN_OPTIONS",
            ":quarantine_size_mb=1:thread_local_quarantine_size_kb=64");
        if (options.contains(QStringLiteral("web"))) leaveTheWebEngineAlone(environment);
        process_.setProcessEnvironment(environment);
        // Whoever runs the tests in the background ignores this signal, and what they start too.
        process_.setChildProcessModifier([] { ::signal(SIGINT, SIG_DFL); });
        process_.start(
            QString::fromStdString(program),
            QStringList{QStringLiteral("--script"), QStringLiteral("-"), QStringLiteral("--locale"),
                        QStringLiteral("409"), QStringLiteral("--program-folder"),
                        QString::fromStdString(folder.string())} +
                options);
        EXPECT_TRUE(process_.waitForStarted(10000)) << program;
    }
    ~StartedProgram() {
        process_.kill();
        process_.waitForFinished(10000);
    }
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    std::filesystem::path folder() const { return temporary_ / "program"; }

    /// Gives the program these lines and waits until it has run them; what it has written, with
    /// "PROGRAM" for its folder.
    std::string run(const std::string& lines) {
        process_.write(QByteArray::fromStdString(lines + "\nprint Varnmain.mnuHelp\n"));
        std::string transcript;
        for (;;) {
            if (!process_.canReadLine() && !process_.waitForReadyRead(30000)) {
                ADD_FAILURE() << transcript << process_.readAllStandardError().toStdString();
                return transcript;
            }
            const std::string told = process_.readLine().toStdString();
            if (told.starts_with("Varnmain.mnuHelp = "))
                return replaced(transcript, folder().string(), "PROGRAM");
            transcript += told;
        }
    }

    /// Gives the program these lines again and again until what they write tells this, for at most
    /// ten seconds: what a page does by itself comes when the page does it; the last transcript.
    std::string runUntil(const std::string& lines, const std::string& told) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        for (;;) {
            std::string transcript = run(lines);
            if (transcript.find(told) != std::string::npos ||
                std::chrono::steady_clock::now() > end)
                return transcript;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    }

    /// What the program has in memory, by the names of the files it came from.
    std::string filesInMemory() const { return ofSystem("maps"); }

    /// Memory that the program occupies at this moment, in MB of 2^20 bytes.
    double megabytes() const {
        std::istringstream status(ofSystem("status"));
        for (std::string word; status >> word;)
            if (double kilobytes = 0; word == "VmRSS:" && status >> kilobytes)
                return kilobytes / 1024;
        return 0;
    }

    /// Ends the program by a signal; whether it ended by that and not in an orderly way.
    bool endBy(int signal) {
        ::kill(static_cast<pid_t>(process_.processId()), signal);
        process_.waitForFinished(30000);
        return process_.state() == QProcess::NotRunning &&
               process_.exitStatus() == QProcess::CrashExit;
    }

    /// Ends the script; the program's exit status.
    int end() {
        process_.closeWriteChannel();
        process_.waitForFinished(30000);
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }

 private:
    /// More options of a sanitizer, which reads them behind a colon.
    static void add(QProcessEnvironment& environment, const char* name, const char* options) {
        const QString key = QString::fromLatin1(name);
        environment.insert(key, environment.value(key) + QString::fromLatin1(options));
    }
    /// Faults of the web engine's own library are none of the program's.
    static void leaveTheWebEngineAlone(QProcessEnvironment& environment) {
        add(environment, "ASAN_OPTIONS", ":new_delete_type_mismatch=0");
        add(environment, "LSAN_OPTIONS",
            ":print_suppressions=0:suppressions=" VARNHOLT_SOURCE_DIR
            "/tests/leaks_of_libraries.txt");
    }

    std::string ofSystem(const std::string& file) const {
        return wholeFile("/proc/" + std::to_string(process_.processId()) + "/" + file);
    }

    TemporaryFolder temporary_;
    QProcess process_;
};

}  // namespace varnholt
