// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/ground_temp_curves.h"
#include "desktop/drawings/chart_drawing.h"
#include "forms/texts.h"

namespace varnholt {

/// The ground's temperature over the depth on the two extreme days, and over the year at the depth
/// of the pipe, with the design's two points on each.
class GroundTempChart : public ChartDrawing {
 public:
    using Source = std::function<GroundTempCurves()>;

    GroundTempChart(Source curves, const Texts& texts, ChartModuleFinder charts);

    QString description() const override;
    QSize sizeHint() const override { return {420, 370}; }
    QSize minimumSizeHint() const override { return {280, 320}; }

 protected:
    bool take() override;
    std::vector<ChartPicture> pictures() const override;
    std::vector<LegendRow::Entry> legend() const override;
    QString emptyHint() const override;

 private:
    ChartAxis temperatures() const;

    Source source_;
    GroundTempCurves curves_;
};

}  // namespace varnholt
