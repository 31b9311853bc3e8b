// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/pdf_supplement.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <string_view>

namespace varnholt {
namespace {

constexpr char32_t replacement = 0xFFFD;

/// The next character of a UTF-8 text, which loses it.
char32_t takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() < length || (lead >= 0x80 && lead < 0xC0)) {
        text.remove_prefix(1);
        return replacement;
    }
    char32_t character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        character = (character << 6) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

/// A text as the format holds any language: UTF-16 with a mark before it, in hexadecimal digits.
std::string textString(std::string_view text) {
    std::string hex = "<FEFF";
    const auto add = [&](char32_t unit) { hex += fmt::format("{:04X}", std::uint32_t{unit}); };
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
        if (character < 0x10000) {
            add(character);
        } else {
            add(0xD800 + ((character - 0x10000) >> 10));
            add(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return hex + ">";
}

std::size_t placeOf(const std::string& pdf, std::string_view words, std::size_t from = 0) {
    const std::size_t place = pdf.find(words, from);
    if (place == std::string::npos)
        throw std::invalid_argument(fmt::format("the file has no {}", words));
    return place;
}

std::size_t numberAt(const std::string& pdf, std::size_t place) {
    while (place < pdf.size() && (pdf[place] == ' ' || pdf[place] == '\n' || pdf[place] == '\r'))
        ++place;
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(pdf.data() + place, pdf.data() + pdf.size(), number);
    if (error != std::errc()) throw std::invalid_argument("the file lacks a number");
    return number;
}

/// The number behind a key of a dictionary: "/Root 1 0 R" gives 1.
std::size_t numberOf(const std::string& dictionary, std::string_view key) {
    return numberAt(dictionary, placeOf(dictionary, key) + key.size());
}

/// A file as far as an update must know it.
class PdfFile {
 public:
    explicit PdfFile(const std::string& pdf) : pdf_(pdf) {
        const std::size_t end = pdf.rfind("startxref");
        if (end == std::string::npos) throw std::invalid_argument("the file has no end");
        tableAt_ = numberAt(pdf, end + 9);
        const std::size_t trailer = placeOf(pdf, "trailer", tableAt_);
        trailer_ = pdf.substr(trailer, end - trailer);
    }

    std::size_t tableAt() const { return tableAt_; }
    std::size_t size() const { return numberOf(trailer_, "/Size"); }
    std::size_t root() const { return numberOf(trailer_, "/Root"); }
    std::size_t info() const { return numberOf(trailer_, "/Info"); }

    /// What stands between "obj" and "endobj".
    std::string object(std::size_t number) const {
        // Of each object the table has one line of twenty bytes behind the line of their number.
        const std::size_t header = placeOf(pdf_, "\n", placeOf(pdf_, "\n", tableAt_) + 1) + 1;
        const std::size_t at = numberAt(pdf_, header + 20 * number);
        const std::size_t begin = placeOf(pdf_, "obj", at) + 3;
        return pdf_.substr(begin, placeOf(pdf_, "endobj", begin) - begin);
    }

    /// The objects of the pages, in their order.
    std::vector<std::size_t> pages() const {
        const std::string tree = object(numberOf(object(root()), "/Pages"));
        const std::size_t begin = placeOf(tree, "[", placeOf(tree, "/Kids")) + 1;
        const std::size_t end = placeOf(tree, "]", begin);
        std::vector<std::size_t> found;
        for (std::size_t at = begin; at < end;) {
            const std::size_t reference = tree.find(" R", at);
            if (reference == std::string::npos || reference > end) break;
            found.push_back(numberAt(tree, at));
            at = reference + 2;
        }
        return found;
    }

 private:
    const std::string& pdf_;
    std::size_t tableAt_ = 0;
    std::string trailer_;
};

/// A dictionary with more entries at its end.
std::string withEntries(const std::string& dictionary, const std::string& entries) {
    const std::size_t end = dictionary.rfind(">>");
    if (end == std::string::npos) throw std::invalid_argument("an object is no dictionary");
    return dictionary.substr(0, end) + entries + dictionary.substr(end);
}

/// Objects to be appended, by their numbers.
using Objects = std::map<std::size_t, std::string>;

void addOutline(Objects& objects, const PdfFile& file, const std::vector<PdfBookmark>& bookmarks) {
    const std::vector<std::size_t> pages = file.pages();
    const std::size_t outline = file.size(), first = outline + 1;
    const std::size_t last = outline + bookmarks.size();
    objects[outline] = fmt::format("\n<< /Type /Outlines /First {} 0 R /Last {} 0 R /Count {} >>\n",
                                   first, last, bookmarks.size());
    for (std::size_t i = 0; i < bookmarks.size(); ++i) {
        const PdfBookmark& mark = bookmarks[i];
        if (mark.page >= pages.size()) throw std::invalid_argument("a bookmark is on no page");
        std::string links;
        if (i > 0) links += fmt::format(" /Prev {} 0 R", first + i - 1);
        if (i + 1 < bookmarks.size()) links += fmt::format(" /Next {} 0 R", first + i + 1);
        objects[first + i] =
            fmt::format("\n<< /Title {} /Parent {} 0 R{} /Dest [{} 0 R /XYZ null {:.1f} null] >>\n",
                        textString(mark.title), outline, links, pages[mark.page], mark.top);
    }
    objects[file.root()] =
        withEntries(file.object(file.root()),
                    fmt::format("/Outlines {} 0 R\n/PageMode /UseOutlines\n", outline));
}

}  // namespace

std::string withAuthorAndOutline(const std::string& pdf, const std::string& author,
                                 const std::vector<PdfBookmark>& bookmarks) {
    const PdfFile file(pdf);
    Objects objects;
    objects[file.info()] =
        withEntries(file.object(file.info()), fmt::format("/Author {}\n", textString(author)));
    if (!bookmarks.empty()) addOutline(objects, file, bookmarks);

    std::string updated = pdf;
    std::string table = "xref\n";
    for (const auto& [number, content] : objects) {
        table += fmt::format("{} 1\n{:010} 00000 n \n", number, updated.size());
        updated += fmt::format("{} 0 obj{}endobj\n", number, content);
    }
    const std::size_t tableAt = updated.size();
    const std::size_t size = std::max(file.size(), objects.rbegin()->first + 1);
    return updated + table +
           fmt::format(
               "trailer\n<< /Size {} /Root {} 0 R /Info {} 0 R /Prev {} >>\n"
               "startxref\n{}\n%%EOF\n",
               size, file.root(), file.info(), file.tableAt(), tableAt);
}

}  // namespace varnholt
