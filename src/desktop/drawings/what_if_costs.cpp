// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of What If that show money.
#include <algorithm>
#include <optional>
#include <vector>

#include "desktop/drawings/what_if_paintings.h"
#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

using Kind = LegendSign::Kind;

constexpr double markRadius = 4.8;

double greatestOf(const TowerPicture& picture) {
    double most = 0;
    for (const auto* costs : {&picture.first, &picture.life})
        for (const double cost : *costs) most = std::max(most, cost);
    return most;
}

double acrossTower(const Plot& plot, std::size_t percent) {
    constexpr double last = 99;
    return plot.area.left() + plot.area.width() * static_cast<double>(percent) / last;
}

/// Columns from one height to another, a percent each.
void drawColumns(const Canvas& canvas, const Plot& plot, const TowerPicture& picture, bool tower) {
    const double width = plot.area.width() / static_cast<double>(picture.first.size());
    const QColor colour =
        between(canvas.look.surface, tower ? canvas.look.cooling : canvas.look.accent, 0.4);
    for (std::size_t p = 0; p < picture.first.size(); ++p) {
        if (!(picture.first[p] > 0)) continue;
        const double bores = picture.first[p] - picture.tower[p];
        const double top = plot.heightOf(tower ? picture.first[p] : bores);
        const double bottom = tower ? plot.heightOf(bores) : plot.area.bottom();
        const double x = acrossTower(plot, p);
        // Columns overlap a little, so that no seam shows between them.
        canvas.painter.fillRect(
            QRectF(QPointF(x - width / 2, top), QPointF(x + width, bottom)).intersected(plot.area),
            colour);
    }
}

void drawLife(const Canvas& canvas, const Plot& plot, const TowerPicture& picture) {
    canvas.painter.setPen(QPen(canvas.look.ink, strongPen));
    std::optional<QPointF> before;
    for (std::size_t p = 0; p < picture.life.size(); ++p) {
        std::optional<QPointF> at;
        if (picture.life[p] > 0) at = QPointF(acrossTower(plot, p), plot.heightOf(picture.life[p]));
        if (before && at) canvas.painter.drawLine(*before, *at);
        before = at;
    }
}

}  // namespace

void paintCost(const Canvas& canvas, const CostPicture& picture, const Texts&) {
    if (!picture.empty.empty() || picture.parts.empty())
        return drawEmpty(canvas, qt(picture.empty));
    double sum = 0;
    std::vector<LegendSign> signs;
    for (const CostPicture::Part& part : picture.parts) {
        const double share =
            0.75 * static_cast<double>(signs.size()) / static_cast<double>(picture.parts.size());
        const QColor colour = between(canvas.look.accent, canvas.look.surface, share);
        signs.push_back({Kind::area, canvas.look.accent, colour, qt(part.name)});
        sum += part.value;
    }
    const double head = drawSigns(canvas, signs);
    const double height = std::min(canvas.area.height() - head, 5.0 * gridStep);
    double x = canvas.area.left();
    for (std::size_t i = 0; i < signs.size(); ++i) {
        const double width = canvas.area.width() * picture.parts[i].value / sum;
        canvas.painter.fillRect(
            QRectF(x, canvas.area.top() + head, std::max(1.0, width - 1), height), signs[i].wash);
        x += width;
    }
}

void paintTower(const Canvas& canvas, const TowerPicture& picture, const Texts& texts) {
    if (!picture.empty.empty() || picture.first.empty())
        return drawEmpty(canvas, qt(picture.empty));
    const Look& look = canvas.look;
    const double head = drawSigns(
        canvas, {{Kind::area, look.accent, between(look.surface, look.accent, 0.4),
                  qt(texts.text(Text::whatIfBoresWord))},
                 {Kind::area, look.cooling, between(look.surface, look.cooling, 0.4),
                  qt(texts.text(Text::whatIfTowerWord))},
                 {Kind::line, look.ink, {}, qt(texts.text(Text::whatIfJudgeLife))},
                 {Kind::dashes, look.heating, {}, qt(texts.text(Text::whatIfHeatingGoverns))}});
    const Plot plot = drawPlot(canvas, scaleAround(0, greatestOf(picture), usualFigures), head);
    for (const std::size_t percent : {0, 20, 40, 60, 80})
        drawBelow(canvas, plot, acrossTower(plot, percent),
                  QString::number(percent) + QStringLiteral(" %"));
    drawColumns(canvas, plot, picture, false);
    drawColumns(canvas, plot, picture, true);
    drawLife(canvas, plot, picture);
    if (picture.heatingGoverns)
        drawUpright(canvas, plot, acrossTower(plot, *picture.heatingGoverns), look.heating,
                    Qt::DashLine);
    if (!picture.best) return;
    const auto& costs = picture.judgesLife ? picture.life : picture.first;
    const QPointF best(acrossTower(plot, *picture.best), plot.heightOf(costs[*picture.best]));
    canvas.painter.setPen(QPen(look.surface, 1));
    canvas.painter.setBrush(look.ink);
    canvas.painter.drawEllipse(best, markRadius, markRadius);
    canvas.label(best - QPointF(0, canvas.textHeight() + gridStep / 2.0),
                 QString::number(*picture.best) + QStringLiteral(" %, ") + qt(picture.bestCost),
                 look.ink);
}

}  // namespace varnholt
