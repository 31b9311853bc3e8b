// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>

#include "design/whatIf/layout_run.h"

namespace varnholt {

/// The search for fields of one window: started and stopped by its command, worked on in slices.
/// The list stays that of the last search.
class LayoutFinder {
 public:
    void start(const WhatIfCase& question);
    /// What has been found so far stays.
    void stop() { running_ = false; }
    bool isRunning() const { return running_; }
    /// A slice of the work, or all that is left. True when nothing is left to do.
    bool advance(bool whole);

    bool hasSearched() const { return search_.has_value(); }
    /// The list stands; only depths by the other method may follow.
    bool isListed() const { return search_ && search_->isListed(); }
    /// Whether the list answers the question.
    bool answers(const WhatIfCase& question) const { return asked_ && *asked_ == question; }
    const Layouts& result() const { return search_ ? search_->result() : none_; }
    /// Null before the first search.
    const Land* land() const { return search_ ? &search_->land() : nullptr; }
    /// Grows with what is found.
    int revision() const { return revision_; }

 private:
    std::optional<WhatIfCase> asked_;
    std::optional<LayoutSearch> search_;
    Layouts none_;
    std::size_t found_ = 0;
    bool running_ = false;
    int revision_ = 0;
};

}  // namespace varnholt
