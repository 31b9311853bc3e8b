// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <type_traits>

#include "basis/date.h"

namespace varnholt {

// One line of a file for each value, the value's type telling the line's form. File is a
// LineFileReader or a LineFileWriter.

template <class File, class Value>
void item(File& file, Value& value) {
    using Stored = std::remove_const_t<Value>;
    if constexpr (std::is_same_v<Stored, double>)
        file.number(value);
    else if constexpr (std::is_same_v<Stored, std::int16_t>)
        file.integer(value);
    else if constexpr (std::is_same_v<Stored, Date>)
        file.date(value);
    else
        file.text(value);
}

/// Lines in the order of the arguments.
template <class File, class... Values>
void items(File& file, Values&... values) {
    (item(file, values), ...);
}

/// A project's results, to read into, or to write from.
template <class File, class Project>
auto& resultsFor(Project& project) {
    if constexpr (File::reading)
        return project.results.edit();
    else
        return *project.results;
}

}  // namespace varnholt
