// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/page_address.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "basis/file_system.h"
#include "basis/system/folders.h"
#include "basis/text_encoding.h"

namespace varnholt {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string lowerCase(std::string_view text) {
    std::string low(text);
    std::transform(low.begin(), low.end(), low.begin(), lower);
    return low;
}

/// Without the blanks and the pair of quotes around it.
std::string bare(std::string text) {
    while (!text.empty() && isBlank(text.back())) text.pop_back();
    std::size_t first = 0;
    while (first < text.size() && isBlank(text[first])) ++first;
    text.erase(0, first);
    if (text.size() > 1 && text.front() == '"' && text.back() == '"')
        text = text.substr(1, text.size() - 2);
    return text;
}

/// "http" of "HTTP://host"; empty for what has none.
std::string schemeOf(const std::string& text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0) return {};
    const std::string scheme = lowerCase(std::string_view(text).substr(0, colon));
    const bool word = std::all_of(scheme.begin(), scheme.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
    });
    // A host with its port, such as localhost:8080, is no scheme.
    const bool port = colon + 1 < text.size() && text[colon + 1] >= '0' && text[colon + 1] <= '9' &&
                      (scheme == "localhost" || scheme.find('.') != std::string::npos);
    return word && !port ? scheme : std::string();
}

/// The bytes that "%20" and its like stand for.
std::string decoded(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned byte = 0;
        if (text[i] == '%' && i + 2 < text.size()) {
            const char* end = text.data() + i + 3;
            if (std::from_chars(text.data() + i + 1, end, byte, 16).ptr == end) {
                plain += static_cast<char>(byte);
                i += 2;
                continue;
            }
        }
        plain += text[i];
    }
    return plain;
}

PageAddress localOf(const std::string& path) {
    PageAddress address;
    address.kind = PageAddress::Kind::local;
    const std::size_t hash = path.find('#');
    // A file whose name has the character goes before a place in a page.
    if (hash != std::string::npos && !fileExists(path)) address.fragment = path.substr(hash + 1);
    const bool cut = hash != std::string::npos && !fileExists(path);
    address.file = absolutePath(cut ? path.substr(0, hash) : path);
    return address;
}

/// A path behind "file:", with or without an empty host.
PageAddress fileOf(std::string_view rest) {
    if (rest.substr(0, 2) == "//") {
        rest.remove_prefix(2);
        const std::size_t slash = std::min(rest.find('/'), rest.size());
        const std::string host = lowerCase(rest.substr(0, slash));
        if (!host.empty() && host != "localhost") return {PageAddress::Kind::refused, {}, {}, {}};
        rest.remove_prefix(slash);
    }
    // Without a root there is no page that it could lie beside.
    if (rest.substr(0, 1) != "/") return {PageAddress::Kind::refused, {}, {}, {}};
    const std::size_t hash = rest.find('#');
    PageAddress address;
    address.kind = PageAddress::Kind::local;
    address.file = absolutePath(decoded(rest.substr(0, hash)));
    if (hash != std::string_view::npos) address.fragment = decoded(rest.substr(hash + 1));
    return address;
}

/// The web page of "host/page", with or without slashes before it; refused without a host, and with
/// blanks in its name.
PageAddress webOf(const std::string& scheme, std::string_view rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(":/"), rest.size()));
    const std::string_view host = rest.substr(0, rest.find_first_of("/?#"));
    if (host.empty() || std::any_of(host.begin(), host.end(), isBlank))
        return {PageAddress::Kind::refused, {}, {}, {}};
    return {PageAddress::Kind::web, {}, {}, scheme + "://" + std::string(rest)};
}

}  // namespace

std::string PageAddress::shown() const {
    if (kind == Kind::web) return url;
    return fragment.empty() ? file : file + '#' + fragment;
}

PageAddress pageAddressOf(const std::string& typed, const std::string& base) {
    const std::string text = bare(typed);
    if (text.empty()) return {};
    const std::string scheme = schemeOf(text);
    if (scheme == "http" || scheme == "https")
        return webOf(scheme, std::string_view(text).substr(scheme.size()));
    if (scheme == "file") return fileOf(std::string_view(text).substr(5));
    if (!scheme.empty()) return {PageAddress::Kind::refused, {}, {}, {}};
    if (text.front() == '/') return localOf(text);
    if (text.front() == '#' && !base.empty()) return localOf(base + text);
    const PageAddress beside = localOf(joinPath(folderOf(base), text));
    if (!base.empty() && (fileExists(beside.file) || text.starts_with("."))) return beside;
    return webOf("http", text);
}

namespace {

/// The character that "amp" or "#228" stands for between "&" and ";".
std::string characterOf(const std::string& name) {
    if (name == "amp") return "&";
    if (name == "lt") return "<";
    if (name == "gt") return ">";
    if (name == "quot") return "\"";
    if (name == "nbsp") return " ";
    if (name.size() < 2 || name[0] != '#') return {};
    const bool hexadecimal = name[1] == 'x' || name[1] == 'X';
    const char* first = name.data() + (hexadecimal ? 2 : 1);
    const char* last = name.data() + name.size();
    unsigned code = 0;
    if (std::from_chars(first, last, code, hexadecimal ? 16 : 10).ptr != last) return {};
    if (code == 0 || code > 0x10FFFF) return {};
    std::string bytes;
    const auto put = [&](unsigned byte) { bytes += static_cast<char>(byte); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12));
        put(0x80 | ((code >> 6) & 0x3F));
    } else {
        put(0xF0 | (code >> 18));
        put(0x80 | ((code >> 12) & 0x3F));
        put(0x80 | ((code >> 6) & 0x3F));
    }
    if (code >= 0x80) put(0x80 | (code & 0x3F));
    return bytes;
}

}  // namespace

std::string plainTextOf(const std::string& html) {
    std::string plain;
    for (std::size_t i = 0; i < html.size(); ++i) {
        const std::size_t end = html[i] == '&' ? html.find(';', i) : std::string::npos;
        const std::string character =
            end == std::string::npos ? std::string() : characterOf(html.substr(i + 1, end - i - 1));
        if (!character.empty()) {
            plain += character;
            i = end;
        } else if (!isBlank(html[i])) {
            plain += html[i];
        } else if (!plain.empty() && plain.back() != ' ') {
            plain += ' ';
        }
    }
    if (!plain.empty() && plain.back() == ' ') plain.pop_back();
    return plain;
}

std::string titleOf(const std::string& page) {
    const std::string text = decodeText(page);
    const std::string low = lowerCase(text);
    const std::size_t open = low.find("<title");
    if (open == std::string::npos) return {};
    const std::size_t begin = low.find('>', open);
    const std::size_t end = low.find("</title", open);
    if (begin == std::string::npos || end == std::string::npos || end < begin) return {};
    return plainTextOf(text.substr(begin + 1, end - begin - 1));
}

}  // namespace varnholt
