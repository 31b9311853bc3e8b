// SPDX-License-Identifier: GPL-3.0-or-later
// The rooms of the desktop: src/desktop is one floor, and a house of its own inside.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "architecture/source_tree.h"

namespace varnholt {
namespace {

/// A room may use the rooms with smaller numbers, and itself. Charts, printing, help and web are no
/// rooms but libraries that the program loads: they may see what is to be shown, and nobody sees
/// them.
const std::map<std::string, int> rooms{
    {"widgets", 1}, {"drawings", 2}, {"reading", 2},  {"paper", 3}, {"binding", 4}, {"views", 5},
    {"windows", 6}, {"charts", 4},   {"printing", 4}, {"help", 4},  {"web", 4}};
const std::set<std::string> modules{"charts", "printing", "help", "web"};

/// What a room may see of the floors below. What is drawn needs no program around it, and what
/// lays out a form needs no file.
const std::map<std::string, std::set<std::string>> floorsSeen{
    {"widgets", {"basis", "forms"}},
    {"drawings", {"basis", "forms", "catalogue", "loads", "design"}},
    {"reading", {"basis", "forms", "tools"}},
    {"charts", {"basis"}},
    {"paper", {"basis", "forms", "loads", "design", "script", "reports"}},
    {"printing", {}},
    {"help", {"forms", "tools"}},
    {"web", {"tools"}},
    {"binding", {"basis", "forms", "frame", "script"}},
    {"views", {"basis", "forms", "tools", "catalogue", "loads", "design"}},
};

/// "drawings" of "desktop/drawings/canvas.h"; empty for what is not in a room.
std::string roomOf(const std::string& path) {
    const std::size_t desktop = path.find("desktop/");
    if (desktop == std::string::npos) return {};
    const std::string rest = path.substr(desktop + std::string("desktop/").size());
    return rest.substr(0, rest.find('/'));
}

std::string floorNamedBy(const std::string& include) {
    return include.substr(0, include.find('/'));
}

template <class Check>
void forEveryInclude(const Check& check) {
    std::size_t seen = 0;
    for (const SourceFile& source : filesBelow("src/desktop")) {
        if (!source.isCpp()) continue;
        for (const Include& include : includesOf(source)) {
            SCOPED_TRACE(source.path + " includes " + include.file);
            ++seen;
            check(roomOf(source.path), include);
        }
    }
    EXPECT_GT(seen, 300U);
}

TEST(DesktopRooms, HoldEverySource) {
    for (const SourceFile& source : filesBelow("src/desktop"))
        EXPECT_EQ(rooms.count(roomOf(source.path)), 1U) << source.path;
}

TEST(DesktopRooms, IncludeOnlyLowerRooms) {
    forEveryInclude([](const std::string& room, const Include& include) {
        const std::string used = include.quoted ? roomOf(include.file) : std::string();
        if (used.empty() || used == room) return;
        EXPECT_EQ(modules.count(used), 0U);
        EXPECT_LT(rooms.at(used), rooms.at(room));
    });
}

TEST(DesktopRooms, SeeOnlyTheirFloors) {
    forEveryInclude([](const std::string& room, const Include& include) {
        const auto seen = floorsSeen.find(room);
        if (!include.quoted || seen == floorsSeen.end() || floorNamedBy(include.file) == "desktop")
            return;
        EXPECT_EQ(seen->second.count(floorNamedBy(include.file)), 1U);
    });
}

TEST(DesktopRooms, LeaveTheChartEngineToTheCharts) {
    forEveryInclude([](const std::string& room, const Include& include) {
        const bool engine = include.file.starts_with("QtCharts/") ||
                            include.file.starts_with("QtOpenGL") ||
                            include.file.starts_with("QChart");
        EXPECT_TRUE(!engine || room == "charts");
    });
}

TEST(DesktopRooms, LeaveTheEnginesOfTheWebAndOfTheHelpToTheirModules) {
    forEveryInclude([](const std::string& room, const Include& include) {
        const std::string& file = include.file;
        const bool web = file.starts_with("QWebEngine") || file.starts_with("QtWebEngine");
        const bool help = file.starts_with("QtHelp") || file.starts_with("QHelpEngine") ||
                          file.starts_with("QHelpContent") || file.starts_with("QHelpIndex") ||
                          file.starts_with("QHelpSearch") || file.starts_with("QHelpLink") ||
                          file.starts_with("QSql");
        EXPECT_TRUE(!web || room == "web");
        EXPECT_TRUE(!help || room == "help");
    });
}

}  // namespace
}  // namespace varnholt
