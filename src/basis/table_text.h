// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

/// How a table's text is cut into cells and its numbers are read.
struct TableFormat {
    char separator = ',';  ///< comma, semicolon or tab
    char decimal = '.';    ///< point or comma, and not the separator

    friend bool operator==(const TableFormat&, const TableFormat&) = default;
};

/// A table of text: rows that are lines, and cells between separators. A cell in double quotes may
/// hold the separator.
class TableText {
 public:
    struct Row {
        std::size_t line;  ///< from 1
        std::vector<std::string_view> cells;
    };

    /// @param bytes UTF-8 with or without its mark, UTF-16 with its mark, or Windows-1252
    explicit TableText(std::string_view bytes);
    TableText(const TableText&) = delete;
    TableText& operator=(const TableText&) = delete;

    const std::vector<std::string_view>& lines() const { return lines_; }
    /// The separator and the decimal mark by which most of the cells are numbers.
    TableFormat guessedFormat() const;
    std::vector<Row> rows(const TableFormat& format) const;

 private:
    std::string text_;
    std::vector<std::string_view> lines_;
};

/// The number in a cell, which may have its thousands grouped; nothing for text and for an empty
/// cell.
std::optional<double> numberIn(std::string_view cell, char decimal);

}  // namespace varnholt
