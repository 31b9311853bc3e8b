// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace varnholt {

/// Everything that undo brings back of a document at one moment.
class DocumentState {
 public:
    virtual ~DocumentState() = default;
    /// The other is a state of the same document.
    virtual bool equals(const DocumentState& other) const = 0;
    /// About how many bytes it takes beyond what it shares with the other, an earlier one.
    virtual std::size_t weightBeside(const DocumentState& /*earlier*/) const { return 0; }
};

/// The state of a document as a plain value.
template <class Value>
class StateOf : public DocumentState {
 public:
    explicit StateOf(Value held) : value(std::move(held)) {}
    bool equals(const DocumentState& other) const override {
        return value == static_cast<const StateOf&>(other).value;
    }

    const Value value;
};

using StatePointer = std::shared_ptr<const DocumentState>;

/// The states that a document went through, and where among them it stands: what undo and redo
/// walk. States share what did not change between them, so that many cost little.
class DocumentHistory {
 public:
    static constexpr std::size_t mostSteps = 200;
    /// Where steps change nearly everything, fewer of them are kept.
    static constexpr std::size_t mostBytes = 16'000'000;

    /// The document begins, or begins anew, with this state; nothing can be undone.
    /// @param saved  it counts as saved: it is new, or as its file holds it
    void start(StatePointer now, bool saved = true);
    bool hasStarted() const { return !states_.empty(); }

    /// The document has changed by something that is no step of its user: what follows starts from
    /// here. Of a state equal to the present one it only keeps from where the next step begins.
    /// @param stillSaved  where the document stood as it was saved, it still does
    void absorb(StatePointer now, bool stillSaved = false);
    /// The user has brought the document into this state.
    /// @param name  what was done: "Remove Zone 3"
    /// @param visit changes in a row with the same visit that is not empty are one step
    /// @param action number of the action that did it, the same in every document that it changed
    /// @param stillSaved  as in absorb
    void record(StatePointer now, const std::string& name, const std::string& visit = {},
                int action = 0, bool stillSaved = false);
    /// The next change is a step of its own, whatever its visit.
    void endVisit() { visit_.clear(); }

    /// The document as it stands is on the disk.
    void markSaved(StatePointer now);
    /// Whether the document stands where it was saved last.
    bool isAtSaved() const;

    bool canUndo() const { return at_ > 0; }
    bool canRedo() const { return at_ + 1 < states_.size(); }
    /// Name of the step that would be undone, or redone; empty for none.
    std::string undoName() const { return canUndo() ? steps_[at_ - 1].name : std::string(); }
    std::string redoName() const { return canRedo() ? steps_[at_].name : std::string(); }
    /// Number of the action that made that step; 0 for none.
    int undoAction() const { return canUndo() ? steps_[at_ - 1].action : 0; }
    int redoAction() const { return canRedo() ? steps_[at_].action : 0; }
    /// Goes one step back or on, and gives the state to bring back: as it was when the step began,
    /// or when it had been done. Only where there is one.
    const DocumentState& undo();
    const DocumentState& redo();

    /// What undo or redo could bring back of the state: a link with a window that has closed since
    /// cannot be made again.
    void settle(const StatePointer& now);

    /// As the document stands, as far as it is known here.
    const DocumentState& present() const { return *states_[at_].left; }
    /// What is no matter of steps has changed, such as the name of the file: every state has it.
    /// @param rewritten  gives a state as it is from now on
    void rewrite(const std::function<StatePointer(const DocumentState&)>& rewritten);

 private:
    /// Equal states may still differ in what was on show.
    struct Moment {
        StatePointer reached;  ///< as the step to it ended
        StatePointer left;     ///< as the step from it began
        int revision;          ///< the same for states that are one on the disk
    };

    struct Step {
        std::string name;
        int action;
        std::size_t weight;
    };

    /// The moment that takes the place of the present one or follows it.
    Moment moment(StatePointer now, bool stillSaved);
    void forgetOldest();

    /// Step i leads from moment i to moment i + 1.
    std::vector<Moment> states_;
    std::vector<Step> steps_;
    std::size_t at_ = 0;
    int lastRevision_ = 0;
    int savedRevision_ = 0;
    std::string visit_;
};

}  // namespace varnholt
