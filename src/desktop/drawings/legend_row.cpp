// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/legend_row.h"

#include <QPolygonF>
#include <utility>

#include "desktop/drawings/canvas.h"

namespace varnholt {
namespace {

constexpr double signWidth = 22;
constexpr double entryGap = 16;

void drawSign(QPainter& painter, const Look& look, LegendRow::Sign sign, const QPointF& middle) {
    painter.setBrush(look.surface);
    switch (sign) {
        case LegendRow::Sign::coolingLine:
        case LegendRow::Sign::heatingLine: {
            const bool solid = sign == LegendRow::Sign::coolingLine;
            painter.setPen(QPen(solid ? look.cooling : look.heating, 2,
                                solid ? Qt::SolidLine : Qt::DashLine, Qt::FlatCap));
            painter.drawLine(middle - QPointF(8, 0), middle + QPointF(8, 0));
            break;
        }
        case LegendRow::Sign::neutralLine:
            painter.setPen(QPen(look.muted, 2, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(middle - QPointF(8, 0), middle + QPointF(8, 0));
            break;
        case LegendRow::Sign::measured:
            painter.setPen(QPen(look.muted, 1.4));
            painter.drawEllipse(middle - QPointF(5, 0), 3.2, 3.2);
            painter.drawRect(QRectF(middle.x() + 1.5, middle.y() - 3, 6, 6));
            break;
        case LegendRow::Sign::second:
            painter.setPen(QPen(look.muted, 1.4));
            painter.drawPolygon(
                QPolygonF{middle - QPointF(0, 4), middle + QPointF(4, 4), middle + QPointF(-4, 4)});
            break;
        case LegendRow::Sign::staleLine:
            painter.setPen(QPen(look.muted, 2, Qt::DotLine, Qt::FlatCap));
            painter.drawLine(middle - QPointF(8, 0), middle + QPointF(8, 0));
            break;
        case LegendRow::Sign::design:
            painter.setPen(Qt::NoPen);
            painter.setBrush(look.muted);
            painter.drawPolygon(QPolygonF{middle - QPointF(0, 5), middle + QPointF(5, 0),
                                          middle + QPointF(0, 5), middle - QPointF(5, 0)});
            break;
    }
}

}  // namespace

LegendRow::LegendRow(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LegendRow::setEntries(std::vector<Entry> entries) {
    entries_ = std::move(entries);
    updateGeometry();
    update();
}

QSize LegendRow::sizeHint() const {
    double width = 0;
    for (const Entry& entry : entries_)
        width += signWidth + fontMetrics().horizontalAdvance(entry.text) + entryGap;
    return {static_cast<int>(width), fontMetrics().height() + 4};
}

void LegendRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Canvas canvas = canvasFor(painter, rect(), palette(), font());
    double x = 0;
    for (const Entry& entry : entries_) {
        drawSign(painter, canvas.look, entry.sign, {x + 9, height() / 2.0});
        painter.setPen(canvas.look.ink);
        painter.drawText(QRectF(x + signWidth, 0, width(), height()),
                         Qt::AlignLeft | Qt::AlignVCenter, entry.text);
        x += signWidth + fontMetrics().horizontalAdvance(entry.text) + entryGap;
    }
}

}  // namespace varnholt
