// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/month_lines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "basis/number_text.h"
#include "basis/pasted_lines.h"
#include "basis/units.h"

namespace varnholt {
namespace {

constexpr std::string_view blanks = " \t";

/// Cells of a spreadsheet that are empty behind the last number do not count.
std::string_view withoutEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of(blanks) + 1);
}

std::optional<std::array<double, 4>> fourNumbers(std::string_view line) {
    std::array<double, 4> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const bool last = i + 1 == numbers.size();
        const std::size_t end = line.find('\t');
        if (last != (end == std::string_view::npos)) return std::nullopt;
        const std::optional<double> number = readPlainNumber(line.substr(0, end));
        if (!number || !std::isfinite(*number)) return std::nullopt;
        numbers[i] = std::max(0.0, *number);
        if (!last) line.remove_prefix(end + 1);
    }
    return numbers;
}

}  // namespace

bool MonthLines::isWhole() const { return lines == monthsOfYear && !badLine; }

MonthLines readMonthLines(std::string_view text) {
    MonthLines read;
    std::size_t number = 0;
    for (const std::string& line : pastedLines(text).all()) {
        ++number;
        const std::string_view content = withoutEnd(line);
        if (content.empty() || read.lines == monthsOfYear) continue;
        const auto four = fourNumbers(content);
        if (!four && !read.badLine) read.badLine = number;
        if (four) {
            read.energy[read.lines] = {(*four)[0], (*four)[1]};
            read.top[read.lines] = {(*four)[2], (*four)[3]};
        }
        ++read.lines;
    }
    return read;
}

}  // namespace varnholt
