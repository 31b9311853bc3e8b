// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/plot.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

constexpr double signSize = 9;

void drawSign(const Canvas& canvas, const LegendSign& sign, double x, double middle) {
    QPainter& painter = canvas.painter;
    using Kind = LegendSign::Kind;
    if (sign.kind == Kind::area) {
        painter.setPen(QPen(sign.colour, thinPen));
        painter.setBrush(sign.wash);
        painter.drawRect(
            QRectF(canvas.crisp(x), canvas.crisp(middle - signSize / 2), signSize, signSize));
    } else if (sign.kind == Kind::pair) {
        const QRectF first(x, middle - signSize / 2, signSize, signSize);
        painter.fillRect(first, sign.colour);
        painter.fillRect(first.translated(signSize, 0), sign.wash);
    } else if (sign.kind == Kind::mark) {
        painter.fillRect(QRectF(x, middle - strongPen, signSize, 2 * strongPen), sign.colour);
    } else {
        const bool dashes = sign.kind == Kind::dashes;
        painter.setPen(QPen(sign.colour, sign.kind == Kind::line ? strongPen : thinPen,
                            dashes ? Qt::DashLine : Qt::SolidLine));
        painter.drawLine(QPointF(x, middle), QPointF(x + 2 * signSize, middle));
    }
}

double widthOf(const LegendSign& sign) {
    const bool line = sign.kind != LegendSign::Kind::area && sign.kind != LegendSign::Kind::mark;
    return line ? 2 * signSize : signSize;
}

QString figure(double value, double step) {
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(step) - 1e-9)));
    return QString::number(value, 'f', decimals);
}

}  // namespace

PlotScale scaleAround(double least, double most, int figures) {
    if (!(most > least)) most = least + 1;
    const double rough = (most - least) / figures;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    double step = 10 * power;
    for (const double round : {5.0, 2.0, 1.0})
        if (round * power >= rough) step = round * power;
    return {std::floor(least / step) * step, std::ceil(most / step) * step, step};
}

double Plot::heightOf(double value) const {
    const double share = (value - scale.least) / (scale.most - scale.least);
    return area.bottom() - std::clamp(share, 0.0, 1.0) * area.height();
}

double drawSigns(const Canvas& canvas, const std::vector<LegendSign>& signs) {
    const double height = canvas.textHeight() + gridStep / 2.0;
    double x = canvas.area.left();
    double top = canvas.area.top();
    const QFontMetricsF metrics(canvas.words);
    for (const LegendSign& sign : signs) {
        const QString shown = canvas.shown(sign.word);
        const double word = metrics.horizontalAdvance(shown);
        if (x > canvas.area.left() && x + widthOf(sign) + 6 + word > canvas.area.right()) {
            x = canvas.area.left();
            top += height;
        }
        drawSign(canvas, sign, x, top + height / 2);
        x += widthOf(sign) + 6;
        canvas.painter.setFont(canvas.words);
        canvas.painter.setPen(canvas.look.ink);
        canvas.painter.drawText(QRectF(x, top, word + 2, height), Qt::AlignLeft | Qt::AlignVCenter,
                                shown);
        x += word + 2 * gridStep;
    }
    return top - canvas.area.top() + height + gridStep;
}

Plot drawPlot(const Canvas& canvas, const PlotScale& scale, double head, const QString& unit) {
    const int figures = static_cast<int>(std::round((scale.most - scale.least) / scale.step));
    const auto told = [&](int i) {
        const QString number = figure(scale.least + i * scale.step, scale.step);
        return i < figures || unit.isEmpty() ? number : number + u' ' + unit;
    };
    double widest = 0;
    for (int i = 0; i <= figures; ++i) widest = std::max(widest, canvas.textWidth(told(i)));
    const double foot = canvas.textHeight() + gridStep / 2.0;
    const Plot plot{canvas.area.adjusted(widest + gridStep, head, -gridStep / 2.0, -foot), scale};
    canvas.painter.setFont(canvas.figures);
    for (int i = 0; i <= figures; ++i) {
        const double value = scale.least + i * scale.step;
        const double y = canvas.crisp(plot.heightOf(value));
        canvas.painter.setPen(QPen(canvas.look.hairline, 1));
        canvas.painter.drawLine(QPointF(plot.area.left(), y), QPointF(plot.area.right(), y));
        canvas.painter.setPen(canvas.look.muted);
        canvas.painter.drawText(
            QRectF(canvas.area.left(), y - canvas.textHeight() / 2, widest, canvas.textHeight()),
            Qt::AlignRight | Qt::AlignVCenter, canvas.shown(told(i)));
    }
    return plot;
}

void drawBelow(const Canvas& canvas, const Plot& plot, double x, const QString& word, bool strong) {
    const double width = canvas.textWidth(word) + 2;
    const double left = std::clamp(x - width / 2, canvas.area.left(),
                                   std::max(canvas.area.left(), canvas.area.right() - width));
    canvas.painter.setFont(canvas.figures);
    canvas.painter.setPen(strong ? canvas.look.ink : canvas.look.muted);
    canvas.painter.drawText(
        QRectF(left, plot.area.bottom() + gridStep / 2.0, width, canvas.textHeight()),
        Qt::AlignCenter, canvas.shown(word));
}

void drawUpright(const Canvas& canvas, const Plot& plot, double x, const QColor& colour,
                 Qt::PenStyle style) {
    canvas.painter.setPen(QPen(colour, thinPen, style));
    canvas.painter.drawLine(QPointF(canvas.crisp(x), plot.area.top()),
                            QPointF(canvas.crisp(x), plot.area.bottom()));
}

void drawEmpty(const Canvas& canvas, const QString& sentence) {
    canvas.painter.setFont(canvas.words);
    canvas.painter.setPen(canvas.look.muted);
    canvas.painter.drawText(canvas.area, Qt::AlignCenter | Qt::TextWordWrap, sentence);
}

QString chartWord(Mode mode, const Texts& texts) {
    return qt(texts.text(mode == cooling ? Text::chartCooling : Text::chartHeating));
}

const QColor& colourOf(const Look& look, Mode mode) {
    return mode == cooling ? look.cooling : look.heating;
}
const QColor& washOf(const Look& look, Mode mode) {
    return mode == cooling ? look.coolingWash : look.heatingWash;
}

}  // namespace varnholt
