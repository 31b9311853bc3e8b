// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

namespace varnholt {
namespace {

namespace fs = std::filesystem;

fs::path root() { return VARNHOLT_SOURCE_DIR; }

std::vector<std::string> linesOf(const fs::path& file) {
    std::vector<std::string> lines;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

}  // namespace

std::string SourceFile::folder() const {
    const std::size_t first = path.find('/') + 1;
    const std::size_t end = path.find('/', first);
    return end == std::string::npos ? std::string() : path.substr(first, end - first);
}

std::vector<SourceFile> filesBelow(const std::string& folder) {
    std::vector<SourceFile> files;
    for (const auto& entry : fs::recursive_directory_iterator(root() / folder))
        if (entry.is_regular_file())
            files.push_back({fs::relative(entry.path(), root()).string(), linesOf(entry.path())});
    std::sort(files.begin(), files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return files;
}

std::map<std::string, int> floorsOfTheHouse() {
    // "| 5 | `tools/` | ..."; the row of the two mains names files instead of a folder.
    const std::regex row(R"(\| (\d+) \| `(?:([a-z]+)/|varnholt\.cpp)`.*)");
    std::map<std::string, int> floors;
    std::smatch match;
    for (const std::string& line : linesOf(root() / "ARCHITECTURE.md"))
        if (std::regex_match(line, match, row)) floors.emplace(match[2], std::stoi(match[1]));
    return floors;
}

std::vector<Include> includesOf(const SourceFile& source) {
    std::vector<Include> includes;
    for (const std::string& line : source.lines) {
        if (!line.starts_with("#include ")) continue;
        const std::size_t open = line.find_first_of("\"<");
        const std::size_t close = line.find_first_of("\">", open + 1);
        if (close != std::string::npos)
            includes.push_back({line.substr(open + 1, close - open - 1), line[open] == '"'});
    }
    return includes;
}

}  // namespace varnholt
