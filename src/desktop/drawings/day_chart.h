// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "desktop/drawings/chart_drawing.h"
#include "desktop/drawings/loads_picture.h"

namespace varnholt {

/// The building's day in both modes: loads over 24 hours from 8 in the morning, each block as long
/// as it lasts.
class DayChart : public ChartDrawing {
 public:
    using Source = std::function<LoadsChart()>;
    using Captions = std::function<LoadsCaptions()>;

    DayChart(Source loads, Captions captions, const Texts& texts, ChartModuleFinder charts);

    QString description() const override;
    QSize sizeHint() const override { return {480, 220}; }

 protected:
    bool take() override;
    std::vector<ChartPicture> pictures() const override;
    std::vector<LegendRow::Entry> legend() const override;
    QString emptyHint() const override;

 private:
    Source source_;
    Captions captionSource_;
    LoadsChart loads_;
    LoadsCaptions captions_;
};

}  // namespace varnholt
