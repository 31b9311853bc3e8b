// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

namespace varnholt {

/// How a run of a script ends; the program's exit status.
enum class ScriptStatus {
    ran = 0,           ///< every line ran
    programFault = 1,  ///< the program met a fault of its own
    badLine = 2,       ///< cannot be read, names nothing, or needs what a person could not use
    badAnswer = 3,     ///< no answer was queued for a question or file dialog, or some are left
};

/// What is wrong with a line of a script. Not a std::exception, so that no handler of a window
/// takes it for a failure of its own.
struct ScriptFault {
    explicit ScriptFault(std::string text, ScriptStatus kind = ScriptStatus::badLine)
        : what(std::move(text)), status(kind) {}

    std::string what;
    ScriptStatus status;
};

/// The script is over while handlers of a window are still under way: unwinds to the runner.
struct ScriptOver {};

}  // namespace varnholt
