// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/script_keeper.h"

#include "basis/date.h"

namespace varnholt {

ScriptKeeper::ScriptKeeper(Recovery& recovery, ScriptRunner& runner, ScriptReader& reader)
    : recovery_(recovery) {
    runner.setBeforeFirstLine([this] { recovery_.offer(); });
    reader.setWaits([this](bool waits) {
        if (waits) recovery_.keepNow();
        signals_.setWaiting(waits);
    });
}

void ScriptKeeper::lineEnded() {
    if (const int signal = signals_.pending(); signal != 0) {
        recovery_.keepNow();
        EndSignals::endBy(signal);
    }
    recovery_.tick(steadyMoment());
}

}  // namespace varnholt
