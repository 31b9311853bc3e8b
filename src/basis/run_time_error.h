// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace varnholt {

/// A failure of the world or of the numbers, told by number and description as users know them
/// from the program's messages: 5, 6, 9, 11, 13, 53, 57, 61, 62, 70, 75, 76.
class RunTimeError : public std::runtime_error {
 public:
    static constexpr int fileNotFound = 53;

    explicit RunTimeError(int number);
    /// Of a file or folder, whose path ends the description.
    RunTimeError(int number, const std::string& path);

    int number() const { return number_; }
    std::string description() const { return what(); }
    /// Number, " - " and description: the text of every error message.
    std::string message() const;

 private:
    int number_;
};

/// The description that goes with a run-time error's number; an unknown number has a general one.
const char* describeRunTimeError(int number);

/// a / b. Throws RunTimeError 11 when b is 0, whatever a is.
double divide(double a, double b);

/// A whole number of 16 bits from x, rounded half to even. Throws RunTimeError 6 outside 16 bits.
std::int16_t toInteger(double x);

/// Throws RunTimeError 9 unless index lies in [0, size).
void checkIndex(std::ptrdiff_t index, std::size_t size);

/// Element `index` of an array, a subscript out of range being RunTimeError 9.
template <class Array>
decltype(auto) at(Array& array, std::ptrdiff_t index) {
    checkIndex(index, array.size());
    return (array[static_cast<std::size_t>(index)]);
}

}  // namespace varnholt
