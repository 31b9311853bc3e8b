// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/document_history.h"

namespace varnholt {

void DocumentHistory::start(StatePointer now, bool saved) {
    states_ = {{now, std::move(now), ++lastRevision_}};
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
    states_[at_] = moment(std::move(now), stillSaved);
}

DocumentHistory::Moment DocumentHistory::moment(StatePointer now, bool stillSaved) {
    const int revision = stillSaved && isAtSaved() ? savedRevision_ : ++lastRevision_;
    return {now, std::move(now), revision};
}

void DocumentHistory::record(StatePointer now, const std::string& name, const std::string& visit,
                             int action, bool stillSaved) {
    if (states_[at_].reached->equals(*now)) return;
    states_.erase(states_.begin() + static_cast<std::ptrdiff_t>(at_) + 1, states_.end());
    steps_.erase(steps_.begin() + static_cast<std::ptrdiff_t>(at_), steps_.end());
    const bool same = !visit.empty() && visit == visit_ && at_ > 0;
    visit_ = visit;
    if (!same) {
        steps_.push_back({name, action, now->weightBeside(*states_[at_].reached)});
        states_.push_back(moment(std::move(now), stillSaved));
        ++at_;
        return forgetOldest();
    }
    if (!states_[at_ - 1].reached->equals(*now)) {
        steps_.back().weight = now->weightBeside(*states_[at_ - 1].reached);
        states_[at_] = moment(std::move(now), stillSaved);
        return;
    }
    // The visit has brought the document back to where it began: there is no step.
    states_.pop_back();
    steps_.pop_back();
    --at_;
    visit_.clear();
}

void DocumentHistory::forgetOldest() {
    std::size_t bytes = 0;
    std::size_t kept = 0;
    while (kept < steps_.size() && kept < mostSteps) {
        bytes += steps_[steps_.size() - 1 - kept].weight;
        if (bytes > mostBytes && kept > 0) break;
        ++kept;
    }
    const auto forgotten = static_cast<std::ptrdiff_t>(steps_.size() - kept);
    states_.erase(states_.begin(), states_.begin() + forgotten);
    steps_.erase(steps_.begin(), steps_.begin() + forgotten);
    at_ -= static_cast<std::size_t>(forgotten);
}

void DocumentHistory::settle(const StatePointer& now) {
    if (!now->equals(present())) states_[at_].reached = states_[at_].left = now;
}

void DocumentHistory::rewrite(const std::function<StatePointer(const DocumentState&)>& rewritten) {
    for (Moment& moment : states_) {
        const bool alike = moment.reached == moment.left;
        moment.reached = rewritten(*moment.reached);
        moment.left = alike ? moment.reached : rewritten(*moment.left);
    }
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
