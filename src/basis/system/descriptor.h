// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

namespace varnholt {

/// Makes a system call again as long as a signal cuts it short.
template <class Call>
auto uninterrupted(const Call& call) {
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR) return result;
    }
}

/// A file descriptor that is closed on every way out.
class Descriptor {
 public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }

    bool isOpen() const { return number_ >= 0; }
    int number() const { return number_; }
    /// Closes now; false when the system reports a late write fault. A descriptor is closed even
    /// where a signal has cut the call short.
    bool close() { return ::close(std::exchange(number_, -1)) == 0 || errno == EINTR; }

 private:
    int number_;
};

/// Opens a regular file for reading, without waiting for anything; the descriptor is not open, and
/// errno tells why, when that fails. Pipes, devices, folders and what the system itself shows as
/// files are refused.
Descriptor openForReading(const std::string& path);

/// Everything from here to the end of the file, but no more than so many bytes. Throws as
/// throwFileError.
std::string readToEnd(const Descriptor& file, const std::string& path,
                      std::size_t most = std::string::npos);

/// Writes all of the bytes. False, with errno, when that cannot be.
bool writeAll(int descriptor, std::string_view bytes);

}  // namespace varnholt
