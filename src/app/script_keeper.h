// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/application.h"
#include "basis/system/end_signals.h"
#include "script/script_reader.h"
#include "script/script_runner.h"

namespace varnholt {

/// Keeps unsaved work while a script works the program, where the script asked for that: what a
/// person's program does by the clock is done between two lines, and before the program waits for
/// the next one.
class ScriptKeeper {
 public:
    ScriptKeeper(Recovery& recovery, ScriptRunner& runner, ScriptReader& reader);

    /// To be called at the end of every line.
    void lineEnded();

 private:
    Recovery& recovery_;
    EndSignals signals_;
};

}  // namespace varnholt
