// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/svg_drawing.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "reports/html_report.h"

namespace varnholt {
namespace {

constexpr double width = 360, height = 240;

struct Svg {
    std::string body;

    void circle(double x, double y, double radius, const char* look) {
        body += fmt::format("<circle cx=\"{:.1f}\" cy=\"{:.1f}\" r=\"{:.1f}\" {}/>", x, y, radius,
                            look);
    }
    void rectangle(double x, double y, double w, double h, const char* look) {
        body +=
            fmt::format("<rect x=\"{:.1f}\" y=\"{:.1f}\" width=\"{:.1f}\" height=\"{:.1f}\" {}/>",
                        x, y, w, h, look);
    }
    void line(double x, double y, double toX, double toY, const char* look) {
        body += fmt::format("<line x1=\"{:.1f}\" y1=\"{:.1f}\" x2=\"{:.1f}\" y2=\"{:.1f}\" {}/>", x,
                            y, toX, toY, look);
    }
    void words(double x, double y, const std::string& words, const char* anchor = "middle") {
        body += fmt::format(
            "<text x=\"{:.1f}\" y=\"{:.1f}\" text-anchor=\"{}\" font-size=\"11\" "
            "fill=\"currentColor\">{}</text>",
            x, y, anchor, htmlText(words));
    }
};

constexpr const char* outline = "fill=\"none\" stroke=\"currentColor\" stroke-width=\"1.5\"";
constexpr const char* thin = "stroke=\"currentColor\" stroke-width=\"0.7\"";
constexpr const char* wall = "fill=\"#8a94a0\" stroke=\"currentColor\" stroke-width=\"0.7\"";
constexpr const char* water = "fill=\"#cfe2f5\"";
constexpr const char* grout = "fill=\"#d9d3c7\" stroke=\"currentColor\" stroke-width=\"1.5\"";

struct Draw {
    Svg& svg;

    void operator()(const BoreDrawing& bore) const {
        double reach = bore.boreDiameter / 2;
        for (const PipeCircle& pipe : bore.pipes)
            reach = std::max(reach, std::hypot(pipe.x, pipe.y) + pipe.outside / 2);
        if (reach <= 0) return;
        const double scale = 90 / reach, x = width / 2, y = 108;
        svg.circle(x, y, bore.boreDiameter / 2 * scale, grout);
        for (const PipeCircle& pipe : bore.pipes) {
            svg.circle(x + pipe.x * scale, y - pipe.y * scale, pipe.outside / 2 * scale, wall);
            svg.circle(x + pipe.x * scale, y - pipe.y * scale, pipe.inside / 2 * scale, water);
        }
        svg.words(x, 228, bore.boreLabel + " / " + bore.pipeLabel);
    }

    void operator()(const FieldPlan& field) const {
        if (field.columnsDrawn < 1 || field.rowsDrawn < 1) return;
        const double step = std::min({24.0, 300.0 / std::max(1, field.columnsDrawn - 1),
                                      170.0 / std::max(1, field.rowsDrawn - 1)});
        const double left = (width - step * (field.columnsDrawn - 1)) / 2;
        const double top = (200 - step * (field.rowsDrawn - 1)) / 2;
        for (int row = 0; row < field.rowsDrawn; ++row)
            for (int column = 0; column < field.columnsDrawn; ++column)
                svg.circle(left + column * step, top + row * step, std::min(5.0, step * 0.3),
                           outline);
        svg.words(width / 2, 214, field.acrossLabel + " x " + field.downLabel);
        svg.words(width / 2, 230, field.separationLabel);
    }

