// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/date.h"
#include "basis/shared_text.h"
#include "basis/text_encoding.h"

namespace varnholt {

/// The program's own version, as files carry it: "3.0".
inline constexpr std::string_view fileVersion = "3.0";

/// The labels and names of a file may take so many bytes in all: ten times those of the longest
/// list of zones. Windows keep several copies of them, which of a file that is one endless line
/// would take the machine's memory.
inline constexpr std::size_t roomForNames = std::size_t{16} << 20;
/// What is kept of a label or name beyond them.
inline constexpr std::size_t keptOfLongName = 255;
/// Other texts, such as comments, are held once. They may take so many bytes: twice a project file
/// of 64 MB, which only one of Windows-1252 can exceed, whose signs become up to three bytes.
inline constexpr std::size_t roomForTexts = std::size_t{128} << 20;

/// A part of a file, by its name, that is there and cannot be read.
struct UnreadPart {
    std::string name;
    std::size_t line = 0;  ///< where it begins, from 1

    friend bool operator==(const UnreadPart&, const UnreadPart&) = default;
};

/// Reads a line-oriented text file item by item. LineFileReader and LineFileWriter have the same
/// members, so that one function template describes a file in both directions.
///
/// A line past the end is RunTimeError 62; a whole number beyond 16 bits and a number beyond a
/// double are RunTimeError 6.
class LineFileReader {
 public:
    static constexpr bool reading = true;

    /// Reads a file's bytes, which must outlive the reader. They are UTF-8, or Windows-1252 where
    /// the file as a whole is not valid UTF-8; a byte order mark is passed over. CR LF, LF and CR
    /// end a line.
    explicit LineFileReader(std::string_view bytes);
    explicit LineFileReader(const char* bytes) : LineFileReader(std::string_view(bytes)) {}
    /// The same of bytes that the reader keeps.
    explicit LineFileReader(std::string&& bytes);
    LineFileReader(const LineFileReader&) = delete;
    LineFileReader& operator=(const LineFileReader&) = delete;
    /// Opens and reads a file; throws as readWholeFile.
    static LineFileReader open(const std::string& path);

    /// A title line that ends in the version, read from its last three characters. A shorter
    /// line, or one that ends in other text, is version 0.
    void title(std::string_view prefix);
    /// Whether the file holds what came with this version.
    bool since(double version) const { return version_ >= version; }
    double version() const { return version_; }

    /// A label or a name. Of a file's labels and names so many bytes are kept as roomForNames;
    /// of one that is beyond them the beginning stands.
    void text(std::string& value);
    /// A text that may be long: as many of its bytes as there is room for them in roomForTexts.
    void text(SharedText& value);
    void number(double& value);
    void integer(std::int16_t& value);
    void date(Date& value);
    /// Numbers that stand on one line, separated by commas. They are read one after the other,
    /// wherever the lines end between them.
    template <class... Numbers>
    void row(Numbers&... values) {
        (readItem(values), ...);
    }
    /// A line with no meaning to the reader.
    void fixed(std::string_view) { lineAsItStands(); }

    /// A count of items that take at least `linesEach` lines each: bounded by what the file can
    /// hold, so that a false count cannot exhaust the memory. A negative count is 0; a count that
    /// the file does not hold is kept at what fits, plus one so that reading meets the end of the
    /// file and tells it.
    std::size_t count(std::size_t written, std::size_t linesEach);

    /// The number that the count read last states, before it is bounded.
    std::size_t statedCount() const { return statedCount_; }

    /// A whole line; what is left of one that was read in part.
    std::string line();
    /// So many lines as one text, with CR LF between them. Where there are fewer it is what there
    /// is, and RunTimeError 62; beyond roomForTexts it is what there is room for.
    void lines(std::size_t count, SharedText& text);
    /// Passes over so many lines. RunTimeError 62 where there are fewer.
    void skipLines(std::size_t count);
    bool atEnd() const { return left_.empty(); }
    /// Whether anything but blanks and line ends is left.
    bool holdsMore() const { return left_.find_first_not_of(" \t\r\n") != left_.npos; }
    /// What is left, from the next line on.
    std::string_view rest() const { return left_; }
    /// Whether something ends the line read last, or the file just stops there.
    bool isLineEnded() const { return lineEnded_; }
    /// A part behind the body, by its name, begins at the next line but cannot be read.
    void noteUnread(std::string_view part) {
        unread_.push_back({std::string(part), lineNumber_ + 1});
    }
    const std::vector<UnreadPart>& unread() const { return unread_; }
    /// From the next line on stands what nothing in the file accounts for.
    void noteLeftover() { leftoverLine_ = lineNumber_ + 1; }
    /// The line noted so; 0 for none.
    std::size_t leftoverLine() const { return leftoverLine_; }
    /// The first line of whose text only the beginning was kept; 0 for none.
    std::size_t shortenedLine() const { return shortenedLine_; }
    /// Number of the line read last, from 1; 0 before the first.
    std::size_t lineNumber() const { return lineNumber_; }

 private:
    std::string_view takeLine();
    /// A line's bytes as the text that was written.
    std::string textOf(std::string_view line) const;
    std::size_t lengthOf(std::string_view line) const;
    /// As much of the line read last as there is room for beside so many bytes of texts; notes
    /// where that is not all.
    std::string_view fitting(std::string_view line, std::size_t beside);
    /// The line's bytes, in whichever encoding: a number needs no copy of a line that is long.
    std::string_view lineAsItStands();
    /// How many lines are left, at most so many.
    std::size_t linesLeft(std::size_t most) const;
    std::string_view item();
    void readItem(double& value);
    void readItem(std::int16_t& value);

    std::string kept_;
    std::string_view left_;  ///< from the next line on
    bool isUtf8_;
    /// What is left behind the comma of the line read last.
    std::optional<std::string_view> rest_;
    std::size_t lineNumber_ = 0;
    std::size_t statedCount_ = 0;
    double version_ = 0;
    bool lineEnded_ = false;
    std::vector<UnreadPart> unread_;
    std::size_t leftoverLine_ = 0;
    std::size_t roomForNames_ = roomForNames;
    std::size_t shortenedLine_ = 0;
};

/// Composes a line-oriented text file in memory.
class LineFileWriter {
 public:
    static constexpr bool reading = false;

    void title(std::string_view prefix);
    bool since(double) const { return true; }

    /// Bytes that are not UTF-8 are carried so that reading gives them back; see carriedText.
    void text(const std::string& value) { textItem(value); }
    void number(double value);
    void integer(std::int16_t value);
    void date(const Date& value);
    template <class... Numbers>
    void row(const Numbers&... values) {
        std::string line;
        ((line += (line.empty() ? "" : ",") + numberItem(values)), ...);
        fixed(line);
    }
    /// The lines of a text, so many, each an item of its own.
    void lines(std::size_t count, std::string_view text);
    /// Line ends inside a text become blanks, so that every item is one line, titles too.
    void fixed(std::string_view text);
    std::size_t count(std::size_t written, std::size_t linesEach);

    const std::string& bytes() const& { return text_; }
    std::string bytes() && { return std::move(text_); }

 private:
    static std::string numberItem(double value);
    void textItem(std::string_view value);
    /// Makes room for a text that is long: growing in steps would take it three times on the way.
    void makeRoomFor(std::size_t bytes);

    std::string text_;
};

}  // namespace varnholt
