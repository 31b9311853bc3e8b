// SPDX-License-Identifier: GPL-3.0-or-later
// What a floor may include is a matter of its include directories, so the compiler is asked.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "architecture/source_tree.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

/// The libraries of the build: each floor's, and each room's where a floor is cut into rooms.
struct Library {
    std::string name;  ///< "loads", "desktop_widgets"
    std::vector<std::string> includeDirectories;

    std::string floor() const { return name.substr(0, name.find('_')); }
};

std::vector<Library> librariesOfTheBuild() {
    std::vector<Library> libraries;
    for (const auto& entry : fs::directory_iterator(VARNHOLT_FLOORS_DIR)) {
        if (entry.path().extension() != ".txt") continue;
        Library library{entry.path().stem().string(), {}};
        std::ifstream list(entry.path());
        for (std::string line; std::getline(list, line);)
            if (!line.empty()) library.includeDirectories.push_back(line);
        libraries.push_back(std::move(library));
    }
    return libraries;
}

Library libraryNamed(const std::string& name) {
    for (Library& library : librariesOfTheBuild())
        if (library.name == name) return library;
    throw std::runtime_error("the build has no " + name);
}

/// What a run of the compiler gave.
struct Compiled {
    bool accepted;
    std::string output;
};

/// Gives the compiler a source with the include directories of a library, and no other folder to
/// find a header in.
Compiled compile(const Library& library, const std::string& options, const std::string& source) {
    std::string folder = (fs::temp_directory_path() / "varnholt-includes-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder");
    const std::string file = folder + "/probe.cpp";
    std::ofstream(file) << source;
    std::string command = "'" VARNHOLT_COMPILER "' -std=c++20 " + options;
    for (const std::string& include : library.includeDirectories) command += " '-I" + include + "'";
    FILE* output = popen((command + " '" + file + "' 2>&1").c_str(), "r");
    if (output == nullptr) throw std::runtime_error("the compiler does not start");
    Compiled compiled;
    char buffer[4096];
    while (const std::size_t got = fread(buffer, 1, sizeof buffer, output))
        compiled.output.append(buffer, got);
    compiled.accepted = pclose(output) == 0;
    fs::remove_all(folder);
    return compiled;
}

Compiled compileInclude(const std::string& library, const std::string& header) {
    return compile(libraryNamed(library), "-fsyntax-only", "#include \"" + header + "\"\n");
}

/// One header of each folder below src/ that has headers, by the floor of the folder.
std::map<std::string, std::vector<std::string>> sampleHeaders() {
    std::set<fs::path> folders;
    std::map<std::string, std::vector<std::string>> samples;
    for (const SourceFile& source : filesBelow("src"))
        if (source.has(".h") && folders.insert(fs::path(source.path).parent_path()).second)
            samples[source.folder()].push_back(source.path.substr(std::string("src/").size()));
    return samples;
}

/// The floors of which a library finds any header.
std::set<std::string> floorsInReachOf(const Library& library) {
    std::string source;
    for (const auto& [floor, headers] : sampleHeaders())
        for (const std::string& header : headers)
            source += "#if __has_include(\"" + header + "\")\n" + floor + "\n#endif\n";
    const Compiled compiled = compile(library, "-E -P", source);
    EXPECT_TRUE(compiled.accepted) << compiled.output;
    std::istringstream words(compiled.output);
    std::set<std::string> reach;
    for (std::string floor; words >> floor;) reach.insert(floor);
    return reach;
}

TEST(Includes, EveryFloorFindsItselfAndLowerFloorsAlone) {
    const std::map<std::string, int> floors = floorsOfTheHouse();
    for (const Library& library : librariesOfTheBuild()) {
        const std::set<std::string> reach = floorsInReachOf(library);
        EXPECT_EQ(reach.count(library.floor()), 1U) << library.name;
        for (const std::string& other : reach)
            if (other != library.floor()) {
                EXPECT_LT(floors.at(other), floors.at(library.floor()))
                    << library.name << " finds headers of " << other;
            }
    }
}

TEST(Includes, EveryFloorIsALibraryOfTheBuild) {
    std::set<std::string> built;
    for (const Library& library : librariesOfTheBuild()) built.insert(library.floor());
    for (const auto& [floor, number] : floorsOfTheHouse())
        if (!floor.empty() && floor != "desktop") {  // which can be left out
            EXPECT_EQ(built.count(floor), 1U) << floor;
        }
}

TEST(Includes, AHeaderFromBelowCompiles) {
    const Compiled below = compileInclude("catalogue", "forms/values.h");
    EXPECT_TRUE(below.accepted) << below.output;
    const Compiled own = compileInclude("catalogue", "catalogue/pump.h");
    EXPECT_TRUE(own.accepted) << own.output;
}

TEST(Includes, AHeaderFromAboveOrBesideDoesNotCompile) {
    const std::vector<std::pair<std::string, std::string>> forbidden{
        {"basis", "forms/values.h"},
        {"catalogue", "loads/zone.h"},
        {"script", "tools/modResource.h"},
        {"loads", "design/frmBHDesign.h"},
    };
    for (const auto& [library, header] : forbidden) {
        const Compiled compiled = compileInclude(library, header);
        EXPECT_FALSE(compiled.accepted) << library << " includes " << header;
        EXPECT_NE(compiled.output.find(header), std::string::npos) << compiled.output;
    }
}

}  // namespace
}  // namespace varnholt
