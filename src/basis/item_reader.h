// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnholt {

/// Reads a text as a stream of items, the way a list-directed read does: numbers and quoted
/// strings, separated by commas or line ends, with blanks around them.
///
/// Where a number is awaited a line end is as good as a blank, so that it makes no difference how
/// the numbers are broken into lines; two commas in a row have an empty item between them. Past
/// the end is RunTimeError 62.
class ItemReader {
 public:
    /// The text must outlive the reader.
    explicit ItemReader(std::string_view text) : text_(text) {}

    /// The next item as it stands, without its quotes. An empty line is an empty item.
    std::string_view text();
    /// The number that the next item begins with; 0 of an empty item. Text in its place is
    /// RunTimeError 13, a number beyond a double RunTimeError 6.
    double number();
    /// Passes over empty items, and over the first one that is not empty.
    void skipToText();

 private:
    void skipBlanks(bool linesToo);
    void requireMore() const;
    std::string_view item();
    std::string_view quoted();
    void endItem();

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace varnholt
