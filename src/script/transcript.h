// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basis/date.h"

namespace varnholt {

/// What a control shows of one property, or what a public value holds.
using Shown =
    std::variant<std::string, bool, int, double, Date, std::vector<std::string>, std::vector<int>>;

/// In double quotes, with line ends, tabs, quotes and backslashes escaped.
std::string quotedText(std::string_view text);
/// As many digits as bring back the same double, without an exponent as far as that is readable.
std::string numberText(double number);
/// As the transcript writes it: texts in quotes, lists in square brackets.
std::string shownText(const Shown& value);

/// The record of what a script saw, one line for each thing. Every line is flushed, so that a
/// program at the other end of a pipe can answer it.
class Transcript {
 public:
    explicit Transcript(std::ostream& out) : out_(out) {}

    void line(const std::string& text);
    /// A line could not be written: the disk is full, or nobody reads any more.
    bool hasFailed() const { return !out_; }

 private:
    std::ostream& out_;
};

}  // namespace varnholt
