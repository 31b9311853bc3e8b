// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

/// "2026-01-15"
std::string isoText(const Date& date);

/// Reads "2026-01-15", also between number signs as files hold it ("#2026-01-15#"). Nothing when
/// the text is no day of the calendar.
std::optional<Date> readDate(std::string_view text);

/// The day by the computer's clock.
Date dateOfToday();

}  // namespace varnholt
