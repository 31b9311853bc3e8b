// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "basis/file_system.h"
#include "tools/page_address.h"

namespace varnholt {

/// The rows of a page's table, as a reader sees their cells.
using PageTable = std::vector<std::vector<std::string>>;

inline std::vector<std::string> cellsOf(const std::string& row) {
    static const std::regex cell("<t[dh][^>]*>([\\s\\S]*?)</t[dh]>");
    std::vector<std::string> cells;
    for (auto i = std::sregex_iterator(row.begin(), row.end(), cell); i != std::sregex_iterator();
         ++i)
        cells.push_back(plainTextOf(std::regex_replace((*i)[1].str(), std::regex("<[^>]+>"), " ")));
    return cells;
}

/// @param id  of the table; its heads come first
inline PageTable tableOf(const std::string& page, const std::string& id) {
    const std::size_t begin = page.find("<table class=\"sortable\" id=\"" + id + "\">");
    if (begin == std::string::npos) {
        ADD_FAILURE() << "the page has no table " << id;
        return {};
    }
    const std::size_t end = page.find("</table>", begin);
    PageTable table;
    for (std::size_t row = page.find("<tr>", begin); row < end; row = page.find("<tr>", row + 1))
        table.push_back(cellsOf(page.substr(row, page.find("</tr>", row) - row)));
    return table;
}

/// A reference page of the English language, "FluidTables".
inline std::string referencePage(const std::string& name) {
    return readWholeFile(VARNHOLT_RESOURCE_DIR "/tables/english/" + name + ".html");
}

}  // namespace varnholt
