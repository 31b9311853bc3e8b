// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/script_reader.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "basis/number_text.h"
#include "basis/text_encoding.h"
#include "script/script_fault.h"

namespace varnholt {
namespace {

constexpr std::string_view blanks = " \t";
constexpr std::size_t longestLine = std::size_t{16} << 20;

/// Reads up to the next LF, or somewhat more than the longest line. False where nothing is left.
bool readPieces(std::istream& input, std::string& text) {
    text.clear();
    std::array<char, 65'536> piece;
    while (text.size() <= longestLine) {
        input.getline(piece.data(), piece.size());
        const auto got = static_cast<std::size_t>(input.gcount());
        const bool ended = input.good();
        text.append(piece.data(), ended ? got - 1 : got);
        if (ended || input.eof() || input.bad()) return ended || !text.empty();
        // The piece is full, and the line is not at its end.
        input.clear();
    }
    return true;
}

template <class Number>
std::optional<Number> readWhole(std::string_view text) {
    Number number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc{} || result.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace

ScriptReader::ScriptReader(std::istream& input, std::string name)
    : input_(input), name_(std::move(name)) {}

bool ScriptReader::readLine(std::string& text) {
    if (waits_ && input_.rdbuf()->in_avail() <= 0) waits_(true);
    const bool read = readPieces(input_, text);
    if (waits_) waits_(false);
    return read;
}

std::optional<ScriptLine> ScriptReader::next() {
    for (std::string text; readLine(text);) {
        ++line_;
        if (text.size() > longestLine) throw ScriptFault("the line is longer than 16 MB");
        if (!text.empty() && text.back() == '\r') text.pop_back();
        text = line_ == 1 ? decodeText(text) : utf8Text(text);
        text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
        if (text.empty() || text.front() == '#') continue;
        ScriptLine line;
        line.command = takeWord(text);
        line.rest = std::move(text);
        return line;
    }
    return std::nullopt;
}

std::string ScriptReader::faultText(const std::string& what) const {
    return fmt::format("{}:{}: {}", name_, line_, what);
}

std::string takeWord(std::string& rest) {
    rest.erase(0, std::min(rest.find_first_not_of(blanks), rest.size()));
    const std::size_t end = std::min(rest.find_first_of(blanks), rest.size());
    std::string word = rest.substr(0, end);
    rest.erase(0, end + 1);
    if (word.empty()) throw ScriptFault("the line ends too early");
    return word;
}

std::string onlyWord(const std::string& rest) {
    std::string left = rest;
    std::string word = takeWord(left);
    requireEnd(left);
    return word;
}

void requireEnd(std::string_view rest) {
    if (const std::string left = trimmed(rest); !left.empty())
        throw ScriptFault(fmt::format("{} is not expected here", left));
}

std::string trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return std::string(text.substr(0, text.find_last_not_of(blanks) + 1));
}

std::string unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            plain += text[i];
            continue;
        }
        switch (++i < text.size() ? text[i] : '\0') {
            case 'r':
                plain += '\r';
                break;
            case 'n':
                plain += '\n';
                break;
            case 't':
                plain += '\t';
                break;
            case '\\':
                plain += '\\';
                break;
            default:
                throw ScriptFault("a backslash is followed by r, n, t or another backslash");
        }
    }
    return plain;
}

int readCount(std::string_view text) {
    const std::optional<int> number = readWhole<int>(text);
    if (!number || !isDigit(text.front()))
        throw ScriptFault(fmt::format("{} is not a whole number", text));
    return *number;
}

double readNumber(std::string_view text) {
    const std::optional<double> number = readWhole<double>(text);
    if (!number || !std::isfinite(*number))
        throw ScriptFault(fmt::format("{} is not a number", text));
    return *number;
}

Date readDay(std::string_view text) {
    const std::optional<Date> date = readIsoDate(text);
    if (!date) throw ScriptFault(fmt::format("{} is not a date of the form YYYY-MM-DD", text));
    return *date;
}

bool isIndex(std::string_view text) {
    return text.size() > 1 && text.front() == '#' &&
           std::all_of(text.begin() + 1, text.end(), isDigit);
}

int readIndex(std::string_view text) {
    if (!isIndex(text)) throw ScriptFault(fmt::format("{} is not an index such as #0", text));
    return readCount(text.substr(1));
}

std::vector<int> readIndices(std::string rest) {
    std::vector<int> indices;
    while (rest.find_first_not_of(blanks) != std::string::npos)
        indices.push_back(readIndex(takeWord(rest)));
    return indices;
}

WindowName readWindowName(std::string_view text) {
    const std::size_t sign = text.find('#');
    WindowName name{std::string(text.substr(0, sign)), std::nullopt};
    if (sign != std::string_view::npos) name.number = readCount(text.substr(sign + 1));
    if (name.form.empty()) throw ScriptFault(fmt::format("{} names no window", text));
    return name;
}

TargetName readTarget(std::string_view text) {
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos || dot + 1 == text.size())
        throw ScriptFault(fmt::format("{} is not of the form FORM.CONTROL", text));
    return {readWindowName(text.substr(0, dot)), std::string(text.substr(dot + 1))};
}

}  // namespace varnholt
