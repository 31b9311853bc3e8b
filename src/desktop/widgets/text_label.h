// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStaticText>

#include "basis/mode.h"
#include "desktop/widgets/figure_text.h"

namespace varnholt {

/// A label of plain text. A single line is shaped once and serves the layouts and every painting:
/// most of a window is labels, and shaping is most of what a label costs.
class TextLabel : public QLabel {
 public:
    explicit TextLabel(QWidget* parent = nullptr);
    explicit TextLabel(const QString& text, QWidget* parent = nullptr);

    /// Shows it as something beside the point: a unit, a hint.
    void setMuted() { setTone(Tone::muted); }
    /// Shows it in a mode's colour.
    void setMode(Mode mode) { setTone(mode == cooling ? Tone::cooling : Tone::heating); }
    /// Shows it in the colour of all texts again.
    void setPlain() { setTone(Tone::plain); }
    /// Shows it as something that holds no longer, whatever its colour is otherwise.
    void setDimmed(bool dimmed);
    bool isDimmed() const { return dimmed_; }
    /// Shows the figures in it grouped and in columns; its text stays as it is.
    void setFigures();
    /// Shows the thousands in a sentence parted as those of figures are; its text stays as it is.
    void setSentence();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    enum class Tone { plain, muted, cooling, heating };

    void setTone(Tone tone);
    QColor colour() const;
    bool isOneLine() const;
    bool marksKey() const;
    bool showsFigures() const;
    QString shownText() const;
    const QStaticText& shaped() const;
    QSizeF sizeOfLine() const;
    QRectF placeOfLine() const;
    void drawLine(QPainter& painter) const;

    Tone tone_ = Tone::plain;
    bool dimmed_ = false;
    bool figures_ = false;
    bool sentence_ = false;
    mutable QStaticText shaped_;
    mutable QFont font_;
    mutable FigureText figureText_;
};

/// Mutes a label, if it is one of these.
void mute(QWidget* label);
/// Makes it one of figures, if it is one of these.
void asFigures(QWidget* label);
/// Makes it a sentence, if it is one of these.
void asSentence(QWidget* label);

}  // namespace varnholt
