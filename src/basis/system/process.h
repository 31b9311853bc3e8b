// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace varnholt {

/// The file of the running program, links resolved; empty when the system does not tell.
std::string executablePath();

/// The system's number of the running program, which no other has at the same time.
int processNumber();

/// A running program, told from every other one on every computer, also from a later one that is
/// given the same number.
struct ProcessIdentity {
    std::string host;
    int number = 0;
    std::uint64_t begun = 0;  ///< clock ticks since the computer was started; 0 where not known

    friend bool operator==(const ProcessIdentity&, const ProcessIdentity&) = default;
};

/// The running program itself.
ProcessIdentity thisProcess();
/// Whether the program has ended for certain. One of another computer may always be running.
bool hasEnded(const ProcessIdentity& process);

/// The name of the user on whose behalf the program runs; the user's number where it has no name.
std::string userName();

/// A variable of the environment; nothing when it is not set.
std::optional<std::string> environmentVariable(const char* name);

/// To be called first in a program: where a standard stream is closed, its number goes to something
/// that can neither be read nor written, so that no file of the program's is ever taken for it. A
/// reader of the output that ends is a failed write from then on, and not the end of the program.
void secureStandardStreams();

/// A number that nobody can guess.
std::uint64_t unguessableNumber();

}  // namespace varnholt
