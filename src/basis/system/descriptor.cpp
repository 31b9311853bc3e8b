// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/descriptor.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>

#include "basis/system/system_error.h"

namespace varnholt {

Descriptor openForReading(const std::string& path) {
    return Descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

std::string readToEnd(const Descriptor& file, const std::string& path, std::size_t most) {
    std::string bytes;
    char buffer[65536];
    for (;;) {
        const std::size_t wanted = std::min(sizeof buffer, most - bytes.size());
        const ssize_t got = ::read(file.number(), buffer, wanted);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throwFileError(errno, path);
        if (got == 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(got));
    }
}

}  // namespace varnholt
