// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/process.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

namespace varnholt {

std::string executablePath() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

int processNumber() { return ::getpid(); }

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr) return std::nullopt;
    return value;
}

}  // namespace varnholt
