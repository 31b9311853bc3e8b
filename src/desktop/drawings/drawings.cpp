// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/drawings.h"

#include <QTimer>
#include <utility>

#include "design/picture_sentences.h"
#include "desktop/drawings/bore_picture.h"
#include "desktop/drawings/circuit_picture.h"
#include "desktop/drawings/day_chart.h"
#include "desktop/drawings/field_picture.h"
#include "desktop/drawings/ground_temp_chart.h"
#include "desktop/drawings/length_picture.h"
#include "desktop/drawings/length_strip.h"
#include "desktop/drawings/loop_chart.h"
#include "desktop/drawings/painted_drawing.h"
#include "desktop/drawings/trench_picture.h"
#include "desktop/drawings/trench_plan_picture.h"
#include "desktop/widgets/qt_text.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

struct LoadsBars {
    LoadsChart loads;
    LoadsCaptions captions;
};

class LinkLamp : public Drawing {
 public:
    LinkLamp(LinkPartner partner, std::function<std::string()> sentence)
        : partner_(partner), sentence_(std::move(sentence)) {
        setFixedSize(24, 24);
    }

    /// A light has no other name than what it says.
    void refresh() override {
        setAccessibleName(description());
        setToolTip(description());
    }
    QString description() const override { return qt(sentence_()); }
    /// Goes out for a moment while loads pass.
    void flash() override {
        constexpr int milliseconds = 250;
        dark_ = true;
        update();
        QTimer::singleShot(milliseconds, this, [this] {
            dark_ = false;
            update();
        });
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintLinkLight(canvasFor(painter, rect(), palette(), font()), partner_,
                       isEnabled() && !dark_);
    }

 private:
    bool dark_ = false;
    LinkPartner partner_;
    std::function<std::string()> sentence_;
};

}  // namespace

Drawing* newBoreDrawing(std::function<BoreDrawing()> source, const Texts& texts) {
    return new PaintedDrawing<BoreDrawing>(
        std::move(source),
        [&texts](const Canvas& canvas, const BoreDrawing& bore) { paintBore(canvas, bore, texts); },
        [&texts](const BoreDrawing& bore) { return qt(describe(bore, texts)); }, {260, 188});
}

Drawing* newFieldDrawing(std::function<FieldPlan()> source, const Texts& texts) {
    return new PaintedDrawing<FieldPlan>(
        std::move(source),
        [&texts](const Canvas& canvas, const FieldPlan& field) {
            paintField(canvas, field, texts);
        },
        [&texts](const FieldPlan& field) { return qt(describe(field, texts)); }, {380, 320});
}

Drawing* newSmallFieldDrawing(std::function<FieldPlan()> source, const Texts& texts) {
    return new PaintedDrawing<FieldPlan>(
        std::move(source),
        [&texts](const Canvas& canvas, const FieldPlan& field) {
            paintSmallField(canvas, field, texts);
        },
        [&texts](const FieldPlan& field) { return qt(describe(field, texts)); }, {220, 150});
}

Drawing* newLengthDrawing(std::function<LengthSummary()> source, const Texts& texts) {
    return new PaintedDrawing<LengthSummary>(
        std::move(source),
        [&texts](const Canvas& canvas, const LengthSummary& lengths) {
            paintLengths(canvas, lengths, texts);
        },
        [&texts](const LengthSummary& lengths) { return qt(describe(lengths, texts)); },
        {460, 120});
}

Drawing* newLengthStrip(std::function<LengthSummary()> source, const Texts& texts) {
    return new LengthStrip(std::move(source), texts);
}

Drawing* newTrenchDrawing(std::function<TrenchDrawing()> source, const Texts& texts) {
    return new PaintedDrawing<TrenchDrawing>(
        std::move(source),
        [&texts](const Canvas& canvas, const TrenchDrawing& trench) {
            paintTrench(canvas, trench, texts);
        },
        [&texts](const TrenchDrawing& trench) { return qt(describe(trench, texts)); }, {380, 220});
}

Drawing* newTrenchPlanDrawing(std::function<TrenchPlan()> source, const Texts& texts) {
    return new PaintedDrawing<TrenchPlan>(
        std::move(source),
        [&texts](const Canvas& canvas, const TrenchPlan& plan) {
            paintTrenches(canvas, plan, texts);
        },
        [&texts](const TrenchPlan& plan) { return qt(describe(plan, texts)); }, {340, 132});
}

Drawing* newCircuitDrawing(std::function<CircuitPlan()> source, const Texts& texts,
                           const QSize& usual) {
    return new PaintedDrawing<CircuitPlan>(
        std::move(source),
        [&texts](const Canvas& canvas, const CircuitPlan& plan) {
            paintCircuit(canvas, plan, texts);
        },
        [&texts](const CircuitPlan& plan) { return qt(describe(plan, texts)); }, usual);
}

Drawing* newGroundTempChart(std::function<GroundTempCurves()> source, const Texts& texts,
                            ChartModuleFinder charts) {
    return new GroundTempChart(std::move(source), texts, std::move(charts));
}

Drawing* newLoopChart(std::function<LoopCurves()> source, const Texts& texts,
                      ChartModuleFinder charts) {
    return new LoopChart(std::move(source), texts, std::move(charts));
}

Drawing* newLinkLight(LinkPartner partner, std::function<std::string()> sentence) {
    return new LinkLamp(partner, std::move(sentence));
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
        [&texts](const LoadsBars& bars) { return qt(describe(bars.loads, bars.captions, texts)); },
        {252, 88});
}

Drawing* newMonthsPicture(std::function<MonthsChart()> source, const Texts& texts) {
    return new PaintedDrawing<MonthsChart>(
        std::move(source),
        [&texts](const Canvas& canvas, const MonthsChart& year) {
            paintMonths(canvas, year, texts);
        },
        [&texts](const MonthsChart& year) { return qt(describe(year, texts)); }, {420, 150});
}

Drawing* newDayChart(std::function<LoadsChart()> source, std::function<LoadsCaptions()> captions,
                     const Texts& texts, ChartModuleFinder charts) {
    return new DayChart(std::move(source), std::move(captions), texts, std::move(charts));
}

Drawing* newPumpCurves(std::function<PumpPicture()> source, const Texts& texts,
                       ChartModuleFinder charts) {
    return new PumpCurves(std::move(source), texts, std::move(charts));
}

Drawing* newFitCurves(std::function<FitCurvesPicture()> source, const Texts& texts,
                      ChartModuleFinder charts) {
    return new FitCurves(std::move(source), texts, std::move(charts));
}

}  // namespace varnholt
