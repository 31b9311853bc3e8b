// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/length_strip.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "design/picture_sentences.h"
#include "desktop/drawings/plot.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr double modeSign = 9;
constexpr double signRoom = modeSign + 6;
constexpr double stateSign = 14;
constexpr double betweenModes = 3 * gridStep;  // from one mode to the next
constexpr double smallType = 0.9;              // of the words over the figures

QString stateText(LengthSummary::State state, const Texts& texts) {
    return qt(stateWords(state, texts));
}

QFont smaller(QFont font) {
    font.setPointSizeF(font.pointSizeF() * smallType);
    return font;
}

/// Cooling is solid and heating framed, as in every picture.
void drawSign(const Canvas& canvas, Mode mode, const QPointF& corner) {
    const Look& look = canvas.look;
    canvas.painter.setPen(QPen(mode == cooling ? look.cooling : look.heating, 1.4));
    canvas.painter.setBrush(mode == cooling ? look.cooling : look.heatingWash);
    canvas.painter.drawRect(
        QRectF(canvas.crisp(corner.x()), canvas.crisp(corner.y()), modeSign, modeSign));
}

}  // namespace

LengthStrip::LengthStrip(std::function<LengthSummary()> source, const Texts& texts)
    : source_(std::move(source)), texts_(texts) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void LengthStrip::refresh() {
    LengthSummary now = source_();
    // The picture has the parts of the lengths; here they only cost.
    now.parts.clear();
    if (now == lengths_ && !accessibleName().isEmpty()) return;
    lengths_ = std::move(now);
    setAccessibleName(description());
    updateGeometry();
    update();
}

QString LengthStrip::description() const { return qt(stripSentence(lengths_, texts_)); }

/// Where it would say the same as the length itself it is left out.
bool LengthStrip::hasEach() const { return lengths_.found() && lengths_.each != lengths_.length; }

QFont LengthStrip::strong() const {
    QFont font = this->font();
    font.setBold(true);
    return font;
}

LengthStrip::Figures LengthStrip::figuresOf(Mode mode) const {
    const QString none = QStringLiteral("\u2013");
    const bool governs = lengths_.found() && mode == lengths_.governing;
    Figures figures;
    figures.length = FigureText(lengths_.found() ? qt(lengths_.length[mode]) : none,
                                governs ? strong() : font());
    if (!lengths_.found()) return figures;
    figures.each = FigureText(qt(lengths_.each[mode]), font());
    figures.eachWord = qt(lengths_.eachWord);
    return figures;
}

double LengthStrip::widthOf(Mode mode, bool withEach) const {
    const Figures figures = figuresOf(mode);
    const QFontMetricsF words(smaller(font()));
    double width = figures.length.size().width();
    if (withEach && hasEach())
        width += 2 * gridStep + figures.each.size().width() + gridStep / 2.0 +
                 QFontMetricsF(font()).horizontalAdvance(figures.eachWord);
    return std::max(width, signRoom + words.horizontalAdvance(chartWord(mode, texts_)));
}

double LengthStrip::widthOfState() const {
    return stateSign + gridStep +
           QFontMetricsF(font()).horizontalAdvance(stateText(lengths_.state, texts_));
}

QSize LengthStrip::sizeWith(bool each) const {
    const double width =
        widthOf(cooling, each) + widthOf(heating, each) + widthOfState() + 2 * betweenModes + 2;
    const double height =
        QFontMetricsF(smaller(font())).height() + QFontMetricsF(strong()).height() + 1;
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

QSize LengthStrip::sizeHint() const { return sizeWith(true); }

QSize LengthStrip::minimumSizeHint() const { return sizeWith(false); }

void LengthStrip::showEvent(QShowEvent* event) {
    refresh();
    Drawing::showEvent(event);
}

void LengthStrip::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) updateGeometry();
    Drawing::changeEvent(event);
}

double LengthStrip::drawMode(const Canvas& canvas, Mode mode, double x, bool withEach) const {
    QPainter& painter = canvas.painter;
    const bool governs = lengths_.found() && mode == lengths_.governing;
    const QFont words = smaller(font());
    const double wordHeight = QFontMetricsF(words).height();
    const double top = canvas.area.top();
    drawSign(canvas, mode, {x, top + (wordHeight - modeSign) / 2});
    painter.setFont(words);
    painter.setPen(mode == cooling ? canvas.look.cooling : canvas.look.heating);
    painter.drawText(QRectF(x + signRoom, top, canvas.area.width(), wordHeight),
                     Qt::AlignLeft | Qt::AlignVCenter, chartWord(mode, texts_));
    const Figures figures = figuresOf(mode);
    const double line = top + wordHeight;
    const bool stale = lengths_.state == LengthSummary::State::stale;
    painter.setPen(governs && !stale ? canvas.look.ink : canvas.look.muted);
    figures.length.draw(painter, {x, line});
    if (withEach && hasEach()) {
        painter.setPen(canvas.look.muted);
        const double behind = x + figures.length.size().width() + 2 * gridStep;
        figures.each.draw(painter, {behind, line});
        painter.setFont(font());
        painter.drawText(QRectF(behind + figures.each.size().width() + gridStep / 2.0, line,
                                canvas.area.width(), figures.length.size().height()),
                         Qt::AlignLeft | Qt::AlignTop, figures.eachWord);
    }
    return x + widthOf(mode, withEach) + betweenModes;
}

void LengthStrip::drawState(const Canvas& canvas, double x) const {
    QPainter& painter = canvas.painter;
    const bool stale = lengths_.state == LengthSummary::State::stale;
    const QString text = stateText(lengths_.state, texts_);
    const double middle = canvas.area.center().y();
    const double height = QFontMetricsF(font()).height();
    double at = x;
    if (stale) {
        const QRectF pill(x - gridStep / 2.0, middle - height / 2 - 3, widthOfState() + gridStep,
                          height + 6);
        painter.setPen(Qt::NoPen);
        painter.setBrush(canvas.look.stale);
        painter.drawRoundedRect(pill, 4, 4);
        houseIcon(QStringLiteral("stale"))
            .paint(&painter, QRectF(x, middle - stateSign / 2, stateSign, stateSign).toRect());
        at += stateSign + gridStep / 2.0;
    }
    painter.setFont(font());
    painter.setPen(stale ? canvas.look.onStale : canvas.look.muted);
    painter.drawText(QRectF(at, middle - height / 2, canvas.area.width(), height),
                     Qt::AlignLeft | Qt::AlignVCenter, text);
}

void LengthStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Canvas canvas = canvasFor(painter, rect(), palette(), font());
    const bool withEach = width() >= sizeWith(true).width();
    double x = 0;
    for (const Mode mode : modes) x = drawMode(canvas, mode, x, withEach);
    drawState(canvas, x);
}

}  // namespace varnholt
