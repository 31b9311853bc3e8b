// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/document_history.h"

namespace varnholt {

void DocumentHistory::start(StatePointer now, bool saved) {
    states_ = {moment(std::move(now))};
    steps_.clear();
    at_ = 0;
    savedRevision_ = saved ? lastRevision_ : 0;
    visit_.clear();
}

void DocumentHistory::absorb(StatePointer now, bool stillSaved) {
    if (states_[at_].reached->equals(*now)) {
        states_[at_].left = std::move(now);
        return;
    }
    const bool saved = stillSaved && isAtSaved();
    states_[at_] = moment(std::move(now));
    if (saved) savedRevision_ = lastRevision_;
}

void DocumentHistory::record(StatePointer now, const std::string& name, const std::string& visit) {
    if (states_[at_].reached->equals(*now)) return;
    states_.resize(at_ + 1);
    steps_.resize(at_);
    const bool same = !visit.empty() && visit == visit_ && at_ > 0;
    visit_ = visit;
    if (!same) {
        states_.push_back(moment(std::move(now)));
        steps_.push_back(name);
        ++at_;
        return forgetOldest();
    }
    if (!states_[at_ - 1].reached->equals(*now)) {
        states_[at_] = moment(std::move(now));
        return;
    }
    // The visit has brought the document back to where it began: there is no step.
    states_.pop_back();
    steps_.pop_back();
    --at_;
    visit_.clear();
}

void DocumentHistory::forgetOldest() {
    if (steps_.size() <= mostSteps) return;
    states_.erase(states_.begin());
    steps_.erase(steps_.begin());
    --at_;
}

void DocumentHistory::markSaved(StatePointer now) {
    absorb(std::move(now));
    savedRevision_ = states_[at_].revision;
    visit_.clear();
}

bool DocumentHistory::isAtSaved() const { return states_[at_].revision == savedRevision_; }

const DocumentState& DocumentHistory::undo() {
    visit_.clear();
    return *states_[--at_].left;
}

const DocumentState& DocumentHistory::redo() {
    visit_.clear();
    return *states_[++at_].reached;
}

}  // namespace varnholt
