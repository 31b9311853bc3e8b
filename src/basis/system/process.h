// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace varnholt {

/// The file of the running program, links resolved; empty when the system does not tell.
std::string executablePath();

/// The system's number of the running program, which no other has at the same time.
int processNumber();

/// A variable of the environment; nothing when it is not set.
std::optional<std::string> environmentVariable(const char* name);

}  // namespace varnholt
