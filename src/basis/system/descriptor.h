// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <unistd.h>

#include <string>
#include <utility>

namespace varnholt {

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
    /// Closes now; false when the system reports a late write fault.
    bool close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
    int number_;
};

/// Opens a file for reading; the descriptor is not open, and errno tells why, when that fails.
Descriptor openForReading(const std::string& path);

/// Everything from here to the end of the file, but no more than so many bytes. Throws as
/// throwFileError.
std::string readToEnd(const Descriptor& file, const std::string& path,
                      std::size_t most = std::string::npos);

}  // namespace varnholt
