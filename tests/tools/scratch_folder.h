// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace varnholt {

/// An empty folder of a test's own, gone with its end.
class ScratchFolder {
 public:
    ScratchFolder() {
        const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::temp_directory_path() /
                (std::string("varnholt-") + test->test_suite_name() + "-" + test->name() + "-" +
                 std::to_string(getpid()));
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    std::string path(const std::string& name = {}) const {
        return name.empty() ? path_ : path_ / name;
    }
    void write(const std::string& name, const std::string& bytes) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << bytes;
    }

 private:
    std::filesystem::path path_;
};

}  // namespace varnholt
