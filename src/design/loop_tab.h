// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "design/design_tab.h"
#include "design/surface_water_values.h"

namespace varnholt {

/// The pipe of a surface water design: loops, main headers, branch headers.
class LoopTab : public DesignTab {
 public:
    LoopTab(GroundDesign& design, LoopValues& loop, HeaderValues& header);

    void setUnitLabels() override;

 private:
    void addLoops();
    void addLoopLosses();
    /// @param kind  0 main headers, 1 branches
    void addHeaders(std::size_t kind);
    void addHeaderCount(std::size_t kind, const std::string& frame);
    void addHeaderLengths(std::size_t kind, const std::string& frame);
    void addHeaderLosses();
    void chooseStyle(int style);
    void PILoopPipeSizeCombo_Click();
    void PIHeaderPipeSizeCombo_Click(std::size_t kind);
    void PIHeaderNumberText_Leave(std::size_t kind);
    void showChoices();
    /// Without branches nothing of theirs can be typed but their number.
    void enableBranches();

    LoopValues& loop_;
    HeaderValues& header_;
};

}  // namespace varnholt
