// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/drawings.h"

#include <utility>

#include "desktop/drawings/bore_picture.h"
#include "desktop/drawings/day_chart.h"
#include "desktop/drawings/field_picture.h"
#include "desktop/drawings/painted_drawing.h"

namespace varnholt {
namespace {

struct LoadsBars {
    LoadsChart loads;
    LoadsCaptions captions;
};

}  // namespace

Drawing* newBoreDrawing(std::function<BoreDrawing()> source, const Texts& texts) {
    return new PaintedDrawing<BoreDrawing>(
        std::move(source),
        [&texts](const Canvas& canvas, const BoreDrawing& bore) { paintBore(canvas, bore, texts); },
        [&texts](const BoreDrawing& bore) { return describeBore(bore, texts); }, {260, 290});
}

Drawing* newFieldDrawing(std::function<FieldPlan()> source, const Texts& texts) {
    return new PaintedDrawing<FieldPlan>(
        std::move(source),
        [&texts](const Canvas& canvas, const FieldPlan& field) {
            paintField(canvas, field, texts);
        },
        [&texts](const FieldPlan& field) { return describeField(field, texts); }, {380, 320});
}

Drawing* newLinkLight(LinkLight light, const Texts& texts) {
    auto* lamp = new PaintedDrawing<LinkLight>(
        [light] { return light; }, paintLinkLight,
        [&texts](LinkLight shown) { return describeLinkLight(shown, texts); }, {24, 24});
    lamp->setFixedSize(24, 24);
    lamp->setToolTip(describeLinkLight(light, texts));
    return lamp;
}

Drawing* newLoadsBars(std::function<LoadsChart()> source, std::function<LoadsCaptions()> captions,
                      const Texts& texts) {
    return new PaintedDrawing<LoadsBars>(
        [source = std::move(source), captions = std::move(captions)] {
            return LoadsBars{source(), captions()};
        },
        [&texts](const Canvas& canvas, const LoadsBars& bars) {
            paintLoads(canvas, bars.loads, bars.captions, texts);
        },
        [&texts](const LoadsBars& bars) { return describeLoads(bars.loads, bars.captions, texts); },
        {280, 140});
}

Drawing* newDayChart(std::function<LoadsChart()> source, std::function<LoadsCaptions()> captions,
                     const Texts& texts) {
    return new DayChart(std::move(source), std::move(captions), texts);
}

Drawing* newPumpCurves(std::function<PumpPicture()> source, const Texts& texts) {
    return new PumpCurves(std::move(source), texts);
}

}  // namespace varnholt
