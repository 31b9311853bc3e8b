// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace varnholt {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

/// Length of the number that stands at the start of the text: [sign] digits [. digits] [exponent].
std::size_t numberLength(std::string_view text) {
    std::size_t i = 0;
    const auto digits = [&] {
        const std::size_t from = i;
        while (i < text.size() && isDigit(text[i])) ++i;
        return i - from;
    };
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t mantissa = digits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        mantissa += digits();
    }
    if (mantissa == 0) return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        const std::size_t beforeExponent = i++;
        if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
        if (digits() == 0) i = beforeExponent;
    }
    return i;
}

struct Picture {
    std::size_t wholeDigits = 0;
    std::size_t decimals = 0;
    std::size_t decimalsAlways = 0;
};

Picture readPicture(std::string_view text) {
    Picture picture;
    const std::size_t point = std::min(text.find('.'), text.size());
    for (const char c : text.substr(0, point)) picture.wholeDigits += c == '0';
    if (point == text.size()) return picture;
    for (const char c : text.substr(point + 1)) {
        if (c != '0' && c != '#') continue;
        ++picture.decimals;
        if (c == '0') picture.decimalsAlways = picture.decimals;
    }
    return picture;
}

/// Adds one unit in the last place of a digit string; the string may grow at the front.
void incrementDigits(std::string& digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

/// The digits of |value| in units of 10^-decimals, rounded half away from zero on its shortest
/// decimal text.
std::string scaledDigits(double magnitude, std::size_t decimals) {
    std::array<char, 32> buffer{};  // 17 digits at most, a point and the exponent
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                      std::chars_format::scientific);
    const std::string_view text(buffer.data(),
                                static_cast<std::size_t>(result.ptr - buffer.data()));
    const std::size_t mark = text.find('e');
    std::string digits(text.substr(0, mark));
    digits.erase(std::remove(digits.begin(), digits.end(), '.'), digits.end());
    const auto exponent = static_cast<std::ptrdiff_t>(leadingNumber(text.substr(mark + 1)));

    const std::ptrdiff_t kept = exponent + 1 + static_cast<std::ptrdiff_t>(decimals);
    const auto size = static_cast<std::size_t>(std::max<std::ptrdiff_t>(kept, 0));
    const bool up = kept >= 0 && size < digits.size() && digits[size] >= '5';
    digits.resize(size, '0');
    if (up) incrementDigits(digits);
    if (digits.size() < decimals) digits.insert(0, decimals - digits.size(), '0');
    return digits;
}

}  // namespace

std::optional<double> readLeadingNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    std::string_view number = text.substr(0, numberLength(text));
    if (number.empty()) return std::nullopt;
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    // from_chars leaves the value alone where the exponent is out of range.
    if (result.ec == std::errc::result_out_of_range) {
        const std::size_t exponent = number.find_first_of("eE");
        const bool tiny = exponent != std::string_view::npos && exponent + 1 < number.size() &&
                          number[exponent + 1] == '-';
        value = tiny || number.front() == '.' ? 0 : HUGE_VAL;
    }
    return negative ? -value : value;
}

std::optional<double> readPlainNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    if (text.empty() || numberLength(text) < text.size()) return std::nullopt;
    return readLeadingNumber(text);
}

double leadingNumber(std::string_view text) { return readLeadingNumber(text).value_or(0); }

std::string formatNumber(double value, std::string_view pictureText) {
    const Picture picture = readPicture(pictureText);
    std::string digits =
        scaledDigits(std::isfinite(value) ? std::fabs(value) : 0, picture.decimals);
    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    std::string whole = digits.substr(0, digits.size() - picture.decimals);
    std::string fraction = digits.substr(digits.size() - picture.decimals);
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() < picture.wholeDigits)
        whole.insert(whole.begin(), picture.wholeDigits - whole.size(), '0');
    while (fraction.size() > picture.decimalsAlways && fraction.back() == '0') fraction.pop_back();
    std::string text = std::signbit(value) && !zero ? "-" : "";
    text += whole;
    if (picture.decimals > 0) text += "." + fraction;
    return text;
}

std::string shortestText(double value) {
    if (value == 0) return "0";
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), end.ptr};
}

std::string formatText(std::string_view text, std::string_view picture) {
    const bool left = !picture.empty() && picture.front() == '!';
    const auto width = static_cast<std::size_t>(std::count(picture.begin(), picture.end(), '@'));
    // Characters are counted, not bytes: continuation bytes of UTF-8 take no room.
    const auto characters =
        static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
        }));
    const std::string padding(width > characters ? width - characters : 0, ' ');
    return left ? std::string(text) + padding : padding + std::string(text);
}

}  // namespace varnholt
