// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/chart_sentences.h"

#include "basis/number_text.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/screen_reader.h"

namespace varnholt {
namespace {

std::string chartFigure(double value) { return formatNumber(value, "##0.0"); }

std::string loadsOfMode(const LoadsChart& chart, Mode mode, const LoadsCaptions& captions,
                        const Texts& texts) {
    const auto load = [&](std::size_t block) { return chartFigure(chart.loads[mode][block]); };
    const std::string words =
        filledIn(texts.text(mode == cooling ? Text::gainsByBlock : Text::lossesByBlock),
                 {load(0), load(1), load(2), load(3), captions.unit,
                  captions.blocks[*chart.peakBlock[mode]]});
    if (!chart.capacity[mode]) return words;
    const bool exceeded = chart.largest[mode] > *chart.capacity[mode];
    return words + " " +
           filledIn(texts.text(exceeded ? Text::chartCapacityShort : Text::chartCapacity),
                    {chartFigure(*chart.capacity[mode]), captions.unit});
}

}  // namespace

std::string withoutBrackets(const std::string& unit) {
    if (unit.size() < 2 || unit.front() != '(' || unit.back() != ')') return unit;
    return unit.substr(1, unit.size() - 2);
}

LoadsCaptions loadsCaptions(UnitSystem units, const Texts& texts) {
    const bool metric = units == UnitSystem::metric;
    return {{texts.text(Text::summaryEightToNoon), texts.text(Text::summaryNoonToFour),
             texts.text(Text::summaryFourToEight), texts.text(Text::summaryEightToEight)},
            withoutBrackets(texts.text(metric ? Text::loadUnitsMetric : Text::loadUnitsEnglish))};
}

std::string describe(const LoadsChart& loads, const LoadsCaptions& captions, const Texts& texts) {
    if (loads.empty()) return texts.text(Text::dayChartEmpty);
    std::string sentences;
    for (const Mode mode : modes)
        if (loads.peakBlock[mode])
            sentences += (sentences.empty() ? "" : " ") + loadsOfMode(loads, mode, captions, texts);
    return sentences;
}

std::string describe(const PumpPicture& picture, const Texts& texts) {
    if (picture.pump.name.empty()) return texts.text(Text::pumpCurvesEmpty);
    std::string sentences = filledIn(texts.text(Text::pumpCurves), {picture.pump.name});
    for (const Mode mode : modes) {
        const auto capacity = valueAt(picture.pump.capacity[mode], picture.designWater[mode]);
        const auto power = valueAt(picture.pump.power[mode], picture.designWater[mode]);
        if (!capacity || !power) continue;
        sentences +=
            " " + filledIn(texts.text(Text::pumpCurvesAtDesign),
                           {texts.text(mode == cooling ? Text::chartCooling : Text::chartHeating),
                            chartFigure(picture.designWater[mode]), picture.temperatureUnit,
                            chartFigure(*capacity), picture.capacityUnit, chartFigure(*power),
                            picture.powerUnit});
    }
    return sentences;
}

std::optional<double> valueAt(const PumpCurve& curve, double enteringWater) {
    for (std::size_t i = 1; i < curve.curve.size(); ++i) {
        const PumpChartPoint &a = curve.curve[i - 1], &b = curve.curve[i];
        if (enteringWater < a.enteringWater || enteringWater > b.enteringWater) continue;
        if (b.enteringWater == a.enteringWater) return a.value;
        const double share =
            (enteringWater - a.enteringWater) / (b.enteringWater - a.enteringWater);
        return a.value + share * (b.value - a.value);
    }
    return std::nullopt;
}

}  // namespace varnholt
