// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/curve_sentences.h"

#include <algorithm>
#include <cmath>

#include "basis/number_text.h"
#include "forms/text_numbers/heat_pump_editor.h"

namespace varnholt {
namespace {

/// Greatest distance of the drawn curve from its points, in percent of theirs.
double distanceOf(const CurvePicture& curve) {
    double greatest = 0;
    for (const FitPoint& point : curve.measured)
        for (std::size_t i = 1; i < curve.line.size(); ++i) {
            const FitPoint &a = curve.line[i - 1], &b = curve.line[i];
            if (point.x < a.x || point.x > b.x || b.x == a.x || point.y == 0) continue;
            const double value = a.y + (b.y - a.y) * (point.x - a.x) / (b.x - a.x);
            greatest = std::max(greatest, std::fabs(value / point.y - 1) * 100);
        }
    return greatest;
}

std::string curveFigure(double value) { return formatNumber(value, "###0.0#"); }

/// Empty for a curve that is not drawn.
std::string sentenceOf(const CurvePicture& curve, const std::string& name, const Texts& texts) {
    if (curve.operating)
        return filledIn(texts.text(Text::curveTested),
                        {name, curveFigure(curve.operating->y), curveFigure(curve.operating->x)});
    if (curve.isOlder()) return filledIn(texts.text(Text::curveStale), {name});
    if (curve.measured.empty()) return {};
    return filledIn(texts.text(Text::curveMet),
                    {name, std::to_string(curve.measured.size()), curveFigure(distanceOf(curve))});
}

}  // namespace

std::string describe(const FitCurvesPicture& picture, const Texts& texts) {
    if (picture.curves.empty())
        return picture.emptyText == 0 ? std::string() : texts.text(picture.emptyText);
    constexpr ByMode<int> capacityNames{Text::coolingCapacityCurve, Text::heatingCapacityCurve},
        powerNames{Text::coolingPowerCurve, Text::heatingPowerCurve};
    std::string sentences;
    const auto tell = [&](const CurvePicture& curve, int name) {
        const std::string words = sentenceOf(curve, texts.text(name), texts);
        if (!words.empty()) sentences += (sentences.empty() ? "" : " ") + words;
    };
    for (const Mode mode : modes) {
        tell(picture.curves.capacity[mode], capacityNames[mode]);
        tell(picture.curves.power[mode], powerNames[mode]);
    }
    return sentences;
}

}  // namespace varnholt
