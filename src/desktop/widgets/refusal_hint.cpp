// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/refusal_hint.h"

#include <QLabel>
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

/// Below the field, or above it where there is no room below, within the page.
QPoint placeFor(const QWidget* field, const QWidget* page, const QSize& size) {
    const QPoint corner = field->mapTo(page, QPoint(0, 0));
    const int below = corner.y() + field->height() + 2;
    const int y = below + size.height() <= page->height() ? below : corner.y() - size.height() - 2;
    return {std::clamp(corner.x(), 0, std::max(0, page->width() - size.width())), std::max(0, y)};
}

}  // namespace

RefusalHint::~RefusalHint() { delete label_; }

void RefusalHint::show(QWidget* field, const std::string& why) {
    QWidget* page = pageOf(field);
    if (label_ == nullptr) {
        label_ = new QLabel;
        label_->setObjectName(QStringLiteral("refusalHint"));
        label_->setTextFormat(Qt::PlainText);
        label_->setAttribute(Qt::WA_TransparentForMouseEvents);
        label_->setWordWrap(true);
        label_->setMargin(gridStep / 2);
    }
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

bool RefusalHint::isShownFor(const QWidget* field, const std::string& why) const {
    return label_ != nullptr && field_ == field && plain(label_->text()) == why;
}

}  // namespace varnholt
