// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

/// A block of cells as a spreadsheet gives it away: rows are lines, cells lie between tabs. Numbers
/// are as a field takes them, with a decimal point and their thousands in one piece; other cells
/// are as they were.
using PastedBlock = std::vector<std::vector<std::string>>;

/// Whether the text is more than one cell.
bool isBlock(std::string_view text);

/// Reads a block. Cells that are numbers with one decimal mark only tell which mark it is; where
/// they do not, it is the usual one. A cell that is a number by the other mark alone is taken so.
/// @param usualDecimal  the decimal mark of the user's locale, point or comma
PastedBlock readBlock(std::string_view text, char usualDecimal);

}  // namespace varnholt
