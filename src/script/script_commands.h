// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "frame/varnmain.h"
#include "script/driver.h"
#include "script/report_source.h"
#include "script/script_platform.h"
#include "script/script_reader.h"
#include "script/transcript.h"

namespace varnholt {

/// The commands of scripts: carries out one line at a time.
class ScriptCommands {
 public:
    ScriptCommands(Varnmain& main, ScriptPlatform& platform, Driver& driver,
                   Transcript& transcript);

    /// The reports that `print report` and `save report` read.
    void setReports(const ReportSource* reports) { reports_ = reports; }
    /// Told of something left out on purpose that is no fault.
    void setNotes(std::function<void(const std::string&)> notes) { notes_ = std::move(notes); }

    /// Throws ScriptFault for a line that cannot be carried out; a failure of the program leaves
    /// as the exception that it is.
    void execute(const ScriptLine& line);

 private:
    struct Target {
        Form& form;
        Control& control;
    };
    using Command = void (ScriptCommands::*)(std::string& rest);
    struct CommandRow;
    static const CommandRow commands[];

    void type(std::string& rest);
    void leave(std::string& rest);
    void key(std::string& rest);
    void click(std::string& rest);
    void choose(std::string& rest);
    void select(std::string& rest);
    void slide(std::string& rest);
    void date(std::string& rest);
    void activate(std::string& rest);
    void close(std::string& rest);
    void answer(std::string& rest);
    void pick(std::string& rest);
    void clipboard(std::string& rest);
    void print(std::string& rest);
    void value(std::string& rest);
    void save(std::string& rest);
    void shot(std::string& rest);
    void forms(std::string& rest);
    void controls(std::string& rest);

    Form& find(const WindowName& name) const;
    Form& onlyWindow(const std::string& rest) const;
    Target findControl(const TargetName& name) const;
    Target workable(std::string& rest, std::initializer_list<ControlKind> kinds);
    Target unlocked(std::string& rest, std::initializer_list<ControlKind> kinds);
    void requireReachable(const Form& form) const;
    int rowIn(const Target& target, int row) const;
    const Form* active() const;
    const ReportSource& report() const;
    void printReport();

    Varnmain& main_;
    ScriptPlatform& platform_;
    Driver& driver_;
    Transcript& transcript_;
    const ReportSource* reports_ = nullptr;
    std::function<void(const std::string&)> notes_;
    std::string startFolder_;
};

}  // namespace varnholt
