// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <iostream>
#include <string>
#include <vector>

namespace varnholt {

/// What the random user did, as a script that does the same again.
class MonkeyLog {
 public:
    explicit MonkeyLog(bool aloud) : aloud_(aloud) {}

    void clear() { lines_.clear(); }

    void action(const std::string& line) {
        if (aloud_) std::cerr << line << std::endl;
        lines_.push_back(line);
    }

    /// An answer that the last action asked for: a script queues it before that action.
    void answer(const std::string& line) {
        if (aloud_) std::cerr << "# " << line << std::endl;
        lines_.insert(lines_.empty() ? lines_.end() : lines_.end() - 1, line);
    }

    const std::vector<std::string>& lines() const { return lines_; }

 private:
    bool aloud_;
    std::vector<std::string> lines_;
};

}  // namespace varnholt
