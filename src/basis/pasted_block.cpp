// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/pasted_block.h"

#include <algorithm>

#include "basis/table_text.h"

namespace varnholt {
namespace {

char decimalOf(const std::vector<TableText::Row>& rows, char usual) {
    int points = 0, commas = 0;
    for (const TableText::Row& row : rows)
        for (const std::string_view cell : row.cells) {
            const bool point = numberIn(cell, '.').has_value();
            const bool comma = numberIn(cell, ',').has_value();
            if (point && !comma) ++points;
            if (comma && !point) ++commas;
        }
    if (points == commas) return usual;
    return commas > points ? ',' : '.';
}

/// A cell that is a number by the other mark alone is read by that one.
std::string asTyped(std::string_view cell, char usual) {
    const char other = usual == '.' ? ',' : '.';
    const char decimal = !numberIn(cell, usual) && numberIn(cell, other) ? other : usual;
    if (!numberIn(cell, decimal)) return std::string(cell);
    std::string typed;
    for (const char c : cell) {
        if (c == decimal)
            typed += '.';
        else if (c != '.' && c != ',')
            typed += c;
    }
    return typed;
}

}  // namespace

bool isBlock(std::string_view text) {
    const std::size_t end = text.find_last_not_of("\r\n");
    if (end == std::string_view::npos) return false;
    return text.substr(0, end + 1).find_first_of("\t\r\n") != std::string_view::npos;
}

PastedBlock readBlock(std::string_view text, char usualDecimal) {
    const TableText table(text);
    const std::vector<TableText::Row> rows = table.rows({'\t', usualDecimal});
    const char decimal = decimalOf(rows, usualDecimal);
    PastedBlock block;
    for (const TableText::Row& row : rows) {
        std::vector<std::string>& cells = block.emplace_back();
        for (const std::string_view cell : row.cells) cells.push_back(asTyped(cell, decimal));
    }
    return block;
}

}  // namespace varnholt
