// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_engine.h"

#include <array>

#include "basis/file_system.h"

namespace varnholt {
namespace {

/// A help file is a database, and begins as every one of its kind does.
constexpr std::string_view beginOfHelpFile("SQLite format 3", 16);

}  // namespace

bool UnseenHelp::isHelpFile(const std::string& path) const {
    const std::unique_ptr<std::istream> file = openInput(path);
    std::array<char, beginOfHelpFile.size()> begin{};
    return file && file->read(begin.data(), begin.size()) &&
           std::string_view(begin.data(), begin.size()) == beginOfHelpFile;
}

long UnseenHelp::display(const HelpRequest& request) { return isHelpFile(request.file) ? 1 : 0; }

}  // namespace varnholt
