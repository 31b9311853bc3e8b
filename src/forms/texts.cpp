// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/texts.h"

#include <vector>

namespace varnholt {

std::string filledIn(const std::string& text, std::initializer_list<std::string> parts) {
    const std::vector<std::string> given = parts;
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' &&
                           static_cast<std::size_t>(text[i + 1] - '0') <= given.size();
        if (place)
            filled += given[static_cast<std::size_t>(text[++i] - '1')];
        else
            filled += text[i];
    }
    return filled;
}

namespace {

std::string without(const std::string& words, const char* around) {
    const std::size_t first = words.find_first_not_of(around);
    if (first == std::string::npos) return {};
    return words.substr(first, words.find_last_not_of(around) - first + 1);
}

}  // namespace

std::string captionWords(std::string caption) {
    while (!caption.empty() && (caption.back() == ':' || caption.back() == ' ')) caption.pop_back();
    return caption;
}

std::string unitWords(const std::string& caption) {
    const std::string words = without(caption, " :");
    const bool inParentheses = words.starts_with('(') && words.ends_with(')');
    return inParentheses ? without(words.substr(1, words.size() - 2), " ") : words;
}

}  // namespace varnholt
