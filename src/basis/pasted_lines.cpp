// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/pasted_lines.h"

#include <utility>

namespace varnholt {

std::vector<std::string> PastedLines::all() const {
    std::vector<std::string> lines = ended;
    if (!rest.empty()) lines.push_back(rest);
    return lines;
}

PastedLines pastedLines(std::string_view text) {
    PastedLines lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool feed = text[i] == '\n';
        const bool afterReturn = feed && i > 0 && text[i - 1] == '\r';
        if (afterReturn) continue;
        if (feed || text[i] == '\r')
            lines.ended.push_back(std::exchange(lines.rest, {}));
        else
            lines.rest += text[i];
    }
    return lines;
}

}  // namespace varnholt
