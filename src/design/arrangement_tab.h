// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/design_values.h"

namespace varnholt {

/// The field of bores and the time for which it is designed.
class ArrangementTab : public DesignTab {
 public:
    ArrangementTab(GroundDesign& design, ArrangementValues& arrangement);

 private:
    void addRows(ArrangementValues& arrangement);
    void addSeparation(ArrangementValues& arrangement);
};

}  // namespace varnholt
