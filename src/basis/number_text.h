// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnholt {

/// Whether it is one of the ten digits, in any locale.
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The number that a text begins with: leading blanks, a sign, digits, one decimal point and an
/// exponent are taken, and reading stops at the first other character. Nothing readable gives 0.
double leadingNumber(std::string_view text);

/// The same, but nothing where the text does not begin with a number at all.
std::optional<double> readLeadingNumber(std::string_view text);

/// The number that the whole text is, blanks around it aside; nothing for any other text.
std::optional<double> readPlainNumber(std::string_view text);

/// A number in a picture such as "###0.0", "##0.0", "#.00" or "###0". The shortest decimal text
/// of the double is rounded half away from zero to the picture's decimals; "0" before the point is
/// a digit always shown; a value that rounds to zero carries no minus sign. Infinities and
/// not-a-numbers show as "0" would.
std::string formatNumber(double value, std::string_view picture);

/// The shortest decimal text that reads back as the same double: decimal point, no grouping. A zero
/// carries no minus sign, whatever it is the rest of.
std::string shortestText(double value);

/// A text in a field of as many characters as the picture has "@": right-aligned, or left-aligned
/// with a leading "!". A longer text is not cut.
std::string formatText(std::string_view text, std::string_view picture);

}  // namespace varnholt
