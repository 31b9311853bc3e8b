// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/text_label.h"

#include <QPainter>
#include <QStyle>
#include <cmath>

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

const QStaticText& TextLabel::shaped() const {
    if (shaped_.text() == text() && font_ == font()) return shaped_;
    shaped_.setText(text());
    font_ = font();
    shaped_.prepare(QTransform(), font_);
    return shaped_;
}

QSize TextLabel::sizeHint() const {
    if (!isOneLine()) return QLabel::sizeHint();
    ensurePolished();
    const QMargins edges = contentsMargins();
    const QSizeF size = shaped().size();
    return QSize(static_cast<int>(std::ceil(size.width())),
                 static_cast<int>(std::ceil(size.height())))
        .grownBy(edges);
}

QSize TextLabel::minimumSizeHint() const {
    return isOneLine() ? sizeHint() : QLabel::minimumSizeHint();
}

void TextLabel::setMuted() {
    muted_ = true;
    update();
}

QRectF TextLabel::placeOfLine() const {
    const QRectF place = contentsRect();
    const QSizeF size = shaped().size();
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    const double across = place.width() - size.width(), down = place.height() - size.height();
    QPointF corner = place.topLeft();
    if ((side & Qt::AlignRight) != 0) corner.rx() += across;
    if ((side & Qt::AlignHCenter) != 0) corner.rx() += across / 2;
    if ((side & Qt::AlignBottom) != 0) corner.ry() += down;
    if ((side & Qt::AlignVCenter) != 0) corner.ry() += down / 2;
    return {corner, size};
}

void TextLabel::paintEvent(QPaintEvent* event) {
    if (!pixmap(Qt::ReturnByValue).isNull()) return QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(muted_ ? lookOf(palette()).muted : palette().color(foregroundRole()));
    if (isOneLine()) return painter.drawStaticText(placeOfLine().topLeft(), shaped());
    const int wraps = wordWrap() ? Qt::TextWordWrap : 0;
    const int keys = marksKey() ? Qt::TextShowMnemonic : 0;
    const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.drawText(contentsRect(), static_cast<int>(side) | wraps | keys, text());
}

void mute(QWidget* label) {
    if (auto* text = dynamic_cast<TextLabel*>(label)) text->setMuted();
}

}  // namespace varnholt
