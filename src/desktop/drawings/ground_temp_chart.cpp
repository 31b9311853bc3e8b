// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/ground_temp_chart.h"

#include <algorithm>
#include <utility>

#include "basis/units.h"
#include "design/picture_sentences.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

using Sign = ChartSeries::Sign;

ChartAxis daysOfTheYear() {
    constexpr double quarter = 90;
    ChartAxis axis;
    axis.highest = daysPerYear;
    axis.step = quarter;
    return axis;
}

}  // namespace

GroundTempChart::GroundTempChart(Source curves, const Texts& texts, ChartModuleFinder charts)
    : ChartDrawing(texts, std::move(charts), QBoxLayout::TopToBottom), source_(std::move(curves)) {}

QString GroundTempChart::description() const { return qt(describe(curves_, texts())); }

bool GroundTempChart::take() {
    const GroundTempCurves before = std::exchange(curves_, source_());
    return curves_ != before;
}

/// One axis for both charts, so that heights can be compared.
ChartAxis GroundTempChart::temperatures() const {
    double lowest = curves_.overYear.front().up, highest = lowest;
    for (const Curve* curve :
         {&curves_.overDepth[cooling], &curves_.overDepth[heating], &curves_.overYear})
        for (const CurvePoint& point : *curve) {
            lowest = std::min(lowest, point.up);
            highest = std::max(highest, point.up);
        }
    ChartAxis axis = axisAround(lowest, highest);
    axis.title = titleWithUnit(texts().text(Text::groundChartTemperature), curves_.temperatureUnit);
    axis.unit = qt(curves_.temperatureUnit);
    return axis;
}

std::vector<ChartPicture> GroundTempChart::pictures() const {
    ChartPicture depth, year;
    depth.up = year.up = temperatures();
    depth.across = axisFromZero(curves_.overDepth[cooling].back().across);
    depth.across.title = titleWithUnit(texts().text(Text::groundChartDepth), curves_.depthUnit);
    year.across = daysOfTheYear();
    year.across.title = qt(texts().text(Text::groundChartDay));
    year.series.push_back({Sign::neutral, cooling, pointsOf(curves_.overYear)});
    for (const Mode mode : modes) {
        depth.series.push_back({Sign::line, mode, pointsOf(curves_.overDepth[mode])});
        depth.series.push_back({Sign::design, mode, pointsOf(curves_.atDepth[mode])});
        year.series.push_back({Sign::design, mode, pointsOf(curves_.onDay[mode])});
    }
    return {depth, year};
}

std::vector<LegendRow::Entry> GroundTempChart::legend() const {
    return {{LegendRow::Sign::coolingLine, qt(texts().text(Text::groundChartWarmestDay))},
            {LegendRow::Sign::heatingLine, qt(texts().text(Text::groundChartColdestDay))},
            {LegendRow::Sign::neutralLine, qt(texts().text(Text::groundChartAtDepth))},
            {LegendRow::Sign::design, qt(texts().text(Text::pumpCurvesDesign))}};
}

QString GroundTempChart::emptyHint() const {
    return curves_.empty() ? qt(texts().text(Text::groundChartEmpty)) : QString();
}

}  // namespace varnholt
