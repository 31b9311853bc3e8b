// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/what_if_block.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "design/borehole_project.h"
#include "design/whatIf/what_if_values.h"
#include "persistence/block_title.h"
#include "persistence/borehole_body.h"

namespace varnholt {
namespace {

constexpr BlockTitle whatIfTitle{"What If", "What If 1.0"};
constexpr std::string_view lastLine = "End";
constexpr std::string_view currencyName = "currency";
constexpr std::string_view dateName = "pricesOf";
constexpr std::string_view cornerName = "corner";
constexpr std::string_view noGoName = "noGo";
constexpr std::string_view alternativeName = "alternative";

std::string named(std::string_view of, const std::string& value) {
    return std::string(of) + ' ' + value;
}

std::string joined(const Polygon& polygon) {
    std::string numbers;
    for (const Point& corner : polygon)
        numbers +=
            (numbers.empty() ? "" : " ") + shortestText(corner.x) + ' ' + shortestText(corner.y);
    return numbers;
}

// Writing.

void writeValues(LineFileWriter& file, const WhatIfInputs& values) {
    const WhatIfInputs builtIn;
    for (const WhatIfChoice& choice : whatIfChoices())
        if (choice.in(values) != choice.in(builtIn))
            file.fixed(named(choice.name, std::to_string(choice.in(values))));
    for (const WhatIfNumber& number : whatIfNumbers())
        if (number.in(values) != number.in(builtIn))
            file.fixed(named(number.name, shortestText(number.in(values))));
    if (values.currency != builtIn.currency) file.text(named(currencyName, values.currency));
    if (values.pricesOf != builtIn.pricesOf) file.text(named(dateName, values.pricesOf));
}

void writeAlternative(LineFileWriter& file, const KeptAlternative& alternative) {
    LineFileWriter body;
    describeBoreholeBody(body, *alternative.design);
    const std::string& bytes = body.bytes();
    file.fixed(alternativeName);
    file.text(alternative.name);
    file.fixed(std::to_string(std::count(bytes.begin(), bytes.end(), '\n')));
    std::string_view left = bytes;
    while (!left.empty()) {
        const std::size_t end = left.find("\r\n");
        file.fixed(left.substr(0, end));
        left.remove_prefix(end + 2);
    }
}

// Reading. What is no value of the block ends it.

struct Damaged {};

double numberOf(std::string_view text) {
    const std::optional<double> number = readPlainNumber(text);
    if (!number || !std::isfinite(*number)) throw Damaged();
    return *number;
}

Polygon polygonOf(std::string_view text) {
    std::vector<double> numbers;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        numbers.push_back(numberOf(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (numbers.empty() || numbers.size() % 2 != 0) throw Damaged();
    Polygon polygon;
    for (std::size_t i = 0; i < numbers.size(); i += 2)
        polygon.push_back({numbers[i], numbers[i + 1]});
    return polygon;
}

class BlockReader {
 public:
    explicit BlockReader(std::string_view text) : file_(text) {}

    /// Throws Damaged, or RunTimeError where the file ends first.
    WhatIfInputs read() {
        if (nextLine() != whatIfTitle.line) throw Damaged();
        for (std::string line = nextLine(); line != lastLine; line = nextLine()) take(line);
        return std::move(values_);
    }
    std::size_t lines() const { return file_.lineNumber(); }

 private:
    std::string nextLine() {
        std::string line;
        file_.text(line);
        if (!file_.isLineEnded()) throw Damaged();
        return line;
    }

    void take(const std::string& line) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string of = line.substr(0, blank);
        const std::string rest = blank < line.size() ? line.substr(blank + 1) : std::string();
        if (of.empty()) throw Damaged();
        if (of == alternativeName)
            takeAlternative();
        else if (!takeText(of, rest) && !takeLand(of, rest) && !takeNumber(of, rest) &&
                 !takeChoice(of, rest))
            values_.unknownLines.push_back(line);
    }

    bool takeText(const std::string& of, const std::string& text) {
        if (of != currencyName && of != dateName) return false;
        (of == currencyName ? values_.currency : values_.pricesOf) = text;
        return true;
    }

    bool takeLand(const std::string& of, const std::string& text) {
        if (of != cornerName && of != noGoName) return false;
        const Polygon corners = polygonOf(text);
        if (of == noGoName)
            values_.land.noGo.push_back(corners);
        else if (corners.size() == 1)
            values_.land.corner.push_back(corners.front());
        else
            throw Damaged();
        return true;
    }

    bool takeNumber(const std::string& of, const std::string& text) {
        const auto& all = whatIfNumbers();
        const auto known = std::find_if(all.begin(), all.end(),
                                        [&](const WhatIfNumber& each) { return each.name == of; });
        if (known == all.end()) return false;
        known->in(values_) = numberOf(text);
        return true;
    }

    bool takeChoice(const std::string& of, const std::string& text) {
        const auto& all = whatIfChoices();
        const auto known = std::find_if(all.begin(), all.end(),
                                        [&](const WhatIfChoice& each) { return each.name == of; });
        if (known == all.end()) return false;
        const double number = numberOf(text);
        if (number < 0 || number > known->most || number != std::floor(number)) throw Damaged();
        known->in(values_) = static_cast<std::int16_t>(number);
        return true;
    }

    void takeAlternative() {
        KeptAlternative alternative;
        alternative.name = nextLine();
        const double count = numberOf(nextLine());
        if (count < 0 || count > static_cast<double>(file_.rest().size())) throw Damaged();
        const std::string_view before = file_.rest();
        file_.skipLines(static_cast<std::size_t>(count));
        const std::string_view lines = before.substr(0, before.size() - file_.rest().size());
        // The body stands here in the form of the program's own version, without a head that says
        // so.
        LineFileReader body(named(whatIfTitle.name, std::string(fileVersion)) + "\r\n" +
                            std::string(lines));
        body.title(whatIfTitle.name);
        auto design = std::make_shared<BoreholeProject>();
        describeBoreholeBody(body, *design);
        if (!body.atEnd()) throw Damaged();
        alternative.design = std::move(design);
        values_.alternatives.push_back(std::move(alternative));
    }

    LineFileReader file_;
    WhatIfInputs values_;
};

/// How many lines stand before the block; none where there is no block.
std::optional<std::size_t> linesBefore(std::string_view text) {
    if (whatIfTitle.begins(text)) return 0;
    for (LineFileReader file(text); !file.atEnd();)
        if (file.line().starts_with(whatIfTitle.name)) return file.lineNumber() - 1;
    return std::nullopt;
}

/// Goes on to the block. What is passed over is left over, but for what has been named as unread.
void passTo(LineFileReader& file, std::size_t lines) {
    const auto& unread = file.unread();
    const bool named = !unread.empty() && unread.back().line == file.lineNumber() + 1;
    if (lines > 0 && !named) file.noteLeftover();
    file.skipLines(lines);
}

}  // namespace

void describeWhatIf(LineFileWriter& file, const WhatIfInputs& values) {
    if (values == WhatIfInputs{}) return;
    file.fixed(whatIfTitle.line);
    writeValues(file, values);
    for (const Point& corner : values.land.corner) file.fixed(named(cornerName, joined({corner})));
    for (const Polygon& area : values.land.noGo) file.fixed(named(noGoName, joined(area)));
    for (const KeptAlternative& each : values.alternatives)
        if (each.design) writeAlternative(file, each);
    for (const std::string& line : values.unknownLines) file.text(line);
    file.fixed(lastLine);
}

void describeWhatIf(LineFileReader& file, WhatIfInputs& values) {
    values = {};
    if (!file.holdsMore()) return;
    const std::optional<std::size_t> before = linesBefore(file.rest());
    if (!before) return;
    passTo(file, *before);
    BlockReader block(file.rest());
    try {
        values = block.read();
        file.skipLines(block.lines());
    } catch (const Damaged&) {
        file.noteUnread(whatIfTitle.name);
    } catch (const RunTimeError&) {
        file.noteUnread(whatIfTitle.name);
    }
}

}  // namespace varnholt
