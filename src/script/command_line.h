// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/date.h"

namespace varnholt {

/// The options that both programs take. An option given twice holds as given last.
struct CommandLine {
    /// The script to run: a file, or "-" for standard input. Without one the windows are for a
    /// person; varnholt-script always has one.
    std::optional<std::string> script;
    std::optional<std::string> programFolder;  ///< as an absolute path, without a slash at its end
    std::optional<unsigned> localeNumber;
    std::optional<Date> today;
    /// Project and zone files to open in the windows, as absolute paths.
    std::vector<std::string> files;
    /// The engine of browser windows, "text" or "web"; empty for the usual one.
    std::string browser;
    bool help = false;
    bool version = false;
    /// What is wrong with the command line; empty when nothing is.
    std::string error;
};

enum class Program { windows, script };

/// @param arguments without the program's own name
CommandLine parseCommandLine(const std::vector<std::string>& arguments, Program program);

/// The answer to --help.
std::string usageOf(Program program);
/// The answer to --version.
std::string versionOf(Program program);

}  // namespace varnholt
