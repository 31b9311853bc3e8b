// SPDX-License-Identifier: GPL-3.0-or-later
// The real program from its start to the painted main window. Budget: 80 ms.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <string>

#include "scripts/script_run.h"

namespace varnholt {
namespace {

using Clock = std::chrono::steady_clock;

struct Start {
    double seconds;           ///< until the window stands
    double processorSeconds;  ///< of the whole run, out again
};

/// Starts the program with a script that asks for a caption: it is answered once the main window
/// has been painted.
Start startOnce(const std::string& folder) {
    std::array<int, 2> script{}, answer{};
    if (pipe(script.data()) != 0 || pipe(answer.data()) != 0) return {};
    const Clock::time_point begin = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(script[0], STDIN_FILENO);
        dup2(answer[1], STDOUT_FILENO);
        for (const int end : {script[0], script[1], answer[0], answer[1]}) close(end);
        execl(VARNHOLT_BIN_DIR "/varnholt", "varnholt", "--script", "-", "--program-folder",
              folder.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    close(script[0]);
    close(answer[1]);
    const std::string question = "print Varnmain.mnuHelp\n";
    const bool asked = write(script[1], question.data(), question.size()) > 0;
    char letter = 0;
    const bool answered = asked && read(answer[0], &letter, 1) == 1;
    const double seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    close(script[1]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    close(answer[0]);
    const auto secondsOf = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    if (!answered || status != 0) return {};
    return {seconds, secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime)};
}

void startToPaintedMainWindow(benchmark::State& state) {
    const TemporaryFolder folder;
    double processor = 0;
    for (auto _ : state) {
        const Start start = startOnce(folder.path());
        if (start.seconds == 0) return state.SkipWithError("the program did not answer");
        state.SetIterationTime(start.seconds);
        processor += start.processorSeconds;
    }
    state.counters["processor_ms"] =
        benchmark::Counter(processor * 1000, benchmark::Counter::kAvgIterations);
}
BENCHMARK(startToPaintedMainWindow)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace varnholt
