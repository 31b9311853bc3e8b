// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "catalogue/editor/editor_pictures.h"
#include "desktop/drawings/chart_drawing.h"
#include "forms/texts.h"

namespace varnholt {

/// Capacity and power of a model as they are being fitted, one below the other: the points that
/// were measured, the curves over them, and where the model is tried. A curve that was fitted from
/// older data is dotted and grey.
class FitCurves : public ChartDrawing {
 public:
    using Source = std::function<FitCurvesPicture()>;

    FitCurves(Source picture, const Texts& texts, ChartModuleFinder charts);

    QString description() const override;
    QSize sizeHint() const override { return {400, 370}; }
    /// Narrow enough to stand beside tables whose heads are long.
    QSize minimumSizeHint() const override { return {208, 160}; }

 protected:
    bool take() override;
    std::vector<ChartPicture> pictures() const override;
    std::vector<LegendRow::Entry> legend() const override;
    QString emptyHint() const override;

 private:
    Source source_;
    FitCurvesPicture picture_;
};

}  // namespace varnholt
