// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

/// A calendar day. The default is the platform's zero date, which is also what an unreadable
/// date of a file becomes.
struct Date {
    int year = 1899;
    int month = 12;
    int day = 30;

    friend bool operator==(const Date&, const Date&) = default;
};

// Days are those of the Gregorian calendar, which is carried back to the years before it was
// introduced: 0001-01-01 to 9999-12-31. There is no year 0.

/// "2026-01-15"
std::string isoText(const Date& date);

/// Reads "2026-01-15" and no other form: ten characters. Nothing when the text is no day of the
/// calendar.
std::optional<Date> readIsoDate(std::string_view text);

/// Reads a date as files hold it: "#2026-01-15#", also with blanks around it, without the number
/// signs, and with fewer digits. Nothing when the text is no day of the calendar.
std::optional<Date> readDate(std::string_view text);

/// The day by the computer's clock.
Date dateOfToday();
/// The time of day by the computer's clock: "14:03".
std::string timeOfDay();
/// A moment counts nanoseconds.
inline constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
/// A moment, ns since 1970, by the computer's clock and in its zone: "2026-01-15 14:03:07".
std::string localTimeText(std::int64_t moment);
/// The moment it is.
std::int64_t presentMoment();
/// The same by a clock that nobody can set.
std::chrono::steady_clock::time_point steadyMoment();

}  // namespace varnholt
