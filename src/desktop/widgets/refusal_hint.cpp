// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/refusal_hint.h"

#include <QApplication>
#include <QLabel>
#include <QList>
#include <QRect>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

/// The page that the field stands on: the hint goes with it when another page comes.
QWidget* pageOf(QWidget* field) {
    QWidget* page = field;
    while (page->parentWidget() != nullptr && !page->isWindow()) {
        page = page->parentWidget();
        const QWidget* around = page->parentWidget();
        if (around == nullptr || around->inherits("QStackedWidget") ||
            around->inherits("QMdiSubWindow"))
            break;
        if (around->objectName() == QLatin1String("qt_scrollarea_viewport")) break;
    }
    return page;
}

QRect placeOnPage(const QWidget* widget, const QWidget* page) {
    return {widget->mapTo(page, QPoint(0, 0)), widget->size()};
}

/// Whether the place lies over something else on the page that is worked.
bool coversOthers(const QRect& place, const QWidget* field, const QWidget* page) {
    const QList<QWidget*> all = page->findChildren<QWidget*>();
    return std::any_of(all.begin(), all.end(), [&](const QWidget* other) {
        const bool mine =
            other == field || other->isAncestorOf(field) || field->isAncestorOf(other);
        return !mine && other->isVisible() && other->focusPolicy() != Qt::NoFocus &&
               placeOnPage(other, page).intersects(place);
    });
}

/// Below the field, or above it where that is within the page and below is not or covers others.
QPoint placeFor(const QWidget* field, const QWidget* page, const QSize& size) {
    const QRect own = placeOnPage(field, page);
    const int x = std::clamp(own.x(), 0, std::max(0, page->width() - size.width()));
    const QPoint below(x, own.y() + own.height() + 2), above(x, own.y() - size.height() - 2);
    if (below.y() + size.height() > page->height()) return {x, std::max(0, above.y())};
    const auto isFree = [&](const QPoint& corner) {
        return !coversOthers(QRect(corner, size), field, page);
    };
    return !isFree(below) && above.y() >= 0 && isFree(above) ? above : below;
}

}  // namespace

RefusalHint::~RefusalHint() { delete label_; }

void RefusalHint::makeLabel() {
    label_ = new QLabel;
    label_->setObjectName(QStringLiteral("refusalHint"));
    label_->setTextFormat(Qt::PlainText);
    label_->setAttribute(Qt::WA_TransparentForMouseEvents);
    label_->setWordWrap(true);
    label_->setMargin(gridStep / 2);
    QObject::connect(qApp, &QApplication::focusChanged, label_,
                     [this](QWidget*, const QWidget* now) { follow(now); });
}

void RefusalHint::show(QWidget* field, const std::string& why) {
    QWidget* page = pageOf(field);
    if (label_ == nullptr) makeLabel();
    field_ = field;
    label_->setParent(page);
    label_->setText(qt(why));
    constexpr int widest = 45 * gridStep;
    const int wide = label_->fontMetrics().horizontalAdvance(label_->text()) + 3 * gridStep;
    const int width = std::min({wide, widest, std::max(1, page->width())});
    label_->resize(width, label_->heightForWidth(width));
    label_->move(placeFor(field, page, label_->size()));
    label_->show();
    label_->raise();
}

void RefusalHint::hide() {
    if (label_ != nullptr) label_->hide();
    field_ = nullptr;
}

void RefusalHint::follow(const QWidget* focused) {
    if (label_ == nullptr || field_ == nullptr || focused == nullptr) return;
    const QWidget* page = label_->parentWidget();
    if (focused == field_ || field_->isAncestorOf(focused)) return label_->show();
    if (page->isAncestorOf(focused) && placeOnPage(focused, page).intersects(label_->geometry()))
        label_->hide();
}

bool RefusalHint::isShownFor(const QWidget* field, const std::string& why) const {
    return label_ != nullptr && field_ == field && plain(label_->text()) == why;
}

}  // namespace varnholt
