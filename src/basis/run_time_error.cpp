// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/run_time_error.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <limits>

namespace varnholt {
namespace {

struct ErrorRow {
    int number;
    const char* description;
};

constexpr std::array<ErrorRow, 12> errors{{
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {9, "Subscript out of range"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {53, "File not found"},
    {57, "Device I/O error"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {70, "Permission denied"},
    {75, "Path/File access error"},
    {76, "Path not found"},
}};

}  // namespace

const char* describeRunTimeError(int number) {
    for (const ErrorRow& row : errors)
        if (row.number == number) return row.description;
    return "Application-defined or object-defined error";
}

RunTimeError::RunTimeError(int number)
    : std::runtime_error(describeRunTimeError(number)), number_(number) {}

RunTimeError::RunTimeError(int number, const std::string& path)
    : std::runtime_error(fmt::format("{}: {}", describeRunTimeError(number), path)),
      number_(number) {}

std::string RunTimeError::message() const { return fmt::format("{} - {}", number_, what()); }

double divide(double a, double b) {
    if (b == 0.0) throw RunTimeError(11);
    return a / b;
}

std::int16_t toInteger(double x) {
    // nearbyint in the default rounding mode takes a half to the even neighbour.
    const double rounded = std::nearbyint(x);
    using Limits = std::numeric_limits<std::int16_t>;
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) throw RunTimeError(6);
    return static_cast<std::int16_t>(rounded);
}

void checkIndex(std::ptrdiff_t index, std::size_t size) {
    if (index < 0 || static_cast<std::size_t>(index) >= size) throw RunTimeError(9);
}

}  // namespace varnholt
