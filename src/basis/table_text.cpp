// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/table_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "basis/number_text.h"
#include "basis/text_encoding.h"

namespace varnholt {
namespace {

constexpr std::size_t linesToGuessFrom = 60;
constexpr std::size_t longestNumber = 64;
// Many times what a year of hours has; what is beyond is left out, so that no file fills the
// memory.
constexpr std::size_t mostLines = 100'000;
constexpr std::size_t mostCells = 512;
constexpr std::size_t mostCellsInAll = 8'000'000;
constexpr char quote = '"';

/// Those that are likelier for the same score come first: a semicolon parts cells where the comma
/// is the decimal mark.
constexpr std::array<TableFormat, 5> formats{
    {{'\t', '.'}, {'\t', ','}, {';', ','}, {';', '.'}, {',', '.'}}};

std::string_view trimmed(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\xA0'; };
    while (!text.empty() && blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && blank(text.back())) text.remove_suffix(1);
    return text;
}

/// The number that a text is as a whole; a number beyond a double is none.
std::optional<double> readFiniteNumber(std::string_view text) {
    const std::optional<double> number = readPlainNumber(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::string_view unquoted(std::string_view cell) {
    cell = trimmed(cell);
    if (cell.size() < 2 || cell.front() != quote || cell.back() != quote) return cell;
    return trimmed(cell.substr(1, cell.size() - 2));
}

std::vector<std::string_view> cellsOf(std::string_view line, char separator) {
    std::vector<std::string_view> cells;
    std::size_t start = 0;
    bool inQuotes = false;
    for (std::size_t i = 0; i <= line.size() && cells.size() < mostCells; ++i) {
        if (i < line.size() && line[i] == quote) inQuotes = !inQuotes;
        if (i < line.size() && (line[i] != separator || inQuotes)) continue;
        cells.push_back(unquoted(line.substr(start, i - start)));
        start = i + 1;
    }
    return cells;
}

/// Whether the mark stands before each group of three digits and nowhere else.
bool isGrouped(std::string_view number, char mark, char decimal) {
    const std::size_t whole = std::min(number.find(decimal), number.size());
    std::size_t at = number.find(mark);
    if (at == std::string_view::npos || at == 0 || !isDigit(number[at - 1]) || at > whole)
        return false;
    for (; at < whole; at += 4) {
        const std::string_view group = number.substr(at + 1, 3);
        if (number[at] != mark || group.size() < 3 ||
            !std::all_of(group.begin(), group.end(), isDigit))
            return false;
    }
    return at == whole;
}

/// How much the cells of a line look like numbers.
double scoreOf(std::string_view line, const TableFormat& format) {
    const char groupMark = format.decimal == '.' ? ',' : '.';
    double score = 0;
    for (const std::string_view cell : cellsOf(line, format.separator)) {
        if (cell.empty()) continue;
        const bool grouped = cell.find(groupMark) != std::string_view::npos;
        if (numberIn(cell, format.decimal))
            score += grouped ? 0.5 : 1;
        else
            score -= 0.25;
    }
    return score;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size() && lines.size() < mostLines) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return lines;
}

/// Spreadsheets write their text tables so; what is beyond ASCII is of no matter here.
std::string fromUtf16(std::string_view bytes, bool littleEndian) {
    std::string text;
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        const char low = bytes[littleEndian ? i : i + 1], high = bytes[littleEndian ? i + 1 : i];
        text += high == 0 && static_cast<unsigned char>(low) < 0x80 ? low : '?';
    }
    return text;
}

std::string decoded(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE")) return fromUtf16(bytes, true);
    if (bytes.starts_with("\xFE\xFF")) return fromUtf16(bytes, false);
    return decodeText(bytes);
}

}  // namespace

TableText::TableText(std::string_view bytes) : text_(decoded(bytes)), lines_(linesOf(text_)) {}

TableFormat TableText::guessedFormat() const {
    TableFormat best{',', '.'};
    double bestScore = 0;
    for (const TableFormat& format : formats) {
        double score = 0;
        for (std::size_t i = 0; i < std::min(lines_.size(), linesToGuessFrom); ++i)
            score += scoreOf(lines_[i], format);
        if (!(score > bestScore)) continue;
        best = format;
        bestScore = score;
    }
    return best;
}

std::vector<TableText::Row> TableText::rows(const TableFormat& format) const {
    std::vector<Row> rows;
    rows.reserve(lines_.size());
    std::size_t cells = 0;
    for (std::size_t i = 0; i < lines_.size() && cells < mostCellsInAll; ++i) {
        rows.push_back({i + 1, cellsOf(lines_[i], format.separator)});
        cells += rows.back().cells.size();
    }
    return rows;
}

std::optional<double> numberIn(std::string_view cell, char decimal) {
    if (cell.size() > longestNumber) return std::nullopt;
    const char groupMark = decimal == '.' ? ',' : '.';
    const bool marked = cell.find(groupMark) != std::string_view::npos;
    if (decimal == '.' && !marked) return readFiniteNumber(cell);
    if (marked && !isGrouped(cell, groupMark, decimal)) return std::nullopt;
    std::string number;
    for (const char c : cell) {
        if (c == groupMark) continue;
        number += c == decimal ? '.' : c;
    }
    return readFiniteNumber(number);
}

}  // namespace varnholt
