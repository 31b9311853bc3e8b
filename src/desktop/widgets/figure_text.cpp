// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/figure_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRawFont>
#include <QRegularExpression>
#include <algorithm>

namespace varnholt {
namespace {

constexpr QChar thinSpace(0x202F);  // at which no line breaks
constexpr double thinSpaceInEms = 0.17;

bool isDigit(QChar sign) { return sign >= u'0' && sign <= u'9'; }

/// Widest of the digits.
double digitWidth(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    return widest;
}

/// Where the digits that begin at a place end.
qsizetype endOfDigits(const QString& text, qsizetype from) {
    while (from < text.size() && isDigit(text[from])) ++from;
    return from;
}

/// A number whose thousands are parted by commas, and no list of numbers.
const QRegularExpression& numberWithCommas() {
    static const QRegularExpression number(
        QStringLiteral("(?<![0-9.,])[0-9]{1,3}(,[0-9]{3})+(?![0-9]|,[0-9])"));
    return number;
}

}  // namespace

QString thinThousands(QString text) {
    if (!text.contains(u',')) return text;
    QRegularExpressionMatchIterator numbers = numberWithCommas().globalMatch(text);
    while (numbers.hasNext()) {
        const QRegularExpressionMatch number = numbers.next();
        for (qsizetype at = number.capturedStart(); at < number.capturedEnd(); ++at)
            if (text[at] == u',') text[at] = thinSpace;
    }
    return text;
}

QString groupedThousands(const QString& held) {
    constexpr qsizetype group = 3;
    const QString text = thinThousands(held);
    QString grouped;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = endOfDigits(text, at);
        const bool isFraction = at > 0 && text[at - 1] == u'.';
        for (qsizetype digit = at; digit < end; ++digit) {
            if (digit > at && !isFraction && (end - digit) % group == 0) grouped += thinSpace;
            grouped += text[digit];
        }
        if (end < text.size()) grouped += text[end];
        at = end + 1;
    }
    return grouped;
}

FigureText::FigureText(const QString& text, const QFont& font) : text_(text), font_(font) {
    shape(groupedThousands(text));
}

void FigureText::shape(const QString& shown) {
    const QFontMetricsF metrics(font_);
    const double cell = digitWidth(metrics);
    const double thin = thinSpaceInEms * metrics.height();
    const QRawFont face = QRawFont::fromFont(font_);
    const QList<quint32> all = face.glyphIndexesForString(shown);
    whole_ = all.size() == shown.size();
    if (!whole_) return;
    QList<quint32> indexes;
    QList<QPointF> places;
    double x = 0;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (shown[i] == thinSpace) {
            x += thin;
            continue;
        }
        whole_ = whole_ && all[i] != 0;
        const double own = metrics.horizontalAdvance(shown[i]);
        const double room = isDigit(shown[i]) ? cell : own;
        indexes << all[i];
        places << QPointF(x + (room - own) / 2, 0);
        x += room;
    }
    glyphs_.setRawFont(face);
    glyphs_.setGlyphIndexes(indexes);
    glyphs_.setPositions(places);
    ascent_ = metrics.ascent();
    size_ = QSizeF(x, metrics.height());
}

void FigureText::draw(QPainter& painter, const QPointF& topLeft) const {
    painter.drawGlyphRun(topLeft + QPointF(0, ascent_), glyphs_);
}

}  // namespace varnholt
