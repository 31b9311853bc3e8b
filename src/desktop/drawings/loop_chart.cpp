// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/loop_chart.h"

#include <algorithm>
#include <utility>

#include "design/picture_sentences.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

using Sign = ChartSeries::Sign;

}  // namespace

LoopChart::LoopChart(Source curves, const Texts& texts, ChartModuleFinder charts)
    : ChartDrawing(texts, std::move(charts)), source_(std::move(curves)) {}

QString LoopChart::description() const { return qt(describe(curves_, texts())); }

bool LoopChart::take() {
    const LoopCurves before = std::exchange(curves_, source_());
    return curves_ != before;
}

std::vector<ChartPicture> LoopChart::pictures() const {
    ChartPicture chart;
    double farthest = 0, longest = 0;
    for (const Mode mode : modes) {
        for (const CurvePoint& point : curves_.perTon[mode]) {
            farthest = std::max(farthest, point.across);
            longest = std::max(longest, point.up);
        }
        chart.series.push_back({Sign::line, mode, pointsOf(curves_.perTon[mode])});
        chart.series.push_back({Sign::design, mode, pointsOf(curves_.atDesign[mode])});
    }
    chart.across = axisFromZero(farthest);
    chart.across.title =
        titleWithUnit(texts().text(Text::loopChartDifference), curves_.differenceUnit);
    // It is low on a small screen, and figures that stand too close would end in dots.
    constexpr int stepsUp = 3;
    chart.up = axisFromZero(longest, stepsUp);
    chart.up.title = titleWithUnit(texts().text(Text::loopChartPerTon), curves_.lengthUnit);
    chart.up.unit = qt(curves_.lengthUnit);
    return {chart};
}

std::vector<LegendRow::Entry> LoopChart::legend() const {
    return {{LegendRow::Sign::coolingLine, qt(texts().text(Text::chartCooling))},
            {LegendRow::Sign::heatingLine, qt(texts().text(Text::chartHeating))},
            {LegendRow::Sign::design, qt(texts().text(Text::pumpCurvesDesign))}};
}

QString LoopChart::emptyHint() const {
    return curves_.empty() ? qt(texts().text(Text::loopChartEmpty)) : QString();
}

}  // namespace varnholt
