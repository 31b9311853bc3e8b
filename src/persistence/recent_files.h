// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varnholt {

/// The files used last, newest first, one path a line of a text file.
///
/// They are a convenience of the desktop's session and configure nothing: where the list cannot be
/// read or written the program works without it, and says nothing.
class RecentFiles {
 public:
    static constexpr std::size_t most = 8;

    /// @param listFile where the list is kept; an empty path keeps it in memory only
    explicit RecentFiles(std::string listFile);

    /// Puts the file at the top and writes the list.
    void add(const std::string& path);
    void clear();
    /// Those that still exist.
    std::vector<std::string> files() const;

 private:
    void write() const;

    std::string listFile_;
    std::vector<std::string> paths_;
};

}  // namespace varnholt
