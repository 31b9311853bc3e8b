// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/binding/bound_control.h"
#include "desktop/binding/late_parts.h"

namespace varnholt {

class GroupBox;

/// A group of controls. What a hidden one holds may be built when it is shown.
class BoundFrame : public BoundControl, public LateParts {
 public:
    BoundFrame(Binder& binder, Control& control);

    void setContent(PartMaker content);
    bool buildNext() override;

    void show(Property property) override;
    Shown shown(Property property) const override;

 protected:
    void showBackcolor() override {}
    void showForecolor() override;
    /// Titles are heavier than text anyway.
    void showBold() override {}

 private:
    GroupBox* box_;
    PartMaker content_;
};

}  // namespace varnholt
