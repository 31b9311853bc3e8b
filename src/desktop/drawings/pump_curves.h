// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string>

#include "desktop/drawings/chart_drawing.h"
#include "forms/texts.h"
#include "loads/modLoads/loads_pictures.h"

class QLineSeries;
class QScatterSeries;

namespace varnholt {

/// A model's curves and the water that the design takes it with, all in the units shown.
struct PumpPicture {
    PumpChart pump;
    ByMode<double> designWater{};  ///< entering water temperature of the design
    std::string temperatureUnit, capacityUnit, powerUnit;

    friend bool operator==(const PumpPicture&, const PumpPicture&) = default;
};

/// A curve's value at a place, between its points on a straight line; nothing outside of it.
std::optional<double> valueAt(const PumpCurve& curve, double enteringWater);

/// A pump's capacity and power over the entering water temperature, both modes: the fitted curves,
/// the catalogue's points, and the design's point on each curve.
class PumpCurves : public ChartDrawing {
 public:
    using Source = std::function<PumpPicture()>;

    PumpCurves(Source picture, const Texts& texts);

    QString description() const override;
    QSize sizeHint() const override { return {560, 240}; }

 protected:
    void create() override;
    void take() override;
    QString emptyHint() const override;
    void dress(const Look& look) override;

 private:
    /// One of the two charts.
    struct Plot {
        QChart* chart = nullptr;
        QValueAxis *water = nullptr, *value = nullptr;
        ByMode<QLineSeries*> curves{};
        ByMode<QScatterSeries*> points{}, design{};
    };

    void createPlot(Plot& plot);
    void showCaptions();
    static void showCurves(Plot& plot, const ByMode<PumpCurve>& curves);
    void showDesign(Plot& plot, const ByMode<PumpCurve>& curves);

    Source source_;
    const Texts& texts_;
    PumpPicture picture_;
    Plot capacity_, power_;
};

}  // namespace varnholt
