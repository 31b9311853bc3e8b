// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <utility>

#include "desktop/drawings/canvas.h"
#include "desktop/drawings/drawing.h"
#include "desktop/widgets/qt_text.h"
#include "forms/texts.h"

namespace varnholt {

/// The words that stand for a picture, from those who know its description.
template <class Picture>
std::function<QString(const Picture&)> describing(const Texts& texts) {
    return [&texts](const Picture& picture) { return qt(describe(picture, texts)); };
}

/// A picture painted from a plain description of what to draw.
template <class Model>
class PaintedDrawing : public Drawing {
 public:
    using Source = std::function<Model()>;
    using Painting = std::function<void(const Canvas&, const Model&)>;
    using Description = std::function<QString(const Model&)>;

    PaintedDrawing(Source source, Painting paint, Description describe, const QSize& size)
        : source_(std::move(source)),
          paint_(std::move(paint)),
          describe_(std::move(describe)),
          size_(size) {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    }

    void refresh() override { model_ = source_(); }
    QString description() const override { return describe_(model_); }
    QSize sizeHint() const override { return size_; }
    QSize minimumSizeHint() const override { return size_ * 0.75; }

 protected:
    void showEvent(QShowEvent* event) override {
        refresh();
        setAccessibleDescription(description());
        Drawing::showEvent(event);
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paint_(canvasFor(painter, rect(), palette(), font()), model_);
    }

 private:
    Source source_;
    Painting paint_;
    Description describe_;
    QSize size_;
    Model model_{};
};

}  // namespace varnholt
