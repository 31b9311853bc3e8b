// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

/// A text from the clipboard, cut at its carriage returns. Line feeds are taken away; those that
/// stand without a return, as other systems write them, count as one.
struct PastedLines {
    std::vector<std::string> ended;  ///< lines with a return at their end
    std::string rest;                ///< what follows the last return

    /// All of them, the last one included unless it is empty.
    std::vector<std::string> all() const;
};

PastedLines pastedLines(std::string_view text);

}  // namespace varnholt
