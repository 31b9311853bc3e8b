// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/pipe_tab.h"

namespace varnholt {

/// The pipe in a trench: a single one, with nothing but ground around it, unless a file says
/// otherwise.
class TrenchPipeTab : public PipeTab {
 public:
    /// @param uTubeConfig  the configuration of pipeResistanceOf; with any other number the
    ///                     resistance is 0
    TrenchPipeTab(GroundDesign& design, PipeValues& pipe, const double& uTubeConfig);

 protected:
    int configuration() const override;

 private:
    const double& uTubeConfig_;
};

}  // namespace varnholt
