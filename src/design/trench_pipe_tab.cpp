// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/trench_pipe_tab.h"

#include "forms/text_numbers.h"

namespace varnholt {

TrenchPipeTab::TrenchPipeTab(GroundDesign& design, PipeValues& pipe) : PipeTab(design, pipe) {
    addFrame("PIPipeFrame", Text::pipeSizeAndResistance);
    addPipeControls("PIPipeFrame");
}

int TrenchPipeTab::configuration() const {
    constexpr int singlePipe = 2;
    return singlePipe;
}

}  // namespace varnholt
