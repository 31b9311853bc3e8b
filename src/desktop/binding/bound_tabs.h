// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "desktop/binding/bound_control.h"
#include "desktop/binding/late_parts.h"

class QKeySequence;
class QTabWidget;

namespace varnholt {

/// A tabbed pane. A page is built when it comes to the front for the first time.
class BoundTabs : public BoundControl, public LateParts {
 public:
    BoundTabs(Binder& binder, Control& control);

    /// Takes the pages in the order of the captions; each scrolls by itself.
    void addPages(std::vector<PartMaker> makers);
    bool buildNext() override;

    void show(Property property) override;
    Shown shown(Property property) const override;

 private:
    void turnTo(int page);
    void build(std::size_t page);

    QTabWidget* tabs_;
    /// Empty for the pages that have been built.
    std::vector<PartMaker> makers_;
};

}  // namespace varnholt
