// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/layout_finder.h"

#include <utility>

namespace varnholt {

void LayoutFinder::start(const WhatIfCase& question) {
    asked_ = question;
    search_.emplace(layoutSearchOf(question));
    found_ = 0;
    running_ = true;
    ++revision_;
}

bool LayoutFinder::advance(bool whole) {
    if (!running_) return true;
    do {
        const bool listed = search_->isListed();
        const bool done = search_->step();
        const std::size_t found = search_->result().fields.size();
        if (std::exchange(found_, found) != found || listed != search_->isListed() || done)
            ++revision_;
        if (!done) continue;
        running_ = false;
        return true;
    } while (whole);
    return false;
}

}  // namespace varnholt
