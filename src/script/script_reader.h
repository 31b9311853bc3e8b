// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/date.h"

namespace varnholt {

/// One command of a script: its first word, and the rest of the line after one blank.
struct ScriptLine {
    std::string command;
    std::string rest;
};

/// Reads a script line by line, so that another program may write it while it runs. Comments and
/// empty lines are passed over; LF and CR LF end a line and nothing else does; a line that is not
/// valid UTF-8 is read as Windows-1252; a byte order mark before the first line is dropped. Blanks
/// and tabs divide words and nothing else does.
class ScriptReader {
 public:
    /// @param name how faults call the script
    ScriptReader(std::istream& input, std::string name);

    /// Told with true before the program waits for a line that is not there yet, and with false
    /// when a line has been read.
    void setWaits(std::function<void(bool)> waits) { waits_ = std::move(waits); }

    /// The next command; nothing at the end. Throws ScriptFault for a line of more than 16 MB, of
    /// which the rest is not read.
    std::optional<ScriptLine> next();
    /// "FILE:LINE: what", of the line read last.
    std::string faultText(const std::string& what) const;

 private:
    bool readLine(std::string& text);

    std::istream& input_;
    std::string name_;
    std::function<void(bool)> waits_;
    std::size_t line_ = 0;
};

// Readers of a command's arguments. All throw ScriptFault for a text that is none.

/// Takes the first word off a text, and the one blank that follows it.
std::string takeWord(std::string& rest);
/// The only word of a text.
std::string onlyWord(const std::string& rest);
/// Throws when anything but blanks is left.
void requireEnd(std::string_view rest);
/// Without blanks at its ends.
std::string trimmed(std::string_view text);
/// A text with "\r", "\n", "\t" and "\\" as in C.
std::string unescaped(std::string_view text);
/// A whole number without sign, the whole text.
int readCount(std::string_view text);
/// A decimal number, the whole text.
double readNumber(std::string_view text);
/// "2026-01-15", a day from 0001-01-01 to 9999-12-31
Date readDay(std::string_view text);
/// "#3": an index from 0.
int readIndex(std::string_view text);
/// Whether the text is an index: a number sign and nothing but digits.
bool isIndex(std::string_view text);
/// "#0 #3 #7"
std::vector<int> readIndices(std::string rest);

/// "frmBHDesign#2"; without number when none is given.
struct WindowName {
    std::string form;
    std::optional<int> number;
};
WindowName readWindowName(std::string_view text);

/// "frmBHDesign#2.FLInletTempText(0)"; the member may hold further dots.
struct TargetName {
    WindowName window;
    std::string member;
};
TargetName readTarget(std::string_view text);

}  // namespace varnholt
