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

QByteArray inColours(QByteArray svg, const Look& look, bool disabled) {
    const auto put = [&](const char* role, const QColor& colour) {
        const QColor shown = disabled ? look.disabled : colour;
        svg.replace(role, shown.name().toLatin1());
    };
    // The surface last: its new colour must not be taken for another role.
    put("#000000", look.ink);
    put("#0000ff", look.cooling);
    put("#ff0000", look.heating);
    put("#00ff00", look.accent);
    put("#808080", look.muted);
    svg.replace("#ffffff", look.surface.name().toLatin1());
    return svg;
}

class HouseIcon : public QIconEngine {
 public:
    explicit HouseIcon(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer drawing(inColours(pictureFile(name_), lookOf(QApplication::palette()),
                                       mode == QIcon::Disabled));
        painter->setOpacity(mode == QIcon::Disabled ? 0.55 : 1);
        drawing.render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        const bool dark = lookOf(QApplication::palette()).dark;
        const QString key = QStringLiteral("varnholt-%1-%2x%3-%4-%5")
                                .arg(name_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode)
                                .arg(dark);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn)) return drawn;
        drawn = QPixmap(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        painter.end();
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

    QIconEngine* clone() const override { return new HouseIcon(name_); }

 private:
    QString name_;
};

}  // namespace

QIcon houseIcon(const QString& name) { return QIcon(new HouseIcon(name)); }

QIcon applicationIcon() { return QIcon(QStringLiteral(":/pictures/varnholt.svg")); }

}  // namespace varnholt
