// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/date.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <chrono>

namespace varnholt {
namespace {

std::optional<int> readPart(std::string_view& text) {
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc{} || value < 0) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return value;
}

}  // namespace

std::string isoText(const Date& date) {
    return fmt::format("{:04}-{:02}-{:02}", date.year, date.month, date.day);
}

std::optional<Date> readIsoDate(std::string_view text) {
    const std::optional<Date> date = readDate(text);
    return date && isoText(*date) == text ? date : std::nullopt;
}

std::optional<Date> readDate(std::string_view text) {
    while (!text.empty() && (text.front() == '#' || text.front() == ' ')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == '#' || text.back() == ' ')) text.remove_suffix(1);
    std::array<int, 3> parts{};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) {
            if (text.empty() || text.front() != '-') return std::nullopt;
            text.remove_prefix(1);
        }
        const std::optional<int> part = readPart(text);
        if (!part) return std::nullopt;
        parts[i] = *part;
    }
    if (!text.empty() || parts[0] < 1 || parts[0] > 9999 || parts[1] > 12 || parts[2] > 31)
        return std::nullopt;
    const std::chrono::year_month_day day{std::chrono::year{parts[0]},
                                          std::chrono::month{static_cast<unsigned>(parts[1])},
                                          std::chrono::day{static_cast<unsigned>(parts[2])}};
    if (!day.ok()) return std::nullopt;
    return Date{parts[0], parts[1], parts[2]};
}

}  // namespace varnholt
