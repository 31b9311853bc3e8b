// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QImage>
#include <functional>
#include <string>
#include <vector>

#include "basis/file_system.h"
#include "desktop/drawings/bore_picture.h"
#include "desktop/drawings/circuit_picture.h"
#include "desktop/drawings/field_picture.h"
#include "desktop/drawings/length_picture.h"
#include "desktop/drawings/link_light.h"
#include "desktop/drawings/loads_picture.h"
#include "desktop/drawings/months_picture.h"
#include "desktop/drawings/trench_picture.h"
#include "desktop/drawings/trench_plan_picture.h"
#include "tools/text_table.h"

namespace varnholt {

/// The English texts of the pictures.
class PictureTexts : public Texts {
 public:
    PictureTexts() {
        for (const std::string name :
             {"1350_desktop.txt", "1500_import.txt", "2460_pictures.txt", "2551_lengths.txt",
              "2800_loads.txt", "3800_screen_reader.txt", "5000_horizontal.txt"})
            table_.read(readWholeFile(VARNHOLT_SOURCE_DIR "/resources/language/english/" + name),
                        name);
    }
    std::string text(int number) const override {
        const auto found = table_.texts().find(number);
        return found == table_.texts().end() ? std::string() : found->second;
    }
    std::string picture(int) const override { return {}; }

