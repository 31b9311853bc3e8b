// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// The undisturbed ground.
class SoilTab : public DesignTab {
 public:
    SoilTab(GroundDesign& design, SoilValues& soil);

 private:
    void addProperties(SoilValues& soil);
};

}  // namespace varnholt
