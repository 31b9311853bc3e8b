// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace varnholt {

/// Lines as a project's file has them.
inline std::string linesOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

/// The head of a project's file: a project that has a name, a designer and its two dates, and no
/// other information.
///
/// @param version  "3.0"
/// @param design   as the second line names it: "Horizontal Design"
inline std::string projectHead(const std::string& version, const std::string& design,
                               const std::string& projectName) {
    return "Varnholt Data File Version " + version + "\r\n" + design + "\r\n" + projectName +
           "\r\nA. Designer\r\n#2024-03-05#\r\n#2024-09-01#"
           "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n1\r\n\r\n";
}

}  // namespace varnholt
