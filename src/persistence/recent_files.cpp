// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recent_files.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/run_time_error.h"

namespace varnholt {

RecentFiles::RecentFiles(std::string listFile) : listFile_(std::move(listFile)) {
    if (listFile_.empty()) return;
    try {
        LineFileReader file = LineFileReader::open(listFile_);
        while (!file.atEnd() && paths_.size() < most) paths_.push_back(file.line());
    } catch (const RunTimeError&) {
        // No list yet, or none to be had.
    }
}

void RecentFiles::add(const std::string& path) {
    // A path with a line end in it would be two lines of the list.
    if (path.find_first_of("\r\n") != std::string::npos) return;
    const auto same = [&](const std::string& known) { return samePath(known, path); };
    paths_.erase(std::remove_if(paths_.begin(), paths_.end(), same), paths_.end());
    paths_.insert(paths_.begin(), path);
    if (paths_.size() > most) paths_.resize(most);
    write();
}

void RecentFiles::clear() {
    paths_.clear();
    write();
}

std::vector<std::string> RecentFiles::files() const {
    std::vector<std::string> existing;
    std::copy_if(paths_.begin(), paths_.end(), std::back_inserter(existing), fileExists);
    return existing;
}

void RecentFiles::write() const {
    if (listFile_.empty()) return;
    LineFileWriter file;
    for (const std::string& path : paths_) file.text(path);
    try {
        replaceWholeFile(listFile_, file.bytes());
    } catch (const RunTimeError&) {
        // The list lives on in this session.
    }
}

}  // namespace varnholt
