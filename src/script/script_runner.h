// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "script/script_commands.h"
#include "script/script_fault.h"
#include "script/script_platform.h"
#include "script/script_reader.h"

namespace varnholt {

/// Runs a script to its end or to its first fault.
class ScriptRunner : private ScriptHost {
 public:
    /// @param faults takes what is wrong with the script, as "FILE:LINE: what"
    ScriptRunner(Varnmain& main, ScriptPlatform& platform, Driver& driver, Transcript& transcript,
                 ScriptReader& reader, std::ostream& faults);

    void setReports(const ReportSource* reports) { commands_.setReports(reports); }
    /// Ends the process with a status, for programs whose toolkit no exception may pass through;
    /// called when the script is over while handlers of the program are still under way.
    void setExit(std::function<void(int)> exit) { exit_ = std::move(exit); }

    /// Returns the program's exit status.
    int run();

    /// Called once, before the first line that is no answer.
    void setBeforeFirstLine(std::function<void()> begin) { beforeFirstLine_ = std::move(begin); }
    /// Called at the end of every line that has run: waits for what the line has begun.
    void setAfterLine(std::function<void()> wait) { afterLine_ = std::move(wait); }

 private:
    void runModal(Form& form) override;
    void fail(const ScriptFault& fault) override;
    [[noreturn]] void unwind();

    void runLines(const Form* modal);
    std::optional<ScriptLine> nextLine();
    void runLine(const ScriptLine& line);
    void execute(const ScriptLine& line);
    void report(const std::string& what, ScriptStatus status);

    Varnmain& main_;
    ScriptPlatform& platform_;
    Driver& driver_;
    Transcript& transcript_;
    ScriptReader& reader_;
    std::ostream& faults_;
    std::function<void()> beforeFirstLine_;
    std::function<void()> afterLine_;
    ScriptCommands commands_;
    std::function<void(int)> exit_;
    ScriptStatus status_ = ScriptStatus::ran;
    bool over_ = false;
};

}  // namespace varnholt
