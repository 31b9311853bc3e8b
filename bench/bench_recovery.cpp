// SPDX-License-Identifier: GPL-3.0-or-later
// What the keeping of unsaved work costs somebody who types: once a second the documents are looked
// at. No key may wait for that longer than 0.2 ms, with the documents of a large building open.
#include <benchmark/benchmark.h>
#include <time.h>

#include <algorithm>
#include <chrono>

#include "catalogue/editor/frmHPEdit.h"
#include "catalogue/pump.h"
#include "persistence/recovery/recovery.h"
#include "project_folder.h"

namespace varnholt {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// A design that is linked with so many zones, their loads window and the heat pump editor, each
/// with unsaved work.
class Typist {
 public:
    explicit Typist(std::int64_t zones) : program_(zones), design_(program_.open()) {
        program_.main.click("EditAdd");
        editor().choose("MfgCombo", 2);
        editor().choose("SeriesCombo", 1);
        program_.main.activate(program_.manager());
    }

    void key() {
        digit_ = 1 - digit_;
        design_.type("SOGroundTempText", std::to_string(60 + digit_));
        if (program_.manager().zoneNumber() > 0)
            program_.manager().type("LOGainsText(0)", std::to_string(10 + digit_));
        editor().type("NominalFlowText", std::to_string(900 + digit_));
    }
    Varnmain& main() { return program_.main; }
    bool hasUnsavedWork() {
        return design_.isChanged() && editor().hasUnsavedPumps() &&
               (program_.manager().zoneNumber() == 0 || program_.manager().hasUnsavedChanges());
    }

 private:
    frmHPEdit& editor() { return dynamic_cast<frmHPEdit&>(*program_.main.find("frmHPEdit")); }

    ProjectFolder program_;
    frmBHDesign& design_;
    int digit_ = 0;
};

/// Seconds that this thread has had a processor.
double threadSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// The look that a key in every document makes necessary, and as a counter the longest of them.
void lookAfterAKey(benchmark::State& state) {
    Typist typist(state.range(0));
    Recovery recovery(typist.main());
    Recovery::Time now{};
    double longest = 0;
    for (auto _ : state) {
        typist.key();
        const double begin = threadSeconds();
        recovery.tick(now += milliseconds(1));
        const double took = threadSeconds() - begin;
        state.SetIterationTime(took);
        longest = std::max(longest, took);
    }
    state.counters["longest_us"] = longest * 1e6;
    if (!typist.hasUnsavedWork()) state.SkipWithError("there was nothing to be kept");
}
BENCHMARK(lookAfterAKey)
    ->Arg(0)
    ->Arg(40)
    ->Arg(1000)
    ->Iterations(2000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

/// Keys in every document, with and without their work being kept.
void keystroke(benchmark::State& state) {
    Typist typist(1000);
    std::unique_ptr<Recovery> recovery;
    if (state.range(0) != 0) recovery = std::make_unique<Recovery>(typist.main());
    for (auto _ : state) {
        typist.key();
        if (!recovery) continue;
        state.PauseTiming();
        recovery->tick(steady_clock::now());
        state.ResumeTiming();
    }
}
BENCHMARK(keystroke)->ArgName("kept")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace varnholt
