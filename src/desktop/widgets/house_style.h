// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace varnholt {

/// Draws what a style sheet cannot reach: the title bars of the windows inside the main window.
class HouseStyle : public QProxyStyle {
 public:
    HouseStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;

 private:
    void drawTitleBar(const QStyleOptionComplex* option, QPainter* painter,
                      const QWidget* widget) const;
};

}  // namespace varnholt
