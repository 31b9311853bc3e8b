// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "scripts/script_run.h"

namespace varnholt {

/// What a random user did in one session, written down as a script.
class RandomSession {
 public:
    explicit RandomSession(int seed) {
        const std::string command = VARNHOLT_BIN_DIR "/varnholt-monkey --presses 400 --seed " +
                                    std::to_string(seed) + " --trace '" + script() + "' >/dev/null";
        if (std::system(command.c_str()) != 0)
            throw std::runtime_error("no session of seed " + std::to_string(seed));
    }

    /// In a program folder of its own, filled as on the program's first start. The script's first
    /// line tells the options that the session had.
    /// @param program its path, with such options as only it needs
    ScriptOutcome run(const std::string& program) const {
        std::ifstream file(script());
        std::string options;
        std::getline(file, options);
        const TemporaryFolder home;
        const std::string out = home / "out";
        const std::string faults = home / "faults";
        const std::string command = "XDG_DATA_HOME='" + home.path() + "' " + program + " '" +
                                    script() + "' " + options.substr(2) + " >'" + out + "' 2>'" +
                                    faults + "' </dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                replaced(wholeFile(out), home / "varnholt", "PROGRAM"), wholeFile(faults)};
    }

 private:
    std::string script() const { return folder_ / "session.vscript"; }

    TemporaryFolder folder_;
};

}  // namespace varnholt
