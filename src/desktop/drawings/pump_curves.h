// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "desktop/drawings/chart_drawing.h"
#include "forms/texts.h"
#include "loads/modLoads/loads_pictures.h"

namespace varnholt {

/// A pump's capacity and power over the entering water temperature, both modes: the fitted curves,
/// the catalogue's points, and the design's point on each curve.
class PumpCurves : public ChartDrawing {
 public:
    using Source = std::function<PumpPicture()>;

    PumpCurves(Source picture, const Texts& texts, ChartModuleFinder charts);

    QString description() const override;
    QSize sizeHint() const override { return {560, 240}; }

 protected:
    bool take() override;
    std::vector<ChartPicture> pictures() const override;
    std::vector<LegendRow::Entry> legend() const override;
    QString emptyHint() const override;

 private:
    ChartPicture chartOf(const ByMode<PumpCurve>& curves, const QString& title) const;

    Source source_;
    PumpPicture picture_;
};

}  // namespace varnholt
