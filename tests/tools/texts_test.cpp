// SPDX-License-Identifier: GPL-3.0-or-later
// The display texts of the English table, their names in the header and the sources that use them.
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
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/desktop.h"
#include "forms/text_numbers/language.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/reports.h"
#include "tools/text_table.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
const fs::path sourceFolder = VARNHOLT_SOURCE_DIR "/src";
const fs::path tableFolder = VARNHOLT_SOURCE_DIR "/resources/language/english";
const std::string headers = "forms/text_numbers";

/// The ranges of texts by subject; 100 to 199 are too small to be told from other numbers.
constexpr std::pair<int, int> ranges[] = {{1000, 1399}, {1500, 1599},  {2000, 2999}, {3000, 3899},
                                          {4100, 4299}, {4500, 4599},  {5000, 5199}, {8500, 8599},
                                          {9100, 9399}, {32000, 32767}};

/// Texts that nothing shows, each with its reason.
const std::set<int> shownNowhere{
    // A dropped file that is neither a project nor a zone file is passed over without a word.
    Text::cannotOpenFile};

/// Numbers of a source that stand for themselves: pixels of a window, positions of a slider.
const std::map<std::string, std::set<int>> plainNumbers{
    {"desktop/views/average_block_view.cpp", {1220}},
    {"desktop/views/design_window.cpp", {1180}},
    {"desktop/views/pump_editor_view.cpp", {1240}},
    {"desktop/views/zone_manager_view.cpp", {1220}},
    {"desktop/widgets/house_widgets.cpp", {1000}},
    {"desktop/windows/main_window.h", {1280}},
    {"reports/svg_drawing.cpp", {106, 120, 214, 226, 227, 228, 230}}};

bool isInRanges(int number) {
    return std::any_of(std::begin(ranges), std::end(ranges), [&](const auto& range) {
        return range.first <= number && number <= range.second;
    });
}

