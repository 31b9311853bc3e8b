// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/modResource.h"

#include <fmt/core.h>
#include <algorithm>
#include <exception>
#include <stdexcept>
#include <vector>

#include "basis/file_system.h"
#include "basis/system/folders.h"

namespace varnholt {
namespace {

constexpr const char* satelliteExtension = ".txt";
constexpr std::string_view tableEntry = "table ";

/// The first line that is neither empty nor a comment is taken out of the satellite's text; what
/// is left is a file of texts.
std::string takeTableName(std::string& satellite) {
    std::size_t begin = 0;
    while (begin < satellite.size()) {
        const std::size_t end = std::min(satellite.find('\n', begin), satellite.size());
        std::string line = satellite.substr(begin, end - begin);
        if (line.ends_with('\r')) line.pop_back();
        if (!line.empty() && line.front() != '#') {
            if (!line.starts_with(tableEntry)) break;
            satellite.erase(begin, end - begin);
            return line.substr(tableEntry.size());
        }
        begin = end + 1;
    }
    throw std::runtime_error("a satellite names the table of its language first");
}

/// All text files of a language's folder, by name.
std::vector<std::string> tableFiles(const std::string& folder) {
    std::vector<std::string> files = filesIn(folder);
    std::erase_if(files, [](const std::string& file) { return !file.ends_with(".txt"); });
    return files;
}

}  // namespace

Satellite::Satellite(const std::string& folder, const std::string& className) : folder_(folder) {
    const std::string file = joinPath(folder, className + satelliteExtension);
    std::string own = readWholeFile(file);
    for (const std::string& part : tableFiles(joinPath(folder, takeTableName(own))))
        texts_.read(readWholeFile(part), part);
    texts_.read(own, file);
}

std::string Satellite::GetResourcePicture(int number) const {
    const std::string& file = texts_.text(number);
    return file.empty() ? std::string() : joinPath(folder_, file);
}

bool LanguageResource::LoadSatellite(const std::string& folder, unsigned locale) {
    folder_ = folder;
    satellite_.reset();
    try {
        satellite_ = std::make_unique<const Satellite>(folder, satelliteName(locale));
    } catch (const std::exception&) {
        return false;  // The program runs without one; its captions tell it.
    }
    return true;
}

std::string LanguageResource::GetResourceText(int number) const {
    return satellite_ ? satellite_->GetResourceString(number) : noLocalData;
}

std::string LanguageResource::GetResourceImage(int number) const {
    if (satellite_) return satellite_->GetResourcePicture(number);
    return joinPath(folder_, fmt::format("pictures/{}.svg", number));
}

std::string satelliteName(unsigned locale) { return fmt::format("vhtSat{:X}", locale); }

}  // namespace varnholt
