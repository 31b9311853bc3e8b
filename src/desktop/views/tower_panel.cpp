// SPDX-License-Identifier: GPL-3.0-or-later
// The cooling tower that takes a share of the peak load.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {
namespace {

FieldRow loadBalance(Binder& bind) {
    // With long captions too the panel finds room beside the field.
    constexpr int leastSlider = 16 * gridStep;
    FieldRow row;
    row.caption = bind.widget("CAPercentHybridLabel(1)");
    row.fields = {bind.widget("CAHybridSlider")};
    row.fields.front()->setMinimumWidth(leastSlider);
    row.more = {bind.widget("CAPercentHybridLabel(0)")};
    return row;
}

}  // namespace

QWidget* towerPanel(Binder& bind) {
    return group(
        bind.frame("CAHybridFrame"), grid(loadBalance(bind)),
        grid(bind.figure("CACondenserCapacityLabel(1)", "CACondenserCapacityLabel(0)",
                         {bind.widget("CACondenserCapacityUpDown")}),
             bind.figure("CACoolingTowerFlowRateLabel(1)", "CACoolingTowerFlowRateLabel(0)",
                         {bind.widget("CACoolingTowerFlowRateUpDown")}),
             bind.figure("CACoolingTowerRangeLabel(1)", "CACoolingTowerRangeLabel(0)",
                         {bind.widget("CACoolingRangeUpDown")}),
             bind.figure("CACoolingTowerHoursLabel(1)", "CACoolingTowerHoursLabel(0)")));
}

}  // namespace varnholt