/// The code of a source file without its comments and quoted texts.
std::string codeOf(const fs::path& file) {
    static const std::regex notCode(R"(//[^\n]*|/\*[\s\S]*?\*/|"(?:\\.|[^"\\\n])*")");
    return std::regex_replace(readWholeFile(file), notCode, "");
}

/// The code of every source but the headers of the names, by its path below the folder of sources.
const std::map<std::string, std::string>& sources() {
    static const std::map<std::string, std::string> codes = [] {
        std::map<std::string, std::string> read;
        for (const auto& entry : fs::recursive_directory_iterator(sourceFolder)) {
            const fs::path& file = entry.path();
            const std::string path = fs::relative(file, sourceFolder);
            if ((file.extension() == ".cpp" || file.extension() == ".h") &&
                !path.starts_with(headers))
                read.emplace(path, codeOf(file));
        }
        return read;
    }();
    return codes;
}

/// A number of three to five digits that is no part of a word or of a longer number.
const std::regex wholeNumber(R"((?:^|[^\w.'])(\d{3,5})(?![\w.']))");

/// What the groups of a pattern match, in the order of the code.
std::vector<std::string> matchesIn(const std::string& code, const std::regex& pattern) {
    std::vector<std::string> found;
    for (auto i = std::sregex_iterator(code.begin(), code.end(), pattern);
         i != std::sregex_iterator(); ++i)
        for (std::size_t group = 1; group < i->size(); ++group)
            if ((*i)[group].matched) found.push_back((*i)[group]);
    return found;
}

using Names = std::map<std::string, int>;

/// The names that a header gives to numbers.
Names namesIn(const std::string& code) {
    static const std::regex line(R"(constexpr int (\w+) = (\d+);)");
    const std::vector<std::string> parts = matchesIn(code, line);
    Names names;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
        names.emplace(parts[i], std::stoi(parts[i + 1]));
    return names;
}

/// The names of each header, by the header's name without its ending.
const std::map<std::string, Names>& namesByHeader() {
    static const std::map<std::string, Names> all = [] {
        std::map<std::string, Names> read;
        for (const auto& entry : fs::directory_iterator(sourceFolder / headers))
            read.emplace(entry.path().stem(), namesIn(codeOf(entry.path())));
        return read;
    }();
    return all;
}

const Names& names() {
    static const Names all = [] {
        Names joined;
        for (const auto& [header, some] : namesByHeader()) joined.insert(some.begin(), some.end());
        return joined;
    }();
    return all;
}

/// The numbers of the texts whose names stand in the code. addCombo(..., first, last) takes its
/// entries from the first text to the last one.
std::set<int> numbersNamedIn(const std::string& code, const Names& known) {
    static const std::regex name(R"(\bText::(\w+))");
    static const std::regex combo(R"(addCombo\([^;]*?Text::(\w+),\s*Text::(\w+)\))");
    std::set<int> numbers;
    for (const std::string& used : matchesIn(code, name))
        if (known.count(used) > 0) numbers.insert(known.at(used));
    const std::vector<std::string> ends = matchesIn(code, combo);
    for (std::size_t i = 0; i + 1 < ends.size(); i += 2)
        for (int number = known.at(ends[i]); number <= known.at(ends[i + 1]); ++number)
            numbers.insert(number);
    return numbers;
}

/// The numbers that the code fetches or holds by a constant that is named for its text.
std::set<int> numbersFetchedIn(const std::string& code) {
    static const std::regex fetched(
        R"(\b(?:text|picture|GetResourceText|GetResourceImage)(\((?:[^()]|\([^()]*\))*\)))");
    static const std::regex constant(R"([tT]ext = (\d{3,5})\b)");
    std::set<int> numbers;
    for (const std::string& arguments : matchesIn(code, fetched))
        for (const std::string& number : matchesIn(arguments, wholeNumber))
            numbers.insert(std::stoi(number));
    for (const std::string& number : matchesIn(code, constant)) numbers.insert(std::stoi(number));
    return numbers;
}

/// Forms hold the texts of their controls in tables and calls of their own: there every whole
/// number in the ranges is taken for one.
bool holdsTables(const std::string& path) {
    return !path.starts_with("design/modCalculations/") &&
           !path.starts_with("design/secondOpinion/") && !path.starts_with("basis/");
}

/// Numbers of texts that stand in the code as numbers: fetched, kept or in a table.
std::vector<int> rawTextsIn(const std::string& path, const std::string& code) {
    std::set<int> raw = numbersFetchedIn(code);
    if (holdsTables(path))
        for (const std::string& number : matchesIn(code, wholeNumber))
            if (isInRanges(std::stoi(number))) raw.insert(std::stoi(number));
    if (const auto plain = plainNumbers.find(path); plain != plainNumbers.end())
        for (const int number : plain->second) raw.erase(number);
    return {raw.begin(), raw.end()};
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

TEST(Texts, TheScanFindsNumbersThatStandForTexts) {
    const auto raw = [](const std::string& path, const std::string& code) {
        return rawTextsIn(path, code);
    };
    using Numbers = std::vector<int>;
    EXPECT_EQ(raw("frame/a.cpp", "show(icon, text(1001) + x);"), Numbers{1001});
    EXPECT_EQ(raw("frame/a.cpp", "main.text(isNew(a) ? 1020 : 1021);"), (Numbers{1020, 1021}));
    EXPECT_EQ(raw("frame/a.cpp", "{, , 2701, , &p},"), Numbers{2701});
    EXPECT_EQ(raw("frame/a.cpp", "add(, label,\n 1012);"), Numbers{1012});
    EXPECT_EQ(raw("frame/a.cpp", "x = 1012.5; y = a1012; z = 0x1012; w = 14281207;"), Numbers{});
    EXPECT_EQ(raw("frame/a.cpp", "text(Text::save); setRange(0, 100); f(10000);"), Numbers{});
    EXPECT_EQ(raw("desktop/views/a.cpp", "text(isMetric ? 2879 : 2880); resize(900, 640);"),
              (Numbers{2879, 2880}));
    EXPECT_EQ(raw("catalogue/a.cpp", "constexpr int addressText = 108;"), Numbers{108});
    EXPECT_EQ(raw("design/modCalculations/a.cpp", "return 3150;"), Numbers{});
    EXPECT_EQ(raw("design/modCalculations/a.cpp", "return text(3150);"), Numbers{3150});
}

TEST(Texts, TheScanFindsTheNamesOfTexts) {
    const Names known = namesIn(
        "constexpr int water = 2224;\nconstexpr int glycol = 2225;\n"
        "constexpr int methanol = 2226;\nconstexpr int fluid = 2210;\n");
    ASSERT_EQ(known.size(), 4u);
    EXPECT_EQ(numbersNamedIn("text(Text::water) + text(MyText::glycol)", known),
              (std::set<int>{2224}));
    EXPECT_EQ(
        numbersNamedIn("addCombo(, ,\n , Text::fluid, Text::water,\n Text::methanol);", known),
        (std::set<int>{2210, 2224, 2225, 2226}));
}

TEST(Texts, EveryTextHasAName) {
    std::set<int> named;
    for (const auto& [name, number] : names())
        EXPECT_TRUE(named.insert(number).second) << name << " is a second name of " << number;
    for (const auto& [number, file] : tableNumbers())
        EXPECT_EQ(named.count(number), 1u) << "text " << number << " of " << file;
}

TEST(Texts, EveryNameHasAText) {
    ASSERT_FALSE(names().empty());
    const std::map<int, std::string> table = tableNumbers();
    for (const auto& [name, number] : names())
        EXPECT_EQ(table.count(number), 1u) << "Text::" << name << ", text " << number;
}

TEST(Texts, EveryNameStandsInTheHeaderOfItsTable) {
    const std::map<int, std::string> table = tableNumbers();
    for (const auto& [header, some] : namesByHeader())
        for (const auto& [name, number] : some) {
            const auto at = table.find(number);
            ASSERT_NE(at, table.end()) << name;
            // A table's name is the first of its numbers and its subject: "2800_loads.txt".
            EXPECT_EQ(at->second.substr(at->second.find('_') + 1), header + ".txt") << name;
        }
}

TEST(Texts, EveryNameIsUsed) {
    std::set<int> used;
    for (const auto& [path, code] : sources()) used.merge(numbersNamedIn(code, names()));
    for (const auto& [name, number] : names())
        EXPECT_NE(used.count(number), shownNowhere.count(number)) << "Text::" << name;
}

TEST(Texts, NoSourceHoldsATextByItsNumber) {
    ASSERT_FALSE(sources().empty());
    for (const auto& [path, code] : sources())
        for (const int number : rawTextsIn(path, code))
            ADD_FAILURE() << "text " << number << " in " << path;
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
        EXPECT_TRUE(isInRanges(number) || (100 <= number && number <= 199))
            << number << " in " << file;
}

TEST(Texts, AreUtf8WithoutBlanksAtTheirEnds) {
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts()) {
            EXPECT_TRUE(isValidUtf8(text)) << number;
            // The title of one report ends in a blank, and what goes on behind a heading begins
            // with one.
            const bool wanted = number == Text::zoneReportLoadsTitle || number == Text::continued;
            EXPECT_EQ(text.ends_with(' ') || text.starts_with(' '), wanted)
                << number << " in " << file;
        }
}

TEST(Texts, TheFontsOfTheLanguageAloneAreEmpty) {
    for (const auto& [file, table] : tables())
        for (const auto& [number, text] : table.texts())
            EXPECT_EQ(text.empty(), number == Text::languageFont || number == Text::reportFont)
                << number << " in " << file;
}

}  // namespace
}  // namespace varnholt
