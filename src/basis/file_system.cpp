// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/file_system.h"

namespace varnholt {

std::string joinPath(const std::string& folder, const std::string& name) {
    if (folder.empty()) return name;
    return folder.back() == '/' ? folder + name : folder + "/" + name;
}

std::string fileNameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {};
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string baseNameOf(const std::string& path) {
    const std::string name = fileNameOf(path);
    const std::size_t point = name.rfind('.');
    return point == std::string::npos || point == 0 ? name : name.substr(0, point);
}

}  // namespace varnholt
