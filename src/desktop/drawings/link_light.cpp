// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/link_light.h"

#include <QRadialGradient>
#include <algorithm>

namespace varnholt {
namespace {

constexpr double designedSize = 24;

void drawSocket(QPainter& painter, const Look& look) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look.muted, 1.4, Qt::DotLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(0, 0), 8, 8);
    painter.setPen(QPen(look.muted, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(-3, 3), QPointF(3, -3));
}

void drawGlass(QPainter& painter, const Look& look, bool lit) {
    if (!lit) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(look.line);
        painter.drawEllipse(QPointF(0, 0), 8.5, 8.5);
        return;
    }
    QRadialGradient glow(QPointF(0, 0), designedSize / 2);
    QColor light = look.on;
    light.setAlphaF(look.dark ? 0.55F : 0.40F);
    glow.setColorAt(0.6, light);
    light.setAlpha(0);
    glow.setColorAt(1, light);
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(QPointF(0, 0), designedSize / 2, designedSize / 2);
    painter.setBrush(look.on);
    painter.drawEllipse(QPointF(0, 0), 8.5, 8.5);
}

/// Four rooms for the zones of a building, one for the building as a block.
void drawPartner(QPainter& painter, const Look& look, LinkPartner partner) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.dark ? look.window : look.field);
    if (partner == LinkPartner::block) {
        painter.drawRoundedRect(QRectF(-3.6, -3.6, 7.2, 7.2), 0.8, 0.8);
        return;
    }
    for (const double x : {-3.9, 0.5})
        for (const double y : {-3.9, 0.5})
            painter.drawRoundedRect(QRectF(x, y, 3.4, 3.4), 0.6, 0.6);
}

}  // namespace

void paintLinkLight(const Canvas& canvas, LinkPartner partner, bool lit) {
    QPainter& painter = canvas.painter;
    const double size = std::min(canvas.area.width(), canvas.area.height());
    painter.save();
    painter.translate(canvas.area.center());
    painter.scale(size / designedSize, size / designedSize);
    if (partner == LinkPartner::none) {
        drawSocket(painter, canvas.look);
    } else {
        drawGlass(painter, canvas.look, lit);
        drawPartner(painter, canvas.look, partner);
    }
    painter.restore();
}

}  // namespace varnholt
