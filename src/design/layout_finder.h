// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "design/whatIf/field_method.h"
#include "design/whatIf/layout_search.h"

namespace varnholt {

/// What a search for fields starts from.
struct LayoutQuestion {
    LayoutCase layout;
    SecondOpinionInputs secondOpinion;
    std::optional<ByMode<MonthlyLoads>> imported;

    friend bool operator==(const LayoutQuestion&, const LayoutQuestion&) = default;
};

/// The search for fields of one window: started and stopped by its command, worked on in slices.
/// The list stays that of the last search.
class LayoutFinder {
 public:
    void start(const LayoutQuestion& question);
    /// What has been found so far stays.
    void stop() { running_ = false; }
    bool isRunning() const { return running_; }
    /// A slice of the work, or all that is left. True when nothing is left to do.
    bool advance(bool whole);

    bool hasSearched() const { return search_ != nullptr; }
    /// The list stands; only depths by the other method may follow.
    bool isListed() const { return search_ && search_->isListed(); }
    /// Whether the list answers the question.
    bool answers(const LayoutQuestion& question) const { return asked_ && *asked_ == question; }
    const Layouts& result() const;
    /// Null before the first search.
    const Land* land() const { return search_ ? &search_->land() : nullptr; }
    /// Grows with what is found.
    int revision() const { return revision_; }

 private:
    std::optional<LayoutQuestion> asked_;
    std::unique_ptr<FieldSizer> sizer_;
    std::unique_ptr<LayoutSearch> search_;
    std::size_t found_ = 0;
    bool running_ = false;
    int revision_ = 0;
};

}  // namespace varnholt
