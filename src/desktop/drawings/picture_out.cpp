// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/picture_out.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QSvgRenderer>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "desktop/drawings/drawing.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// Pixels of a written picture to one of the screen: sharp on paper too.
constexpr double fileScale = 3;

void paint(Drawing& drawing, QPainter& painter) {
    painter.fillRect(drawing.rect(), lookOf(drawing.palette()).surface);
    drawing.render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
}

QByteArray svgOf(Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(drawing.size());
    generator.setViewBox(drawing.rect());
    generator.setTitle(drawing.accessibleName());
    generator.setDescription(drawing.description());
    generator.setResolution(drawing.logicalDpiX());
    QPainter painter(&generator);
    paint(drawing, painter);
    painter.end();
    return bytes;
}

QByteArray pdfOf(Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    constexpr double pointsPerPixel = 0.75;  // 72 points and 96 pixels an inch
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(drawing.size()) * pointsPerPixel, QPageSize::Point, {},
                                 QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setTitle(drawing.accessibleName());
    QSvgRenderer picture(svgOf(drawing));
    QPainter painter(&writer);
    picture.render(&painter, QRectF(QPointF(), QSizeF(writer.width(), writer.height())));
    painter.end();
    return bytes;
}

QByteArray pngOf(Drawing& drawing) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    imageOf(drawing, fileScale).save(&buffer, "PNG");
    return bytes;
}

}  // namespace

QImage imageOf(Drawing& drawing, double scale) {
    QImage image(drawing.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(lookOf(drawing.palette()).surface);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(drawing, painter);
    return image;
}

bool writePicture(Drawing& drawing, const QString& path) {
    const QString ending = QFileInfo(path).suffix().toLower();
    QByteArray bytes;
    if (ending == QLatin1String("svg"))
        bytes = svgOf(drawing);
    else if (ending == QLatin1String("pdf"))
        bytes = pdfOf(drawing);
    else if (ending == QLatin1String("png"))
        bytes = pngOf(drawing);
    if (bytes.isEmpty()) return false;
    try {
        replaceWholeFile(plain(path), {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    } catch (const RunTimeError&) {
        return false;
    }
    return true;
}

}  // namespace varnholt
