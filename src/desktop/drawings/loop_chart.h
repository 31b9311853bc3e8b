// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/loop_curves.h"
#include "desktop/drawings/chart_drawing.h"
#include "forms/texts.h"

namespace varnholt {

/// Length of pipe for a ton over the difference of fluid and water, both modes, with the design's
/// point on each curve.
class LoopChart : public ChartDrawing {
 public:
    using Source = std::function<LoopCurves()>;

    LoopChart(Source curves, const Texts& texts, ChartModuleFinder charts);

    QString description() const override;
    QSize sizeHint() const override { return {320, 136}; }
    QSize minimumSizeHint() const override { return {240, 136}; }

 protected:
    bool take() override;
    std::vector<ChartPicture> pictures() const override;
    std::vector<LegendRow::Entry> legend() const override;
    QString emptyHint() const override;

 private:
    Source source_;
    LoopCurves curves_;
};

}  // namespace varnholt
