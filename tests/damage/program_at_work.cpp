// SPDX-License-Identifier: GPL-3.0-or-later
#include "damage/program_at_work.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "persistence/temporary_folder.h"

namespace varnholt {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// A line whose answer tells that all lines before it have been run.
const std::string mark = "value Varnmain.windowCounter", answerToMark = mark + " = ";

[[noreturn]] void become(const std::string& program, const std::string& folder) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const std::string path = VARNHOLT_BIN_DIR "/" + program;
    const bool windows = program == "varnholt";
    std::vector<const char*> arguments{path.c_str()};
    if (windows) arguments.push_back("--script");
    for (const char* argument :
         {"-", "--locale", "409", "--today", "2026-01-15", "--program-folder", folder.c_str()})
        arguments.push_back(argument);
    arguments.push_back(nullptr);
    ::execv(path.c_str(), const_cast<char* const*>(arguments.data()));
    ::_exit(127);
}

std::string toldOf(int status) {
    if (WIFSIGNALED(status)) return "signal " + std::to_string(WTERMSIG(status));
    return "status " + std::to_string(WEXITSTATUS(status));
}

}  // namespace

ProgramAtWork::ProgramAtWork(const std::string& program, const std::string& programFolder)
    : faultsFile_(programFolder + "/faults") {
    // A program that ends early is seen by its answers.
    ::signal(SIGPIPE, SIG_IGN);
    int in[2], out[2];
    if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipes for the program");
    const int faults = ::open(faultsFile_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    process_ = ::fork();
    if (process_ == 0) {
        ::dup2(in[0], STDIN_FILENO);
        ::dup2(out[1], STDOUT_FILENO);
        ::dup2(faults, STDERR_FILENO);
        become(program, programFolder);
    }
    ::close(in[0]);
    ::close(out[1]);
    ::close(faults);
    input_ = in[1];
    output_ = out[0];
}

ProgramAtWork::~ProgramAtWork() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        noteEnd("not wanted any more");
    }
    for (const int end : {input_, output_})
        if (end >= 0) ::close(end);
}

void ProgramAtWork::noteEnd(const std::string& why) {
    int status = 0;
    ::waitpid(std::exchange(process_, 0), &status, 0);
    end_ = why + ", " + toldOf(status) + ": " + bytesOf(faultsFile_);
}

bool ProgramAtWork::readMore(steady_clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
    pollfd awaited{output_, POLLIN, 0};
    const int ready = ::poll(&awaited, 1, static_cast<int>(std::max<long>(left.count(), 0)));
    if (ready == 0) {
        ::kill(process_, SIGKILL);
        noteEnd("it took too long");
        return false;
    }
    char bytes[4096];
    const ssize_t got = ::read(output_, bytes, sizeof bytes);
    if (got > 0) return unread_.append(bytes, static_cast<std::size_t>(got)), true;
    noteEnd("it ended by itself");
    return false;
}

std::vector<std::string> ProgramAtWork::run(const std::vector<std::string>& lines,
                                            milliseconds most) {
    std::string all;
    for (const std::string& line : lines) all += line + '\n';
    all += mark + '\n';
    const auto deadline = steady_clock::now() + most;
    if (::write(input_, all.data(), all.size()) != static_cast<ssize_t>(all.size())) {
        noteEnd("it reads no more");
        return {};
    }
    std::vector<std::string> told;
    for (;;) {
        const std::size_t end = unread_.find('\n');
        if (end == std::string::npos) {
            if (!readMore(deadline)) return {};
            continue;
        }
        std::string line = unread_.substr(0, end);
        unread_.erase(0, end + 1);
        if (line.starts_with(answerToMark)) return told;
        told.push_back(std::move(line));
    }
}

double ProgramAtWork::mostMegabytes() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/status");
    for (std::string word; status >> word;)
        if (double kilobytes = 0; word == "VmHWM:" && status >> kilobytes)
            return kilobytes * 1024 / 1e6;
    return 0;
}

double ProgramAtWork::processorSeconds() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/stat");
    std::string text;
    std::getline(status, text);
    // Behind the name in brackets: the state, ten other words, and the ticks of the program and of
    // the system on its behalf.
    std::istringstream words(text.substr(text.rfind(')') + 1));
    std::string other;
    for (int word = 0; word < 11; ++word) words >> other;
    double own = 0, systems = 0;
    words >> own >> systems;
    return (own + systems) / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

int ProgramAtWork::finish() {
    if (process_ <= 0) return -1;
    ::close(std::exchange(input_, -1));
    while (process_ > 0) readMore(steady_clock::now() + std::chrono::seconds(30));
    const std::size_t status = end_.find("status ");
    return status == std::string::npos ? -1 : std::stoi(end_.substr(status + 7));
}

}  // namespace varnholt
