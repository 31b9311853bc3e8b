// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/line_file.h"

#include <algorithm>
#include <cmath>

#include "basis/file_system.h"
#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/text_encoding.h"

namespace varnholt {
namespace {

std::vector<std::string_view> splitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        lines.push_back(text.substr(start, end - start));
        const bool pair = text.substr(end, 2) == "\r\n";
        start = end + (pair ? 2 : 1);
    }
    return lines;
}

}  // namespace

LineFileReader::LineFileReader(std::string_view bytes)
    : bytes_(decodeText(bytes)), lines_(splitLines(bytes_)) {}

LineFileReader LineFileReader::open(const std::string& path) {
    return LineFileReader(readWholeFile(path));
}

void LineFileReader::title(std::string_view) {
    const std::string text = line();
    version_ = text.size() < 3 ? 0 : leadingNumber(std::string_view(text).substr(text.size() - 3));
}

void LineFileReader::number(double& value) {
    const double read = leadingNumber(line());
    if (!std::isfinite(read)) throw RunTimeError(6);
    value = read;
}

void LineFileReader::integer(std::int16_t& value) { value = toInteger(leadingNumber(line())); }

void LineFileReader::date(Date& value) { value = readDate(line()).value_or(Date{}); }

std::size_t LineFileReader::count(std::size_t, std::size_t linesEach) {
    const double stated = leadingNumber(line());
    const std::size_t fits = linesLeft() / std::max<std::size_t>(linesEach, 1) + 1;
    if (!(stated >= 1)) return 0;
    return stated >= static_cast<double>(fits) ? fits : static_cast<std::size_t>(stated);
}

std::string_view LineFileReader::item() {
    std::string_view left;
    if (rest_) {
        left = *rest_;
        rest_.reset();
    } else {
        if (next_ >= lines_.size()) throw RunTimeError(62);
        left = lines_[next_++];
    }
    const std::size_t comma = left.find(',');
    if (comma == std::string_view::npos) return left;
    rest_ = left.substr(comma + 1);
    return left.substr(0, comma);
}

void LineFileReader::readItem(double& value) {
    const double read = leadingNumber(item());
    if (!std::isfinite(read)) throw RunTimeError(6);
    value = read;
}

void LineFileReader::readItem(std::int16_t& value) { value = toInteger(leadingNumber(item())); }

std::string LineFileReader::line() {
    if (rest_) {
        std::string left(*rest_);
        rest_.reset();
        return left;
    }
    if (next_ >= lines_.size()) throw RunTimeError(62);
    return std::string(lines_[next_++]);
}

void LineFileWriter::title(std::string_view prefix) {
    fixed(std::string(prefix).append(fileVersion));
}

void LineFileWriter::fixed(std::string_view text) {
    const auto start = static_cast<std::ptrdiff_t>(text_.size());
    text_ += text;
    std::replace_if(
        text_.begin() + start, text_.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    text_ += "\r\n";
}

void LineFileWriter::number(double value) { fixed(shortestText(value)); }

std::string LineFileWriter::numberItem(double value) { return shortestText(value); }

void LineFileWriter::integer(std::int16_t value) { fixed(std::to_string(value)); }

void LineFileWriter::date(const Date& value) { fixed('#' + isoText(value) + '#'); }

std::size_t LineFileWriter::count(std::size_t written, std::size_t) {
    fixed(std::to_string(written));
    return written;
}

}  // namespace varnholt