    void operator()(const TrenchDrawing& trench) const {
        if (trench.empty()) return;
        const double deep = std::max(trench.depth, trench.bottom);
        const double scale = std::min(300 / trench.width, 180 / deep);
        const double x = width / 2, top = 16;
        svg.rectangle(x - trench.width / 2 * scale, top, trench.width * scale, deep * scale, grout);
        svg.line(20, top, width - 20, top, thin);
        for (const PipeCircle& pipe : trench.pipes)
            svg.circle(x + pipe.x * scale, top - pipe.y * scale,
                       std::max(1.5, pipe.outside / 2 * scale), wall);
        const double coil = trench.coilDiameter / 2 * scale;
        const double middle = top + trench.coilMiddle * scale;
        if (trench.coil && trench.standing) svg.line(x, middle - coil, x, middle + coil, outline);
        if (trench.coil && !trench.standing) svg.line(x - coil, middle, x + coil, middle, outline);
        svg.words(x, 214, trench.widthLabel + " x " + trench.depthLabel);
        svg.words(x, 230, trench.coilLabel);
    }

    void operator()(const TrenchPlan& plan) const {
        if (plan.empty()) return;
        const double step = 160.0 / std::max(1, plan.drawn);
        for (int trench = 0; trench < plan.drawn; ++trench) {
            const double y = 24 + step * (trench + 0.5);
            svg.rectangle(30, y - step * 0.2, 300, step * 0.4, grout);
            const int lines = plan.isCoil() ? 1 : plan.columns;
            for (int line = 0; line < lines; ++line) {
                const double at = y + (line - (lines - 1) / 2.0) * step * 0.12;
                svg.line(30, at, 330, at, outline);
            }
        }
        svg.words(width / 2, 214, plan.separationLabel);
        svg.words(width / 2, 230, plan.isCoil() ? plan.pitchLabel + " / " + plan.coilLabel : "");
    }

    void operator()(const CircuitPlan& plan) const {
        constexpr double shore = 120, level = 70;
        svg.line(0, level, shore, level, outline);
        svg.rectangle(shore, level, width - shore, 110, water);
        svg.line(30, level - 20, shore + 60, level + 50, outline);
        for (int loop = 0; loop < 5; ++loop)
            svg.circle(shore + 80 + loop * 32, level + 60, 13, outline);
        svg.words(60, level - 26, headers(plan.primary));
        if (plan.branch.count > 0) svg.words(shore + 120, level + 20, headers(plan.branch));
        svg.words(width / 2, 214, fmt::format("{} / {}", plan.loops[cooling], plan.loops[heating]));
        svg.words(width / 2, 230, plan.loopFlow[cooling]);
    }

    static std::string headers(const CircuitHeaders& kind) {
        return kind.flow[cooling].empty() ? std::to_string(kind.count)
                                          : std::to_string(kind.count) + " x " + kind.flow[cooling];
    }

    void operator()(const DayDrawing& day) const {
        const double largest =
            std::max({day.chart.largest[cooling], day.chart.largest[heating], 1e-9});
        constexpr double base = 190, tallest = 160, left = 40, group = 78, bar = 26;
        svg.line(left, base, left + 4 * group, base, thin);
        for (std::size_t block = 0; block < timeBlocks; ++block) {
            const double x = left + group * static_cast<double>(block) + 12;
            for (const Mode mode : modes) {
                const double tall = std::max(0.0, day.chart.loads[mode][block]) / largest * tallest;
                svg.rectangle(x + bar * static_cast<double>(mode), base - tall, bar - 2, tall,
                              mode == cooling ? "fill=\"var(--cool)\"" : "fill=\"var(--heat)\"");
            }
            svg.words(x + bar, base + 14, day.blocks[block]);
        }
        svg.words(left, 20, fmt::format("{:.1f} {}", largest, day.unit), "start");
        legend(day);
    }

    void legend(const DayDrawing& day) const {
        svg.rectangle(90, 218, 10, 10, "fill=\"var(--cool)\"");
        svg.words(106, 227, day.modeWords[cooling], "start");
        svg.rectangle(210, 218, 10, 10, "fill=\"var(--heat)\"");
        svg.words(226, 227, day.modeWords[heating], "start");
    }
};

}  // namespace

std::string svgOf(const ReportDrawing& drawing) {
    Svg svg;
    std::visit(Draw{svg}, drawing.what);
    return fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 {} {}\" role=\"img\" "
        "aria-label=\"{}\">{}</svg>",
        width, height, htmlText(drawing.title), svg.body);
}

}  // namespace varnholt
