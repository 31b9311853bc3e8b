// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <variant>
#include <vector>

#include "design/borehole_project.h"
#include "design/horizontal_project.h"
#include "design/surface_water_project.h"
#include "frame/varnmain.h"
#include "loads/loads_document.h"

namespace varnholt {

/// Takes documents back to their beginnings and brings them on again. A copy of each is kept from
/// when its history began, apart from the history: that a document undone to its beginning equals
/// it is more than that undo brings back what undo has kept. Throws std::runtime_error with the
/// first thing that does not hold.
class UndoProof {
 public:
    /// Presses an entry of the main window's menu.
    using Press = std::function<void(const char* entry)>;

    explicit UndoProof(Varnmain& main) : main_(main) {}

    /// To be called whenever something has been done: a document that has nothing to undo stands
    /// at its beginning.
    void follow();
    /// Proves it of the document in front, if it has a history. It is then at its end again.
    void prove(const Press& press);
    /// Steps undone and redone so far.
    std::size_t steps() const { return steps_; }

 private:
    /// What the user edits in a window, apart from what is no matter of steps: the link and the
    /// name of the file, which undo leaves as they are.
    using Document = std::variant<std::monostate, LoadsDocument, BoreholeProject, HorizontalProject,
                                  SurfaceWaterProject>;

    static Document documentOf(const ChildWindow& window);
    /// Walks as far as the entry can be pressed. The documents on the way, the first one included.
    std::vector<Document> walk(const ChildWindow& window, const char* entry, const Press& press);
    void require(bool holds, const ChildWindow& window, const char* what) const;

    Varnmain& main_;
    /// By the windows' serial numbers.
    std::map<int, Document> beginnings_;
    std::size_t steps_ = 0;
};

}  // namespace varnholt
