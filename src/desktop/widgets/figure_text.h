// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPointF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace varnholt {

/// The text with the thousands of each of its numbers parted by thin spaces, as figures are shown.
/// What holds the text, a script, a file, the clipboard, has none of them.
QString groupedThousands(const QString& held);

/// The text with thin spaces in place of the commas that part thousands in it, as sentences are
/// shown: a number that has none, the year in a sentence, stays as it is.
QString thinThousands(QString text);

/// A line of figures in the face of the words around it: every digit stands in the same width,
/// whatever the face does, so that columns align.
class FigureText {
 public:
    FigureText() = default;
    /// @param text  as it is held, without groups
    FigureText(const QString& text, const QFont& font);

    bool isOf(const QString& text, const QFont& font) const {
        return text == text_ && font == font_;
    }
    /// The face has all its signs; else the toolkit has to find them in others.
    bool isWhole() const { return whole_; }
    QSizeF size() const { return size_; }
    /// Draws it in the painter's pen.
    void draw(QPainter& painter, const QPointF& topLeft) const;

 private:
    void shape(const QString& shown);

    QString text_;
    QFont font_;
    QSizeF size_;
    double ascent_ = 0;
    bool whole_ = false;
    QGlyphRun glyphs_;
};

}  // namespace varnholt
