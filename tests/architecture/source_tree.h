// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace varnholt {

/// One file of the source tree, read whole.
struct SourceFile {
    std::string path;  ///< from the root of the tree, "src/basis/date.h"
    std::vector<std::string> lines;

    /// Second part of the path: "basis" of "src/basis/date.h", empty for "src/varnholt.cpp".
    std::string folder() const;
    bool has(std::string_view extension) const { return path.ends_with(extension); }
    bool isCpp() const { return has(".h") || has(".cpp"); }
};

/// Every file below one folder of the tree, by path.
std::vector<SourceFile> filesBelow(const std::string& folder);

/// The floors of the house and their numbers, from the table of ARCHITECTURE.md. The two `main`
/// functions have the empty name.
std::map<std::string, int> floorsOfTheHouse();

/// One include directive.
struct Include {
    std::string file;  ///< what stands between the quotes or brackets
    bool quoted;
};
std::vector<Include> includesOf(const SourceFile& source);

}  // namespace varnholt
