// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/pipe_tab.h"

namespace varnholt {

/// The pipe in a trench: a single one, with nothing but ground around it.
class TrenchPipeTab : public PipeTab {
 public:
    TrenchPipeTab(GroundDesign& design, PipeValues& pipe);

 protected:
    int configuration() const override;
};

}  // namespace varnholt
