// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

QByteArray pictureFile(const QString& name) {
    QFile file(QStringLiteral(":/pictures/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// On a chosen row the accent lies behind the picture, on which no colour of a role is seen.
QByteArray inColours(QByteArray svg, const Look& look, QIcon::Mode mode) {
    const auto put = [&](const char* role, const QColor& colour) {
        const QColor shown = mode == QIcon::Disabled   ? look.disabled
                             : mode == QIcon::Selected ? look.onAccent
                                                       : colour;
        svg.replace(role, shown.name().toLatin1());
    };
    // White may be what another role is drawn in, and the surface's own colour may be a role's.
    constexpr const char* surface = "surface";
    svg.replace("#ffffff", surface);
    put("#000000", look.ink);
    put("#0000ff", look.cooling);
    put("#ff0000", look.heating);
    put("#00ff00", look.accent);
    put("#808080", look.muted);
    const QColor& behind = mode == QIcon::Selected ? look.accent : look.surface;
    svg.replace(surface, behind.name().toLatin1());
    return svg;
}

/// Draws a picture once for every size, resolution and scheme in which it is shown.
class HouseIcon : public QIconEngine {
 public:
    enum class Colours { scheme, own };

    HouseIcon(QString name, Colours colours) : name_(std::move(name)), colours_(colours) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, drawn(rect.size() * ratio, mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        return drawn(size, mode);
    }

    QIconEngine* clone() const override { return new HouseIcon(name_, colours_); }

 private:
    QPixmap drawn(const QSize& size, QIcon::Mode mode) const {
        const Look& look = lookOf(QApplication::palette());
        const bool disabled = mode == QIcon::Disabled;
        const QString key = QStringLiteral("varnholt-%1-%2x%3-%4-%5")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode))
                                .arg(look.dark);
        QPixmap picture;
        if (QPixmapCache::find(key, &picture)) return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setOpacity(disabled ? 0.55 : 1);
        const QByteArray file = pictureFile(name_);
        QSvgRenderer(colours_ == Colours::own ? file : inColours(file, look, mode))
            .render(&painter, QRectF(QPointF(0, 0), size));
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QString name_;
    Colours colours_;
};

}  // namespace

QIcon houseIcon(const QString& name) {
    return QIcon(new HouseIcon(name, HouseIcon::Colours::scheme));
}

QIcon applicationIcon() {
    return QIcon(new HouseIcon(QStringLiteral("varnholt"), HouseIcon::Colours::own));
}

}  // namespace varnholt
