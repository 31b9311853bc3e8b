// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/line_file.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/file_system.h"
#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/text_encoding.h"

namespace varnholt {
namespace {

std::size_t endOfLine(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && text[end] != '\r' && text[end] != '\n') ++end;
    return end;
}

/// Takes the first line off, with what ends it.
std::string_view takeFirstLine(std::string_view& text) {
    const std::size_t end = endOfLine(text);
    const std::string_view line = text.substr(0, end);
    const bool pair = text.substr(end, 2) == "\r\n";
    text.remove_prefix(std::min(end + (pair ? 2 : 1), text.size()));
    return line;
}

/// At most so many bytes of a UTF-8 text, no character of which is cut.
std::string_view beginningOf(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes) return text;
    const auto continues = [&](std::size_t at) {
        return (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80;
    };
    while (bytes > 0 && continues(bytes)) --bytes;
    return text.substr(0, bytes);
}

}  // namespace

LineFileReader::LineFileReader(std::string_view bytes)
    : left_(withoutByteOrderMark(bytes)), isUtf8_(isValidUtf8(left_)) {}

LineFileReader::LineFileReader(std::string&& bytes)
    : kept_(std::move(bytes)), left_(withoutByteOrderMark(kept_)), isUtf8_(isValidUtf8(left_)) {}

LineFileReader LineFileReader::open(const std::string& path) {
    return LineFileReader(readWholeFile(path));
}

void LineFileReader::title(std::string_view) {
    const std::string_view found = lineAsItStands();
    const std::string_view end =
        found.substr(found.size() - std::min<std::size_t>(found.size(), 3));
    version_ = end.size() < 3 ? 0 : leadingNumber(end);
}

void LineFileReader::number(double& value) {
    const double read = leadingNumber(lineAsItStands());
    if (!std::isfinite(read)) throw RunTimeError(6);
    value = read;
}

void LineFileReader::integer(std::int16_t& value) {
    value = toInteger(leadingNumber(lineAsItStands()));
}

void LineFileReader::date(Date& value) { value = readDate(lineAsItStands()).value_or(Date{}); }

std::size_t LineFileReader::linesLeft(std::size_t most) const {
    std::size_t lines = 0;
    for (std::string_view text = left_; !text.empty() && lines < most; ++lines) takeFirstLine(text);
    return lines;
}

std::size_t LineFileReader::count(std::size_t, std::size_t linesEach) {
    const double stated = leadingNumber(lineAsItStands());
    statedCount_ = 0;
    if (!(stated >= 1)) return 0;
    // No count larger than the number of bytes can be true.
    statedCount_ = static_cast<std::size_t>(std::min(stated, 1e15));
    const std::size_t each = std::max<std::size_t>(linesEach, 1);
    const std::size_t most = std::min(statedCount_, left_.size() + 1) * each;
    const std::size_t fits = linesLeft(most) / each + 1;
    return std::min(statedCount_, fits);
}

std::string_view LineFileReader::item() {
    std::string_view left;
    if (rest_) {
        left = *rest_;
        rest_.reset();
    } else {
        left = takeLine();
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

std::string_view LineFileReader::takeLine() {
    if (left_.empty()) throw RunTimeError(62);
    ++lineNumber_;
    const std::size_t before = left_.size();
    const std::string_view line = takeFirstLine(left_);
    lineEnded_ = before > left_.size() + line.size();
    return line;
}

std::string_view LineFileReader::lineAsItStands() {
    const std::string_view found = rest_ ? *rest_ : takeLine();
    rest_.reset();
    return found;
}

std::string LineFileReader::line() {
    const std::string_view found = lineAsItStands();
    return isUtf8_ ? std::string(found) : windows1252Text(found);
}

std::string LineFileReader::textOf(std::string_view line) const {
    std::string found = isUtf8_ ? std::string(line) : windows1252Text(line);
    if (carriesBytes(found)) found = uncarriedText(found);
    return found;
}

void LineFileReader::text(std::string& value) {
    std::string_view found = lineAsItStands();
    const std::size_t length = lengthOf(found);
    if (length <= roomForNames_) {
        roomForNames_ -= length;
    } else if (found.size() > keptOfLongName) {
        if (shortenedLine_ == 0) shortenedLine_ = lineNumber_;
        found = isUtf8_ ? beginningOf(found, keptOfLongName) : found.substr(0, keptOfLongName);
    }
    value = textOf(found);
}

void LineFileReader::text(SharedText& value) { value = textOf(fitting(lineAsItStands(), 0)); }

std::size_t LineFileReader::lengthOf(std::string_view line) const {
    return isUtf8_ ? line.size() : windows1252Length(line);
}

std::string_view LineFileReader::fitting(std::string_view line, std::size_t beside) {
    const std::size_t room = roomForTexts - std::min(beside, roomForTexts);
    if (lengthOf(line) <= room) return line;
    if (shortenedLine_ == 0) shortenedLine_ = lineNumber_;
    constexpr std::size_t bytesOfASign = 3;
    return isUtf8_ ? beginningOf(line, room) : line.substr(0, room / bytesOfASign);
}

void LineFileReader::lines(std::size_t count, SharedText& text) {
    std::size_t there = 0, length = 0;
    for (std::string_view ahead = left_; there < count && !ahead.empty(); ++there) {
        const std::string_view line = takeFirstLine(ahead);
        length += 2 + lengthOf(line);
    }
    std::string all;
    all.reserve(std::min(length, roomForTexts + 2 * there));
    for (std::size_t i = 0; i < there; ++i) {
        if (i > 0) all += "\r\n";
        const std::string_view line = fitting(takeLine(), all.size());
        if (isUtf8_)
            all += line;
        else
            appendWindows1252(all, line);
    }
    text = std::move(all);
    if (there < count) throw RunTimeError(62);
}

void LineFileReader::skipLines(std::size_t count) {
    for (; count > 0; --count) takeLine();
}

void LineFileWriter::title(std::string_view prefix) {
    fixed(std::string(prefix).append(fileVersion));
}

void LineFileWriter::textItem(std::string_view value) {
    if (isValidUtf8(value))
        fixed(value);
    else
        fixed(carriedText(value));
}

void LineFileWriter::lines(std::size_t count, std::string_view text) {
    makeRoomFor(text.size() + count);
    std::size_t start = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t feed = std::min(text.find('\n', start), text.size());
        std::string_view line = text.substr(start, feed - start);
        if (line.ends_with('\r')) line.remove_suffix(1);
        textItem(line);
        start = feed + 1;
    }
}

void LineFileWriter::makeRoomFor(std::size_t bytes) {
    constexpr std::size_t isLong = std::size_t{1} << 20, roomBehind = std::size_t{1} << 18;
    if (bytes > isLong) text_.reserve(text_.size() + bytes + roomBehind);
}

void LineFileWriter::fixed(std::string_view text) {
    makeRoomFor(text.size());
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
