// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_runner.h"

#include <exception>
#include <utility>

namespace varnholt {

ScriptRunner::ScriptRunner(Varnmain& main, ScriptPlatform& platform, Driver& driver,
                           Transcript& transcript, ScriptReader& reader, std::ostream& faults)
    : main_(main),
      platform_(platform),
      driver_(driver),
      transcript_(transcript),
      reader_(reader),
      faults_(faults),
      commands_(main, platform, driver, transcript) {
    commands_.setNotes([this](const std::string& note) {
        faults_ << reader_.faultText(note) << '\n' << std::flush;
    });
}

int ScriptRunner::run() {
    platform_.forms().addMain(main_);
    platform_.begin(*this);
    try {
        runLines(nullptr);
    } catch (const ScriptOver&) {
        over_ = true;
    }
    return static_cast<int>(status_);
}

/// Runs lines until the modal form has ended; without one, to the end of the script.
void ScriptRunner::runLines(const Form* modal) {
    while (!over_ && (modal == nullptr || !modal->modalEnded())) {
        const std::optional<ScriptLine> line = nextLine();
        if (line) {
            runLine(*line);
            continue;
        }
        if (platform_.answersLeft())
            report("answers are left over at the end of the script", ScriptStatus::badAnswer);
        over_ = true;
    }
    if (over_ && modal != nullptr) unwind();
}

std::optional<ScriptLine> ScriptRunner::nextLine() {
    try {
        return reader_.next();
    } catch (const ScriptFault& fault) {
        report(fault.what, fault.status);
        return std::nullopt;
    }
}

void ScriptRunner::runModal(Form& form) { runLines(&form); }

void ScriptRunner::runLine(const ScriptLine& line) {
    try {
        execute(line);
    } catch (const ScriptFault& fault) {
        report(fault.what, fault.status);
    } catch (const ScriptOver&) {
        throw;
    } catch (const std::exception& exception) {
        report(std::string("the program failed: ") + exception.what(), ScriptStatus::programFault);
    } catch (...) {
        report("the program failed", ScriptStatus::programFault);
    }
}

void ScriptRunner::execute(const ScriptLine& line) {
    if (!platform_.forms().isOpen(&main_)) throw ScriptFault("the program has been closed");
    if (beforeFirstLine_ && line.command != "answer") {
        const std::function<void()> begin = std::exchange(beforeFirstLine_, nullptr);
        begin();
    }
    commands_.execute(line);
    if (afterLine_) afterLine_();
    if (transcript_.hasFailed())
        throw ScriptFault("the transcript cannot be written", ScriptStatus::programFault);
    // The frame closes once the command that asked for it has ended.
    if (platform_.takeQuit()) driver_.close(main_);
}

void ScriptRunner::report(const std::string& what, ScriptStatus status) {
    // What comes while the handlers unwind follows from the first fault.
    if (over_) return;
    over_ = true;
    status_ = status;
    faults_ << reader_.faultText(what) << '\n' << std::flush;
}

void ScriptRunner::fail(const ScriptFault& fault) {
    report(fault.what, fault.status);
    unwind();
}

void ScriptRunner::unwind() {
    if (exit_) exit_(static_cast<int>(status_));
    throw ScriptOver{};
}

}  // namespace varnholt
