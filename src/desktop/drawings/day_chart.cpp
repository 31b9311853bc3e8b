// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/day_chart.h"

#include <algorithm>
#include <utility>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

/// The loads as steps: each block's load from its first hour to its last.
QList<QPointF> stepsOf(const std::array<double, timeBlocks>& loads) {
    QList<QPointF> points;
    double hour = 0;
    for (std::size_t block = 0; block < timeBlocks; ++block) {
        points << QPointF(hour, loads[block]);
        hour += blockHours[block];
        points << QPointF(hour, loads[block]);
    }
    return points;
}

ChartAxis dayAxis(const LoadsCaptions& captions) {
    ChartAxis day;
    double hour = 0;
    for (std::size_t block = 0; block < timeBlocks; ++block)
        day.parts.push_back({qt(captions.blocks[block]), hour += blockHours[block]});
    day.highest = hour;
    return day;
}

}  // namespace

DayChart::DayChart(Source loads, Captions captions, const Texts& texts, ChartModuleFinder charts)
    : ChartDrawing(texts, std::move(charts)),
      source_(std::move(loads)),
      captionSource_(std::move(captions)) {}

QString DayChart::description() const { return qt(describe(loads_, captions_, texts())); }

bool DayChart::take() {
    LoadsChart loads = source_();
    LoadsCaptions captions = captionSource_();
    if (loads == loads_ && captions == captions_) return false;
    loads_ = loads;
    captions_ = std::move(captions);
    return true;
}

std::vector<ChartPicture> DayChart::pictures() const {
    ChartPicture day{dayAxis(captions_),
                     axisFromZero(std::max(loads_.largest[cooling], loads_.largest[heating])),
                     {}};
    day.up.title = qt(captions_.unit);
    for (const Mode mode : modes) {
        const QList<QPointF> steps = stepsOf(loads_.loads[mode]);
        day.series.push_back({ChartSeries::Sign::area, mode, steps});
        day.series.push_back({ChartSeries::Sign::steps, mode, steps});
    }
    return {day};
}

std::vector<LegendRow::Entry> DayChart::legend() const {
    return {{LegendRow::Sign::coolingLine, qt(texts().text(Text::chartCooling))},
            {LegendRow::Sign::heatingLine, qt(texts().text(Text::chartHeating))}};
}

QString DayChart::emptyHint() const {
    return loads_.empty() ? qt(texts().text(Text::dayChartEmpty)) : QString();
}

}  // namespace varnholt
