// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "desktop/drawings/chart_drawing.h"
#include "desktop/drawings/loads_picture.h"

class QAreaSeries;
class QCategoryAxis;
class QLineSeries;

namespace varnholt {

/// The building's day in both modes: loads over 24 hours from 8 in the morning, each block as long
/// as it lasts.
class DayChart : public ChartDrawing {
 public:
    using Source = std::function<LoadsChart()>;
    using Captions = std::function<LoadsCaptions()>;

    DayChart(Source loads, Captions captions, const Texts& texts);

    QString description() const override;
    QSize sizeHint() const override { return {480, 220}; }

 protected:
    void create() override;
    void take() override;
    QString emptyHint() const override;
    void dress(const Look& look) override;

 private:
    void showLoads();

    Source source_;
    Captions captionSource_;
    const Texts& texts_;
    LoadsChart loads_;
    LoadsCaptions captions_;
    ByMode<QLineSeries*> lines_{};
    ByMode<QAreaSeries*> areas_{};
    QCategoryAxis* day_ = nullptr;
    QValueAxis* load_ = nullptr;
};

}  // namespace varnholt
