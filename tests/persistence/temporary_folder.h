// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "basis/temporary_folder.h"

namespace varnholt {

inline std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
}

}  // namespace varnholt
