// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/text_label.h"

#include <QPainter>
#include <QStyle>
#include <cmath>
#include <utility>

#include "desktop/widgets/look.h"

namespace varnholt {

TextLabel::TextLabel(QWidget* parent) : TextLabel(QString(), parent) {}

TextLabel::TextLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    shaped_.setTextFormat(Qt::PlainText);
}

bool TextLabel::isOneLine() const {
    return !wordWrap() && textFormat() == Qt::PlainText && !text().isEmpty() &&
           !text().contains(u'\n') && !marksKey();
}

/// A label of a field that it gives the focus to may mark the key for that.
bool TextLabel::marksKey() const { return buddy() != nullptr && text().contains(u'&'); }

QString TextLabel::shownText() const { return sentence_ ? thinThousands(text()) : text(); }

const QStaticText& TextLabel::shaped() const {
    const QString shown = shownText();
    if (shaped_.text() == shown && font_ == font()) return shaped_;
    shaped_.setText(shown);
    font_ = font();
    shaped_.prepare(QTransform(), font_);
    return shaped_;
}

/// Figures whose signs the face lacks are shaped by the toolkit.
bool TextLabel::showsFigures() const {
    if (!figures_) return false;
    if (!figureText_.isOf(text(), font())) figureText_ = FigureText(text(), font());
    return figureText_.isWhole();
}

QSizeF TextLabel::sizeOfLine() const {
    return showsFigures() ? figureText_.size() : shaped().size();
}

QSize TextLabel::sizeHint() const {
    if (!isOneLine()) return QLabel::sizeHint();
    ensurePolished();
    const QMargins edges = contentsMargins();
    const QSizeF size = sizeOfLine();
    return QSize(static_cast<int>(std::ceil(size.width())),
                 static_cast<int>(std::ceil(size.height())))
        .grownBy(edges);
}

QSize TextLabel::minimumSizeHint() const {
    return isOneLine() ? sizeHint() : QLabel::minimumSizeHint();
}

void TextLabel::setTone(Tone tone) {
    if (tone_ == tone) return;
    tone_ = tone;
    update();
}

void TextLabel::setDimmed(bool dimmed) {
    if (std::exchange(dimmed_, dimmed) != dimmed) update();
}

void TextLabel::setFigures() {
    figures_ = true;
    updateGeometry();
    update();
}

/// A thin space is narrower than the comma in its place, so that a sentence never takes more lines
/// than the toolkit counts by its text.
void TextLabel::setSentence() {
    sentence_ = true;
    updateGeometry();
    update();
}

QColor TextLabel::colour() const {
    const Look& look = lookOf(palette());
    if (dimmed_) return look.muted;
    switch (tone_) {
        case Tone::muted:
            return look.muted;
        case Tone::cooling:
            return look.cooling;
        case Tone::heating:
            return look.heating;
        default:
            return palette().color(foregroundRole());
    }
}

QRectF TextLabel::placeOfLine() const {
    const QRectF place = contentsRect();
    const QSizeF size = sizeOfLine();
    // Figures stand below one another by their last digits in every language.
    const bool asAligned = figures_ && (alignment() & Qt::AlignRight) != 0;
    const Qt::Alignment side =
        asAligned ? alignment() : QStyle::visualAlignment(layoutDirection(), alignment());
    const double across = place.width() - size.width(), down = place.height() - size.height();
    QPointF corner = place.topLeft();
    if ((side & Qt::AlignRight) != 0) corner.rx() += across;
    if ((side & Qt::AlignHCenter) != 0) corner.rx() += across / 2;
    if ((side & Qt::AlignBottom) != 0) corner.ry() += down;
    if ((side & Qt::AlignVCenter) != 0) corner.ry() += down / 2;
    return {corner, size};
}

/// Where the room is too short, a text ends in dots; figures are never shortened.
void TextLabel::drawLine(QPainter& painter) const {
    const QRect room = contentsRect();
    if (!showsFigures() && shaped().size().width() > room.width() + 1) {
        const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
        painter.drawText(room, static_cast<int>(side),
                         fontMetrics().elidedText(shownText(), Qt::ElideRight, room.width()));
        return;
    }
    const QPointF corner = placeOfLine().topLeft();
    if (showsFigures())
        figureText_.draw(painter, corner);
    else
        painter.drawStaticText(corner, shaped());
}

void TextLabel::paintEvent(QPaintEvent* event) {
    if (!pixmap(Qt::ReturnByValue).isNull()) return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(colour());
    if (isOneLine()) return drawLine(painter);
    const int wraps = wordWrap() ? Qt::TextWordWrap : 0;
    const int keys = marksKey() ? Qt::TextShowMnemonic : 0;
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.drawText(contentsRect(), static_cast<int>(side) | wraps | keys, shownText());
}

void mute(QWidget* label) {
    if (auto* text = dynamic_cast<TextLabel*>(label)) text->setMuted();
}

void asFigures(QWidget* label) {
    if (auto* text = dynamic_cast<TextLabel*>(label)) text->setFigures();
}

void asSentence(QWidget* label) {
    if (auto* text = dynamic_cast<TextLabel*>(label)) text->setSentence();
}

}  // namespace varnholt
