// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

namespace varnholt {

/// One of the programs, worked line by line over its standard input, in a program folder that it
/// shares with nobody. What it does is bounded in time, and its memory can be asked for.
class ProgramAtWork {
 public:
    /// @param program  the file name of the program: "varnholt" or "varnholt-script"
    ProgramAtWork(const std::string& program, const std::string& programFolder);
    ~ProgramAtWork();
    ProgramAtWork(const ProgramAtWork&) = delete;
    ProgramAtWork& operator=(const ProgramAtWork&) = delete;

    /// Gives the program these lines and waits until it has run them; what it has written. Empty,
    /// and the program has ended, when it could not run them or took longer.
    std::vector<std::string> run(const std::vector<std::string>& lines,
                                 std::chrono::milliseconds most);
    bool isRunning() const { return process_ > 0; }
    /// Why it ended: its status, the signal, the time; with what it said to standard error.
    const std::string& end() const { return end_; }
    /// Seconds that it has had a processor, in steps of a hundredth.
    double processorSeconds() const;
    /// The most memory that it has occupied at any moment, in MB of 10^6 bytes.
    double mostMegabytes() const;
    /// Ends the script; the program's exit status, or -1 for a signal.
    int finish();

 private:
    bool readMore(std::chrono::steady_clock::time_point deadline);
    void noteEnd(const std::string& why);

    pid_t process_ = 0;
    int input_ = -1, output_ = -1;
    std::string faultsFile_, unread_, end_;
};

}  // namespace varnholt
