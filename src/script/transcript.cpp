// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/transcript.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>

#include "basis/number_text.h"
#include "script/report_source.h"

namespace varnholt {
namespace {

struct ShownWriter {
    std::string operator()(const std::string& text) const { return quotedText(text); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(double number) const { return numberText(number); }
    std::string operator()(const Date& date) const { return isoText(date); }

    template <class Element>
    std::string operator()(const std::vector<Element>& list) const {
        std::string text;
        for (const Element& element : list) text += (text.empty() ? "" : ", ") + (*this)(element);
        return "[" + text + "]";
    }
};

}  // namespace

std::string quotedText(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
            case '\n':
                quoted += "\\n";
                break;
            case '\r':
                quoted += "\\r";
                break;
            case '\t':
                quoted += "\\t";
                break;
            case '"':
                quoted += "\\\"";
                break;
            case '\\':
                quoted += "\\\\";
                break;
            default:
                quoted += c;
        }
    }
    return quoted + '"';
}

std::string numberText(double number) {
    const double size = std::fabs(number);
    const bool readable = size >= 1e-5 && size < 1e16;
    if (!readable) return shortestText(number);
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

std::string shownText(const Shown& value) { return std::visit(ShownWriter{}, value); }

void Transcript::line(const std::string& text) { out_ << text << '\n' << std::flush; }

std::string toldReport(const std::string& object, const std::string& caption) {
    return "report " + object + " " + quotedText(caption);
}

}  // namespace varnholt
