// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of display texts in the sources against the English table.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "basis/file_system.h"
#include "basis/text_encoding.h"
#include "tools/text_table.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
const fs::path sourceFolder = VARNHOLT_SOURCE_DIR "/src";
const fs::path tableFolder = VARNHOLT_SOURCE_DIR "/resources/language/english";

/// The ranges of texts by subject; 100 to 199 are too small to be told from other numbers.
constexpr std::pair<int, int> ranges[] = {{1000, 1399}, {1500, 1599},  {2000, 2999}, {3000, 3599},
                                          {4100, 4299}, {4500, 4599},  {5000, 5199}, {8500, 8599},
                                          {9100, 9399}, {32000, 32767}};

/// Whole numbers of the sources that lie in those ranges and mean something else.
const std::set<std::pair<std::string, int>> otherNumbers{
    {"design/pipe_tab.cpp", 1000}};  // widest pipe, in

bool isTextNumber(int number) {
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const auto& range) {
        return range.first <= number && number <= range.second;
    });
}

/// The code of a source file without its comments and quoted texts.
std::string codeOf(const fs::path& file) {
    static const std::regex notCode(R"(//[^\n]*|/\*[\s\S]*?\*/|"(?:\\.|[^"\\\n])*")");
    return std::regex_replace(readWholeFile(file), notCode, "");
}

std::vector<int> numbersIn(const std::string& code, const std::regex& pattern) {
    std::vector<int> numbers;
    for (auto i = std::sregex_iterator(code.begin(), code.end(), pattern);
         i != std::sregex_iterator(); ++i)
        for (std::size_t group = 1; group < i->size(); ++group)
            if ((*i)[group].matched) numbers.push_back(std::stoi((*i)[group]));
    return numbers;
}

/// addCombo(..., first, last) fetches its entries by two numbers and all between them.
std::vector<int> textsOfCombos(const std::string& code) {
    static const std::regex combo(R"(addCombo\([^;]*?(\d{4}),\s*(\d{4})\))");
    const std::vector<int> ends = numbersIn(code, combo);
    std::vector<int> between;
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
        for (int number = ends[i]; number <= ends[i + 1]; ++number) between.push_back(number);
    return between;
}

/// Texts are fetched by text(N), or by a constant that is named for its text. Forms also hold
/// their numbers in tables and calls of their own, so there every whole number in the ranges is
/// taken for a text.
std::vector<int> textsUsedIn(const std::string& path, const std::string& code) {
    static const std::regex fetched(
        R"(\b(?:text|picture|GetResourceText|GetResourceImage)\((\d+)|Text = (\d+);)");
    static const std::regex whole(R"((?:^|[^\w.'])(\d{4,5})(?![\w.']))");
    const bool knowsTexts = (!path.starts_with("desktop/") || path.ends_with("_texts.h")) &&
                            !path.starts_with("design/modCalculations/") &&
                            !path.starts_with("basis/") && path != "tools/locales.cpp";
    std::vector<int> used = numbersIn(code, fetched);
    if (!knowsTexts) return used;
    const std::vector<int> entries = textsOfCombos(code);
    used.insert(used.end(), entries.begin(), entries.end());
    for (const int number : numbersIn(code, whole))
        if (isTextNumber(number) && otherNumbers.count({path, number}) == 0) used.push_back(number);
    return used;
}

/// Where each number is used.
std::map<int, std::string> usedTexts() {
    static std::map<int, std::string> used;
    if (!used.empty()) return used;
    for (const auto& entry : fs::recursive_directory_iterator(sourceFolder)) {
        const fs::path& file = entry.path();
        if (file.extension() != ".cpp" && file.extension() != ".h") continue;
        const std::string path = fs::relative(file, sourceFolder);
        for (const int number : textsUsedIn(path, codeOf(file))) used.emplace(number, path);
    }
    return used;
}

std::map<std::string, TextTable> tables() {
    std::map<std::string, TextTable> byFile;
    for (const auto& entry : fs::directory_iterator(tableFolder)) {
        const std::string name = entry.path().filename();
        byFile[name].read(readWholeFile(entry.path()), name);
    }
    return byFile;
}

/// Every text of the table, with its file.
std::map<int, std::string> tableNumbers() {
    std::map<int, std::string> numbers;
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts()) numbers.emplace(number, file);
    return numbers;
}

TEST(Texts, TheScanFindsTheIdiomsOfTheSources) {
    const auto used = [](const std::string& path, const std::string& code) {
        return textsUsedIn(path, code);
    };
    using Numbers = std::vector<int>;
    EXPECT_EQ(used("frame/a.cpp", "show(icon, text(1001) + x);"), (Numbers{1001, 1001}));
    EXPECT_EQ(used("frame/a.cpp", "{, , 2701, , &p},"), Numbers{2701});
    EXPECT_EQ(used("frame/a.cpp", "add(, label,\n 1012);"), Numbers{1012});
    EXPECT_EQ(used("frame/a.cpp", "x = 1012.5; y = a1012; z = 0x1012; w = 14281207;"), Numbers{});
    EXPECT_EQ(used("desktop/a.cpp", "resize(1200, 800); text(1020);"), Numbers{1020});
    EXPECT_EQ(used("catalogue/a.cpp", "constexpr int addressText = 108;"), Numbers{108});
    EXPECT_EQ(used("design/a.cpp", "addCombo(, ,\n , 2210, 2224, 2226);"),
              (Numbers{2224, 2225, 2226, 2210, 2224, 2226}));
}

TEST(Texts, EveryNumberUsedExists) {
    const std::map<int, std::string> table = tableNumbers();
    for (const auto& [number, path] : usedTexts())
        EXPECT_EQ(table.count(number), 1u) << "text " << number << ", used in " << path;
}

TEST(Texts, EveryTextIsUsed) {
    const std::map<int, std::string> used = usedTexts();
    for (const auto& [number, file] : tableNumbers())
        EXPECT_EQ(used.count(number), 1u) << "text " << number << " of " << file;
}

TEST(Texts, StandInOneFileEach) {
    std::map<int, std::string> seen;
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts())
            EXPECT_TRUE(seen.emplace(number, file).second)
                << "text " << number << " stands in " << file << " and in " << seen[number];
}

TEST(Texts, HaveNumbersOfTheRanges) {
    for (const auto& [number, file] : tableNumbers())
        EXPECT_TRUE(isTextNumber(number) || (100 <= number && number <= 199))
            << number << " in " << file;
}

TEST(Texts, AreUtf8WithoutBlanksAtTheirEnds) {
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts()) {
            EXPECT_TRUE(isValidUtf8(text)) << number;
            EXPECT_FALSE(text.ends_with(' ') || text.starts_with(' ')) << number << " in " << file;
        }
}

TEST(Texts, TheFontOfTheLanguageAloneIsEmpty) {
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts())
            EXPECT_EQ(text.empty(), number == 1101) << number << " in " << file;
}

}  // namespace
}  // namespace varnholt
