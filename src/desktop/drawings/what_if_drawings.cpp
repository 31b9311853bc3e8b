// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of What If as widgets.
#include <QMouseEvent>
#include <utility>

#include "desktop/drawings/painted_drawing.h"
#include "desktop/drawings/what_if_paintings.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

constexpr QSize whatIfSize{460, 272};
constexpr QSize beside{320, 180};  // of two pictures in one line
constexpr QSize low{420, 72};

/// A picture of which parts can be pressed.
template <class Picture, class Place>
class PointedDrawing : public PaintedDrawing<Picture> {
 public:
    using Paint = std::vector<Place> (*)(const Canvas&, const Picture&, const Texts&);
    using Find = std::optional<std::size_t> (*)(const std::vector<Place>&, const QPointF&);

    PointedDrawing(std::function<Picture()> source, const Texts& texts, Paint paint, Find locate,
                   std::function<void(std::size_t)> pointed, const QSize& size)
        : PaintedDrawing<Picture>(
              std::move(source),
              [this, &texts, paint](const Canvas& canvas, const Picture& picture) {
                  places_ = paint(canvas, picture, texts);
              },
              describing<Picture>(texts), size),
          find_(locate),
          pointed_(std::move(pointed)) {
        this->setCursor(Qt::PointingHandCursor);
    }

 protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        if (const auto found = find_(places_, event->position())) pointed_(*found);
    }

 private:
    Find find_;
    std::function<void(std::size_t)> pointed_;
    std::vector<Place> places_;
};

std::optional<std::size_t> rowAt(const std::vector<QRectF>& rows, const QPointF& place) {
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (rows[i].contains(place)) return i;
    return std::nullopt;
}

/// The nearest point, as long as it is near at all.
std::optional<std::size_t> pointAt(const std::vector<QPointF>& points, const QPointF& place) {
    constexpr double reach = 8;
    double nearest = reach * reach;
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF apart = points[i] - place;
        const double distance = QPointF::dotProduct(apart, apart);
        if (distance >= nearest) continue;
        nearest = distance;
        found = i;
    }
    return found;
}

template <class Picture>
Drawing* plainDrawing(std::function<Picture()> source, const Texts& texts,
                      void (*paint)(const Canvas&, const Picture&, const Texts&),
                      const QSize& size) {
    return new PaintedDrawing<Picture>(
        std::move(source),
        [&texts, paint](const Canvas& canvas, const Picture& picture) {
            paint(canvas, picture, texts);
        },
        describing<Picture>(texts), size);
}

}  // namespace

Drawing* newTornadoDrawing(std::function<TornadoPicture()> source, const Texts& texts,
                           std::function<void(std::size_t)> pointed) {
    return new PointedDrawing<TornadoPicture, QRectF>(std::move(source), texts, paintTornado, rowAt,
                                                      std::move(pointed), whatIfSize);
}

Drawing* newSureDrawing(std::function<SurePicture()> source, const Texts& texts) {
    return plainDrawing<SurePicture>(std::move(source), texts, paintSure, whatIfSize);
}

Drawing* newLandDrawing(std::function<LandPicture()> source, const Texts& texts) {
    return plainDrawing<LandPicture>(std::move(source), texts, paintLand, beside);
}

Drawing* newFieldsDrawing(std::function<FieldsPicture()> source, const Texts& texts,
                          std::function<void(std::size_t)> pointed) {
    return new PointedDrawing<FieldsPicture, QPointF>(std::move(source), texts, paintFields,
                                                      pointAt, std::move(pointed), beside);
}

Drawing* newCostDrawing(std::function<CostPicture()> source, const Texts& texts) {
    return plainDrawing<CostPicture>(std::move(source), texts, paintCost, low);
}

Drawing* newTowerDrawing(std::function<TowerPicture()> source, const Texts& texts) {
    return plainDrawing<TowerPicture>(std::move(source), texts, paintTower, whatIfSize);
}

}  // namespace varnholt
