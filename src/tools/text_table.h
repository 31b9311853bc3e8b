// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace varnholt {

/// Numbered texts as their files hold them: one a line, its number, a tab or blanks, the text.
///
/// In the text "\n" is a line break, "\t" a tab, "\r" a carriage return and "\\" a backslash.
/// Empty lines, and lines that begin with "#", are passed over. A number alone is an empty text.
class TextTable {
 public:
    /// Takes the lines of one file. Throws std::runtime_error, which names the file and the line,
    /// for a line that does not begin with a number and for a number that the same file gives
    /// twice. A number of an earlier file is replaced.
    void read(std::string_view bytes, const std::string& fileName);

    /// Empty when there is no such number.
    const std::string& text(int number) const;
    bool has(int number) const { return texts_.count(number) > 0; }
    const std::map<int, std::string>& texts() const { return texts_; }

 private:
    std::map<int, std::string> texts_;
};

}  // namespace varnholt
