// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "basis/date.h"

namespace varnholt {

// One line of a file for each value, the value's type telling the line's form. File is a
// LineFileReader or a LineFileWriter.

template <class File>
void item(File& file, double& value) {
    file.number(value);
}
template <class File>
void item(File& file, std::int16_t& value) {
    file.integer(value);
}
template <class File>
void item(File& file, std::string& value) {
    file.text(value);
}
template <class File>
void item(File& file, Date& value) {
    file.date(value);
}

/// Lines in the order of the arguments.
template <class File, class... Values>
void items(File& file, Values&... values) {
    (item(file, values), ...);
}

}  // namespace varnholt
