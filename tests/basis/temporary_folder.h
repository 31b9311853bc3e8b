// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace varnholt {

/// An empty folder of a test's own, which is gone after the test.
class TemporaryFolder {
 public:
    TemporaryFolder() : TemporaryFolder(std::filesystem::temp_directory_path()) {}
    /// @param parent where it is made
    explicit TemporaryFolder(const std::filesystem::path& parent)
        : path_((parent / "varnholt-test-XXXXXX").string()) {
        if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::string& path() const { return path_; }
    std::string path(const std::string& name) const { return path_ + "/" + name; }
    std::string operator/(const std::string& name) const { return path(name); }

 private:
    std::string path_;
};

}  // namespace varnholt
