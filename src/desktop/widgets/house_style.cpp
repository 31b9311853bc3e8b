// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/house_style.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QPainter>
#include <QStyleOption>

#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

void strokeFor(QPainter& painter, const QColor& colour) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
}

void drawButton(QPainter& painter, QStyle::SubControl button, const QRectF& place) {
    const QRectF sign = QRectF(0, 0, 9, 9).translated(place.center() - QPointF(4.5, 4.5));
    switch (button) {
        case QStyle::SC_TitleBarCloseButton:
            painter.drawLine(sign.topLeft(), sign.bottomRight());
            painter.drawLine(sign.topRight(), sign.bottomLeft());
            break;
        case QStyle::SC_TitleBarMaxButton:
            painter.drawRect(sign);
            break;
        case QStyle::SC_TitleBarMinButton:
            painter.drawLine(sign.bottomLeft(), sign.bottomRight());
            break;
        default:
            painter.drawRect(sign.adjusted(0, 2.5, -2.5, 0));
            painter.drawPolyline(
                QPolygonF({sign.topLeft() + QPointF(2.5, 2), sign.topLeft() + QPointF(2.5, 0),
                           sign.topRight(), sign.bottomRight() - QPointF(0, 2.5),
                           sign.bottomRight() - QPointF(2, 2.5)}));
    }
}

}  // namespace

HouseStyle::HouseStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
        case PM_MdiSubWindowFrameWidth:
            return 3;
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return gridStep;
        case PM_TitleBarHeight:
            return std::max(28, QProxyStyle::pixelMetric(metric, option, widget));
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const {
    // A combo opens a list below it, which scrolls when it is long.
    if (hint == SH_ComboBox_Popup) return 0;
    if (hint == SH_EtchDisabledText) return 0;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
}

QIcon HouseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
    // The entries of a child window's own menu go without pictures, which every new window would
    // read from the disk.
    if (qobject_cast<const QMdiSubWindow*>(widget) != nullptr) return {};
    switch (icon) {
        case SP_MessageBoxQuestion:
            return houseIcon(QStringLiteral("help"));
        case SP_MessageBoxInformation:
            return houseIcon(QStringLiteral("info"));
        case SP_MessageBoxWarning:
        case SP_MessageBoxCritical:
            return houseIcon(QStringLiteral("refused"));
        default:
            return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    // The widgets show the focus by their edges.
    if (element == PE_FrameFocusRect) return;
    if (element != PE_FrameWindow) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    const Look& look = lookOf(option->palette);
    painter->setPen(option->state.testFlag(State_Active) ? look.muted : look.line);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    if (control == CC_TitleBar)
        drawTitleBar(option, painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void HouseStyle::drawTitleBar(const QStyleOptionComplex* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (bar == nullptr) return;
    const Look& look = lookOf(bar->palette);
    const bool active = (bar->titleBarState & State_Active) != 0;
    painter->save();
    painter->fillRect(bar->rect, active ? look.surface : look.window);
    painter->setPen(look.hairline);
    painter->drawLine(bar->rect.bottomLeft(), bar->rect.bottomRight());
    if (active)
        painter->fillRect(QRect(bar->rect.left(), bar->rect.top(), bar->rect.width(), 2),
                          look.accent);

    const QRect label = proxy()->subControlRect(CC_TitleBar, bar, SC_TitleBarLabel, widget);
    QFont font = QApplication::font();
    font.setWeight(active ? QFont::DemiBold : QFont::Normal);
    painter->setFont(font);
    painter->setPen(active ? look.ink : look.muted);
    const QRect text = label.adjusted(gridStep, 0, -gridStep, 0);
    painter->drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(bar->text, Qt::ElideRight, text.width()));

    const QRect icon = proxy()->subControlRect(CC_TitleBar, bar, SC_TitleBarSysMenu, widget);
    if (icon.isValid() && !bar->icon.isNull()) bar->icon.paint(painter, icon);

    for (const SubControl button : {SC_TitleBarMinButton, SC_TitleBarMaxButton,
                                    SC_TitleBarNormalButton, SC_TitleBarCloseButton}) {
        const QRect place = proxy()->subControlRect(CC_TitleBar, bar, button, widget);
        if (!place.isValid()) continue;
        const bool under = bar->activeSubControls == button && (bar->state & State_MouseOver) != 0;
        if (under)
            painter->fillRect(place, button == SC_TitleBarCloseButton ? look.alarm : look.hairline);
        strokeFor(*painter, under && button == SC_TitleBarCloseButton ? look.onAccent
                                                                      : painter->pen().color());
        painter->setPen(QPen(under && button == SC_TitleBarCloseButton
                                 ? look.onAccent
                                 : (active ? look.ink : look.muted),
                             1.4));
        drawButton(*painter, button, place);
    }
    painter->restore();
}

}  // namespace varnholt
