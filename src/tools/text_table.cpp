// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/text_table.h"

#include <fmt/core.h>
#include <charconv>
#include <optional>
#include <set>
#include <stdexcept>

#include "basis/text_encoding.h"

namespace varnholt {
namespace {

std::string unescaped(std::string_view written) {
    std::string text;
    text.reserve(written.size());
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] != '\\' || i + 1 == written.size()) {
            text += written[i];
            continue;
        }
        switch (const char escape = written[++i]) {
            case 'n':
                text += '\n';
                break;
            case 'r':
                text += '\r';
                break;
            case 't':
                text += '\t';
                break;
            default:
                text += escape;
        }
    }
    return text;
}

struct Numbered {
    int number;
    std::string_view text;
};

/// A line's number and the text behind it; the blanks between them belong to neither.
std::optional<Numbered> numbered(std::string_view line) {
    Numbered entry{0, {}};
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), entry.number);
    if (error != std::errc()) return std::nullopt;
    const std::string_view rest = line.substr(static_cast<std::size_t>(end - line.data()));
    const std::size_t text = rest.find_first_not_of(" \t");
    if (text == 0) return std::nullopt;
    if (text != std::string_view::npos) entry.text = rest.substr(text);
    return entry;
}

std::string_view nextLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

void TextTable::read(std::string_view bytes, const std::string& fileName) {
    const std::string decoded = decodeText(bytes);
    std::string_view rest = decoded;
    std::set<int> here;
    for (int lineNumber = 1; !rest.empty(); ++lineNumber) {
        const std::string_view line = nextLine(rest);
        if (line.empty() || line.front() == '#') continue;
        const auto fault = [&](const std::string& what) {
            return std::runtime_error(fmt::format("{}:{}: {}", fileName, lineNumber, what));
        };
        const std::optional<Numbered> entry = numbered(line);
        if (!entry) throw fault("a text begins with its number");
        if (!here.insert(entry->number).second)
            throw fault(fmt::format("text {} stands twice", entry->number));
        texts_[entry->number] = unescaped(entry->text);
    }
}

const std::string& TextTable::text(int number) const {
    static const std::string none;
    const auto found = texts_.find(number);
    return found == texts_.end() ? none : found->second;
}

}  // namespace varnholt
