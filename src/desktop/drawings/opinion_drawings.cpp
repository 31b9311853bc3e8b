// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of the second opinion as widgets.
#include <QMouseEvent>
#include <utility>

#include "desktop/drawings/opinion_pictures.h"
#include "desktop/drawings/painted_drawing.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr QSize opinionSize{320, 200};

/// A year of the band can be pressed, and the months that follow it too, to come back.
class HistoryDrawing : public PaintedDrawing<HistoryPicture> {
 public:
    HistoryDrawing(std::function<HistoryPicture()> source, const Texts& texts,
                   std::function<void(std::optional<std::size_t>)> pointed)
        : PaintedDrawing(
              std::move(source),
              [this, &texts](const Canvas& canvas, const HistoryPicture& history) {
                  plot_ = paintHistory(canvas, history, texts);
                  shown_ = history;
              },
              describing<HistoryPicture>(texts), opinionSize),
          pointed_(std::move(pointed)) {
        setCursor(Qt::PointingHandCursor);
    }

 protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        const auto year = yearAt(shown_, plot_, event->position());
        if (year || shown_.year) pointed_(year);
    }

 private:
    std::function<void(std::optional<std::size_t>)> pointed_;
    QRectF plot_;
    HistoryPicture shown_;
};

}  // namespace

Drawing* newHistoryDrawing(std::function<HistoryPicture()> source, const Texts& texts,
                           std::function<void(std::optional<std::size_t>)> pointed) {
    return new HistoryDrawing(std::move(source), texts, std::move(pointed));
}

Drawing* newYearDrawing(std::function<YearPicture()> source, const Texts& texts) {
    return new PaintedDrawing<YearPicture>(
        std::move(source),
        [&texts](const Canvas& canvas, const YearPicture& year) { paintYear(canvas, year, texts); },
        describing<YearPicture>(texts), opinionSize);
}

Drawing* newGFunctionDrawing(std::function<GFunctionPicture()> source, const Texts& texts) {
    return new PaintedDrawing<GFunctionPicture>(
        std::move(source),
        [&texts](const Canvas& canvas, const GFunctionPicture& picture) {
            paintGFunction(canvas, picture, texts);
        },
        describing<GFunctionPicture>(texts), opinionSize);
}

}  // namespace varnholt
