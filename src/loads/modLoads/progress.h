// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "forms/platform.h"

namespace varnholt {

/// Tells the platform how far a long operation has come, and in any case when it has ended.
class Progress {
 public:
    Progress(Platform& platform, std::string what, std::size_t total)
        : platform_(platform), what_(std::move(what)), total_(total) {}
    ~Progress() {
        if (told_) platform_.progress(what_, total_, total_);
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// @param done how many of all have been done
    void tell(std::size_t done) {
        if (done >= total_) return;
        told_ = true;
        platform_.progress(what_, done, total_);
    }

 private:
    Platform& platform_;
    std::string what_;
    std::size_t total_;
    bool told_ = false;
};

}  // namespace varnholt
