// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/layout_finder.h"

#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {

void LayoutFinder::start(const LayoutQuestion& question) {
    asked_ = question;
    try {
        sizer_ = std::make_unique<FieldSizer>(
            OpinionSettings{question.secondOpinion, question.imported}, question.layout.design);
    } catch (const RunTimeError&) {
        // Without it no field has a length, which the search tells.
        sizer_.reset();
    }
    search_ = std::make_unique<LayoutSearch>(
        question.layout,
        [this](const std::vector<Point>& places, const LatticeField& field,
               double startDepth) -> std::optional<double> {
            if (!sizer_) return noLength;
            std::vector<secondOpinion::BorePosition> bores;
            bores.reserve(places.size());
            for (const Point& place : places) bores.push_back({place.x, place.y});
            return sizer_->need(bores, field.separation, startDepth);
        });
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

const Layouts& LayoutFinder::result() const {
    static const Layouts none;
    return search_ ? search_->result() : none;
}

}  // namespace varnholt
