// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStaticText>

namespace varnholt {

/// A label of plain text. A single line is shaped once and serves the layouts and every painting:
/// most of a window is labels, and shaping is most of what a label costs.
class TextLabel : public QLabel {
 public:
    explicit TextLabel(QWidget* parent = nullptr);
    explicit TextLabel(const QString& text, QWidget* parent = nullptr);

    /// Shows it as something beside the point: a unit, a hint.
    void setMuted();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    bool isOneLine() const;
    bool marksKey() const;
    const QStaticText& shaped() const;

    QRectF placeOfLine() const;

    bool muted_ = false;
    mutable QStaticText shaped_;
    mutable QFont font_;
};

/// Mutes a label, if it is one of these.
void mute(QWidget* label);

}  // namespace varnholt