 private:
    TextTable table_;
};

inline const Texts& pictureTexts() {
    static const PictureTexts texts;
    return texts;
}

inline BoreDrawing sampleBore(double diameter, double outside, double inside, double uTubes,
                              double placement) {
    BoreValues bore;
    bore.boreDiameter = diameter;
    bore.uTubeConfig = uTubes;
    bore.pipePlacement = placement;
    PipeValues pipe;
    pipe.pipeDiameter = {outside, inside};
    BoreDrawing drawing = drawBore(bore, pipe);
    drawing.boreLabel = QString::number(diameter, 'f', 2).toStdString() + " in";
    drawing.pipeLabel = QString::number(outside, 'f', 2).toStdString() + " in";
    return drawing;
}

inline FieldPlan sampleField(double across, double down) {
    ArrangementValues values;
    values.patternRows = {across, down};
    FieldPlan plan = drawField(values);
    const auto feet = [](double length) { return QString::number(length, 'f', 1) + " ft"; };
    plan.separationLabel = feet(20).toStdString();
    plan.acrossLabel = feet(fieldExtent(across, 20)).toStdString();
    plan.downLabel = feet(fieldExtent(down, 20)).toStdString();
    return plan;
}

/// Lengths of 2029.1 and 1420.1 ft, heating relieved by the year's heat and the warmer ground.
inline LengthSummary sampleLengths() {
    LengthSummary lengths;
    lengths.state = LengthSummary::State::fresh;
    lengths.governing = cooling;
    lengths.feet = {2029.1, 1420.1};
    lengths.length = {"2029.1 ft", "1420.1 ft"};
    lengths.each = {"338.2 ft", "236.7 ft"};
    lengths.eachWord = "a bore";
    const auto part = [](const char* name, double cool, double heat) {
        const auto feet = [](double length) {
            return QString::number(length, 'f', 1).toStdString() + " ft";
        };
        return LengthSegment{name, {cool, heat}, {feet(cool), feet(heat)}};
    };
    lengths.parts = {part("Long-term heat", 20, -46.2), part("Monthly heat", 447.1, 253.4),
                     part("Short-term pulse", 465, 527), part("Bore resistance", 894.1, 1013.5),
                     part("Temperature penalty", 202.9, -327.6)};
    return lengths;
}

/// A pond as it stands after a run.
inline CircuitPlan samplePond(int headers, int branches, int loops, bool slinky) {
    CircuitPlan plan;
    plan.slinky = slinky;
    plan.primary.count = headers;
    plan.primary.flow = {"66.6 gal/min", "58.0 gal/min"};
    plan.primary.inSoil = "160.0 ft";
    plan.primary.inWater = "40.0 ft";
    plan.branch.count = branches;
    plan.branch.flow = {"22.2 gal/min", "19.3 gal/min"};
    plan.branch.inWater = "90.0 ft";
    plan.loops = {loops, loops / 2};
    plan.systemFlow = {"133.2 gal/min", "116.0 gal/min"};
    plan.loopFlow = {"3.0 gal/min", "3.6 gal/min"};
    return plan;
}

inline HorizontalArrangementValues samplePipes(std::int16_t arrangement, double pipes,
                                               bool offset = false) {
    HorizontalArrangementValues values;
    values.trenchConfiguration = arrangement;
    values.pipesPerTrench = pipes;
    values.offsetRows = offset ? 1 : 0;
    values.coilGeometry = {18, 36};
    return values;
}

inline TrenchDrawing sampleTrench(const HorizontalArrangementValues& pipes, double depth,
                                  double width) {
    TrenchDrawing drawing = drawTrench({4, {12, depth, width}}, pipes, {});
    const auto inches = [](double size) {
        return QString::number(size, 'f', 1).toStdString() + " inches";
    };
    drawing.depthLabel = QString::number(depth, 'f', 1).toStdString() + " ft";
    drawing.widthLabel = inches(width);
    drawing.rowStepLabel = inches(pipes.pipeSeparation[0]);
    drawing.columnStepLabel = inches(pipes.pipeSeparation[1]);
    drawing.coilLabel = inches(pipes.coilGeometry[1]);
    return drawing;
}

inline TrenchPlan sampleTrenchPlan(const HorizontalArrangementValues& pipes, double trenches) {
    TrenchPlan plan = drawTrenches({trenches, {12, 6, 24}}, pipes);
    plan.separationLabel = "12.0 ft";
    plan.pitchLabel = "18.0 inches";
    plan.coilLabel = "36.0 inches";
    return plan;
}

inline LoadsChart sampleLoads() {
    LoadsChart chart;
    chart.loads[cooling] = {24.0, 42.5, 38.2, 6.0};
    chart.loads[heating] = {31.0, 12.4, 9.0, 27.5};
    chart.largest = {42.5, 31.0};
    chart.peakBlock = {1, 0};
    return chart;
}

inline MonthsChart sampleMonths(Mode mode) {
    MonthsChart chart;
    chart.mode = mode;
    chart.energies = {20, 30, 60, 120, 200, 260, 300, 290, 210, 110, 50, 25};
    chart.peaks = {30, 35, 45, 60, 72, 84, 90.5, 90.5, 80, 58, 44, 32};
    chart.peakMonth = 6;
    chart.names = {"January", "February", "March",     "April",   "May",      "June",
                   "July",    "August",   "September", "October", "November", "December"};
    chart.energyUnit = "( MBtu )";
    chart.peakUnit = "(MBtu/Hr)";
    return chart;
}

inline LoadsCaptions sampleCaptions() { return {{"8-12", "12-4", "4-8", "8-8"}, "MBtu/hr"}; }

/// One picture of the gallery.
struct DrawingSample {
    std::string name;
    QSize size;
    std::function<void(const Canvas&)> paint;
};

inline std::vector<DrawingSample> drawingSamples() {
    const Texts& texts = pictureTexts();
    std::vector<DrawingSample> samples;
    const auto bore = [&](const char* name, const BoreDrawing& drawing) {
        samples.push_back({name, {280, 300}, [=, &texts](const Canvas& canvas) {
                               paintBore(canvas, drawing, texts);
                           }});
    };
    const auto field = [&](const char* name, double across, double down) {
        const FieldPlan plan = sampleField(across, down);
        samples.push_back({name, {360, 320}, [=, &texts](const Canvas& canvas) {
                               paintField(canvas, plan, texts);
                           }});
    };
    bore("bore_average", sampleBore(5, 1.9, 1.55, 0, 1));
    bore("bore_at_wall", sampleBore(6, 1.315, 1.08, 0, 0));
    bore("bore_close_together", sampleBore(5, 1.05, 0.86, 0, 2));
    bore("bore_double", sampleBore(6, 1.315, 1.08, 1, 1));
    bore("bore_too_narrow", sampleBore(3, 1.9, 1.55, 0, 1));
    field("field_6_by_4", 6, 4);
    field("field_1_by_1", 1, 1);
    field("field_8_by_1", 8, 1);
    field("field_1_by_5", 1, 5);
    field("field_2_by_2", 2, 2);
    field("field_20_by_15", 20, 15);
    field("field_100_by_100", 100, 100);
    field("field_none", 0, 4);
    const auto trench = [&](const char* name, const TrenchDrawing& drawing) {
        samples.push_back({name, {380, 300}, [=, &texts](const Canvas& canvas) {
                               paintTrench(canvas, drawing, texts);
                           }});
    };
    trench("trench_one_pipe", sampleTrench(samplePipes(0, 1), 6, 8));
    trench("trench_staggered", sampleTrench(samplePipes(0, 4, true), 6, 12));
    trench("trench_two_columns", sampleTrench(samplePipes(1, 6), 6, 18));
    trench("trench_three_columns", sampleTrench(samplePipes(2, 24), 8, 30));
    trench("trench_slinky_flat", sampleTrench(samplePipes(3, 1), 5, 40));
    trench("trench_slinky_too_wide", sampleTrench(samplePipes(3, 1), 5, 8));
    trench("trench_slinky_on_edge", sampleTrench(samplePipes(4, 1), 5, 36));
    trench("trench_none", sampleTrench(samplePipes(0, 1), 0, 8));
    const auto trenches = [&](const char* name, const TrenchPlan& plan) {
        samples.push_back({name, {380, 190}, [=, &texts](const Canvas& canvas) {
                               paintTrenches(canvas, plan, texts);
                           }});
    };
    trenches("trenches_one", sampleTrenchPlan(samplePipes(0, 1), 1));
    trenches("trenches_columns", sampleTrenchPlan(samplePipes(2, 6), 3));
    trenches("trenches_slinkies_flat", sampleTrenchPlan(samplePipes(3, 1), 4));
    trenches("trenches_slinkies_on_edge", sampleTrenchPlan(samplePipes(4, 1), 12));
    const auto pond = [&](const char* name, const CircuitPlan& plan) {
        samples.push_back({name, {440, 320}, [=, &texts](const Canvas& canvas) {
                               paintCircuit(canvas, plan, texts);
                           }});
    };
    pond("pond_coils", samplePond(2, 3, 44, false));
    pond("pond_slinkies", samplePond(1, 0, 6, true));
    pond("pond_one_loop", samplePond(1, 0, 1, false));
    pond("pond_many", samplePond(40, 30, 9000, true));
    pond("pond_none", {});
    samples.push_back({"lengths", {520, 130}, [&texts](const Canvas& canvas) {
                           paintLengths(canvas, sampleLengths(), texts);
                       }});
    samples.push_back({"lengths_none", {520, 130}, [&texts](const Canvas& canvas) {
                           paintLengths(canvas, {}, texts);
                       }});
    samples.push_back({"field_small", {220, 150}, [&texts](const Canvas& canvas) {
                           paintSmallField(canvas, sampleField(10, 14), texts);
                       }});
    samples.push_back({"loads", {300, 150}, [&texts](const Canvas& canvas) {
                           paintLoads(canvas, sampleLoads(), sampleCaptions(), texts);
                       }});
    samples.push_back({"loads_none", {300, 150}, [&texts](const Canvas& canvas) {
                           paintLoads(canvas, {}, sampleCaptions(), texts);
                       }});
    for (const Mode mode : modes)
        samples.push_back({mode == cooling ? "months_cooling" : "months_heating",
                           {440, 200},
                           [mode, &texts](const Canvas& canvas) {
                               paintMonths(canvas, sampleMonths(mode), texts);
                           }});
    samples.push_back({"months_none", {440, 200}, [&texts](const Canvas& canvas) {
                           paintMonths(canvas, {}, texts);
                       }});
    for (const LinkPartner light : {LinkPartner::none, LinkPartner::zones, LinkPartner::block})
        samples.push_back({"light_" + std::to_string(static_cast<int>(light)),
                           {40, 40},
                           [=](const Canvas& canvas) { paintLinkLight(canvas, light, true); }});
    return samples;
}

/// The sample on the surface of a scheme, at so many pixels to a device-independent one.
inline QImage renderedSample(const DrawingSample& sample, const Look& look, double ratio) {
    QImage image((QSizeF(sample.size) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(look.surface);
    QPainter painter(&image);
    QPalette palette;
    palette.setColor(QPalette::Window, look.window);
    QFont font(QStringLiteral("Inter"));
    font.setPointSizeF(9);
    const QRectF area = QRectF(QPointF(0, 0), QSizeF(sample.size)).adjusted(8, 8, -8, -8);
    sample.paint(canvasFor(painter, area, palette, font));
    return image;
}

}  // namespace varnholt
