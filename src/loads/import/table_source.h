// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace varnholt {

class Varnmain;

/// Where a table of loads comes from.
struct TableSource {
    std::string name;  ///< of the file, without folder and extension; empty for the clipboard
    std::string bytes;
};

/// Asks for a file and reads it. Nothing after a Cancel, and after a failure, which is told.
std::optional<TableSource> chooseTable(const Varnmain& main);

/// The clipboard, when its text is a table of a year.
std::optional<TableSource> tableOnClipboard(const Varnmain& main);

}  // namespace varnholt
