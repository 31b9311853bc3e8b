// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <map>
#include <set>

#include "architecture/source_tree.h"

namespace varnholt {
namespace {

/// A folder may use the folders with smaller numbers, and itself.
const std::map<std::string, int> floorNumbers = floorsOfTheHouse();

constexpr std::size_t longestFile = 500;

/// A file on no floor is not to be included at all.
int floorOf(const std::string& folder) {
    const auto found = floorNumbers.find(folder);
    return found == floorNumbers.end() ? std::numeric_limits<int>::max() : found->second;
}

bool mayUseQt(const SourceFile& source) {
    return source.folder() == "desktop" || source.path == "src/varnholt.cpp";
}

/// "Qt" headers: <QWidget>, <QtWidgets/QWidget>, <qglobal.h>.
bool isQt(const Include& include) {
    const std::string& file = include.file;
    return file.size() > 1 && (file[0] == 'Q' || file.starts_with("qt") || file == "qglobal.h");
}

/// Qt stands between the desktop and the system.
bool mayCallTheSystem(const SourceFile& source) {
    return source.path.starts_with("src/basis/system/") || mayUseQt(source);
}

/// Headers of files, folders, processes, signals, threads and clocks.
bool isOfTheSystem(const Include& include) {
    const std::string& file = include.file;
    static const std::set<std::string> headers{
        "filesystem", "fstream",  "cstdio",   "stdio.h", "cstdlib", "stdlib.h",
        "csignal",    "signal.h", "ctime",    "time.h",  "thread",  "pthread.h",
        "unistd.h",   "fcntl.h",  "dirent.h", "pwd.h",   "dlfcn.h", "spawn.h"};
    return headers.count(file) > 0 || file.starts_with("sys/") || file.starts_with("linux/");
}

bool isSource(const SourceFile& file) {
    return file.isCpp() || file.has(".py") || file.has(".sh") || file.has(".cmake") ||
           file.has("CMakeLists.txt") || file.has(".awk");
}

std::vector<SourceFile> allSources() {
    std::vector<SourceFile> all;
    for (const char* folder :
         {"src", "tests", "bench", "fuzz", "cmake", "packaging", "resources", "scripts"})
        for (SourceFile& file : filesBelow(folder))
            if (isSource(file)) all.push_back(std::move(file));
    return all;
}

TEST(Architecture, TheSourcesAreFound) {
    // The rules below hold for every file found, so they would hold for none as well.
    const std::vector<SourceFile> sources = filesBelow("src");
    const auto found = [&](const std::string& path) {
        return std::any_of(sources.begin(), sources.end(),
                           [&](const SourceFile& s) { return s.path == path; });
    };
    EXPECT_TRUE(found("src/basis/number_text.cpp"));
    EXPECT_TRUE(found("src/varnholt.cpp"));
}

TEST(Architecture, EveryFolderIsAFloorOfTheDocumentAndTheOtherWayRound) {
    std::set<std::string> folders;
    for (const SourceFile& source : filesBelow("src")) folders.insert(source.folder());
    std::set<std::string> documented;
    for (const auto& [folder, number] : floorNumbers) documented.insert(folder);
    EXPECT_EQ(folders, documented);
}

TEST(Architecture, AFolderIncludesOnlyLowerFloors) {
    for (const SourceFile& source : filesBelow("src"))
        for (const Include& include : includesOf(source)) {
            if (!include.quoted) continue;
            const std::string used = include.file.substr(0, include.file.find('/'));
            if (used == source.folder()) continue;
            EXPECT_LT(floorOf(used), floorOf(source.folder()))
                << source.path << " includes " << include.file;
        }
}

TEST(Architecture, IncludesAreWrittenFromTheSourceFolder) {
    for (const SourceFile& source : filesBelow("src"))
        for (const Include& include : includesOf(source))
            if (include.quoted) {
                EXPECT_TRUE(std::filesystem::exists(VARNHOLT_SOURCE_DIR "/src/" + include.file))
                    << source.path << " includes " << include.file;
            }
}

TEST(Architecture, QtIsSeenByTheDesktopAlone) {
    for (const SourceFile& source : filesBelow("src"))
        for (const Include& include : includesOf(source))
            EXPECT_TRUE(mayUseQt(source) || !isQt(include))
                << source.path << " includes " << include.file;
}

TEST(Architecture, TheSystemIsCalledInOneFolder) {
    bool seen = false;
    for (const SourceFile& source : filesBelow("src"))
        for (const Include& include : includesOf(source)) {
            if (!isOfTheSystem(include)) continue;
            seen = seen || source.path.starts_with("src/basis/system/");
            EXPECT_TRUE(mayCallTheSystem(source)) << source.path << " includes " << include.file;
        }
    EXPECT_TRUE(seen) << "no header of the system is recognised";
}

TEST(Architecture, TheClockIsReadWhereTheSystemIsCalled) {
    for (const SourceFile& source : filesBelow("src"))
        for (const std::string& line : source.lines)
            EXPECT_TRUE(line.find("_clock::now") == std::string::npos || mayCallTheSystem(source))
                << source.path << ": " << line;
}

TEST(Architecture, EverySourceNamesItsLicenceFirst) {
    for (const SourceFile& source : allSources()) {
        ASSERT_FALSE(source.lines.empty()) << source.path;
        // A script's first line belongs to the system.
        const std::size_t line = source.lines[0].starts_with("#!") ? 1 : 0;
        ASSERT_LT(line, source.lines.size()) << source.path;
        const std::string licence = "SPDX-License-Identifier: GPL-3.0-or-later";
        EXPECT_EQ(source.lines[line], (source.isCpp() ? "// " : "# ") + licence) << source.path;
    }
}

TEST(Architecture, NoSourceIsTooLongToRead) {
    for (const SourceFile& source : allSources())
        EXPECT_TRUE(source.lines.size() <= longestFile)
            << source.path << " has " << source.lines.size() << " lines";
}

TEST(Architecture, NoWorkIsLeftOver) {
    // Written apart, so that this file does not find itself.
    // clang-format off
    const std::vector<std::string> marks{"TO" "DO", "FIX" "ME", "not " "implemented"};
    // clang-format on
    for (const SourceFile& source : allSources())
        for (const std::string& line : source.lines)
            for (const std::string& mark : marks)
                EXPECT_EQ(line.find(mark), std::string::npos) << source.path << ": " << line;
}

}  // namespace
}  // namespace varnholt
