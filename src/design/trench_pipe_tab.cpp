// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_pipe_tab.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {

TrenchPipeTab::TrenchPipeTab(GroundDesign& design, PipeValues& pipe, const double& uTubeConfig)
    : PipeTab(design, pipe), uTubeConfig_(uTubeConfig) {
    addFrame("PIPipeFrame", Text::pipeSizeAndResistance);
    addPipeControls("PIPipeFrame");
}

int TrenchPipeTab::configuration() const {
    constexpr int configurations = 3;  // one pair of legs, two pairs, a single pipe
    return entryOf(uTubeConfig_, configurations);
}

}  // namespace varnholt
