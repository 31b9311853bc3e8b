// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/item_reader.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "basis/number_text.h"
#include "basis/run_time_error.h"

namespace varnholt {
namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view lineEnds = "\r\n";

bool isOneOf(char c, std::string_view these) { return these.find(c) != std::string_view::npos; }

}  // namespace

void ItemReader::skipBlanks(bool linesToo) {
    while (at_ < text_.size() &&
           (isOneOf(text_[at_], blanks) || (linesToo && isOneOf(text_[at_], lineEnds))))
        ++at_;
}

void ItemReader::requireMore() const {
    if (at_ >= text_.size()) throw RunTimeError(62);
}

std::string_view ItemReader::text() {
    skipBlanks(false);
    requireMore();
    return item();
}

double ItemReader::number() {
    skipBlanks(true);
    requireMore();
    const std::string_view found = item();
    if (found.empty()) return 0;
    const std::optional<double> value = readLeadingNumber(found);
    if (!value) throw RunTimeError(13);
    if (!std::isfinite(*value)) throw RunTimeError(6);
    return *value;
}

void ItemReader::skipToText() {
    while (text().empty()) continue;
}

/// The item that begins here, and goes behind what ends it.
std::string_view ItemReader::item() {
    if (text_[at_] == '"') return quoted();
    const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
    std::string_view found = text_.substr(at_, end - at_);
    while (!found.empty() && isOneOf(found.back(), blanks)) found.remove_suffix(1);
    at_ = end;
    endItem();
    return found;
}

/// A quote that is never closed lasts to the end.
std::string_view ItemReader::quoted() {
    const std::size_t start = at_ + 1;
    const std::size_t end = std::min(text_.find('"', start), text_.size());
    at_ = std::min(text_.find_first_of(",\r\n", end), text_.size());
    endItem();
    return text_.substr(start, end - start);
}

void ItemReader::endItem() {
    if (at_ >= text_.size()) return;
    const bool pair = text_.substr(at_, 2) == "\r\n";
    at_ += pair ? 2 : 1;
}

}  // namespace varnholt
