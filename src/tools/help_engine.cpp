// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_engine.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"

namespace varnholt {
namespace {

/// A help file is a database, and begins as every one of its kind does.
constexpr std::string_view beginOfHelpFile("SQLite format 3", 16);

}  // namespace

bool UnseenHelp::isHelpFile(const std::string& path) const {
    try {
        return readFileStart(path, beginOfHelpFile.size()) == beginOfHelpFile;
    } catch (const RunTimeError&) {
        return false;
    }
}

long UnseenHelp::display(const HelpRequest& request) { return isHelpFile(request.file) ? 1 : 0; }

}  // namespace varnholt
