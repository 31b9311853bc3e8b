// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "loads/design_project.h"

namespace varnholt {

/// The flow that keeps a loop turbulent, on the fluid page of a surface water design.
class MinimumFlowTab : public DesignTab {
 public:
    MinimumFlowTab(GroundDesign& design, ProjectConditions& conditions);
};

}  // namespace varnholt
