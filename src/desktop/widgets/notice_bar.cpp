// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/notice_bar.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "desktop/widgets/icons.h"
#include "desktop/widgets/layout.h"

namespace varnholt {
namespace {

constexpr int signSize = 16;

/// The bar is as high without a button as with one.
void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

}  // namespace

NoticeBar::NoticeBar(QLabel* text, QAbstractButton* action)
    : tell([](QAccessibleEvent& event) { QAccessible::updateAccessibility(&event); }),
      sign_(new QLabel),
      text_(text) {
    setObjectName(QStringLiteral("noticeBar"));
    wrapped(text);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(gridStep, 1, 1, 1);
    row->addWidget(sign_);
    row->addWidget(text, 1);
    row->addWidget(action);
    keepPlace(*this);
    keepPlace(*action);
    // A reason in two lines comes and goes with every refused value, and nothing is to jump for it.
    constexpr int edge = 1;
    const QMargins around = row->contentsMargins();
    setMinimumHeight(2 * (text->fontMetrics().height() + edge) + around.top() + around.bottom());
    // As high as a field: the pages are to have the height.
    action->setProperty("inTable", true);
    sign_->setFixedSize(signSize, signSize);
    text->installEventFilter(this);
    follow();
}

/// Counted from the pieces: while a text goes, the row still holds the room that it had.
int NoticeBar::leastWithText() const {
    const QMargins around = contentsMargins() + layout()->contentsMargins();
    const int pieces =
        signSize + text_->minimumWidth() + layout()->itemAt(2)->minimumSize().width();
    return around.left() + around.right() + pieces + 2 * layout()->spacing();
}

void NoticeBar::drawSign() {
    sign_->setPixmap(houseIcon(icon_).pixmap(QSize(signSize, signSize), devicePixelRatioF()));
}

void NoticeBar::setSign(const QString& icon) {
    if (icon == icon_) return;
    icon_ = icon;
    if (isVisible()) drawSign();
}

void NoticeBar::follow() {
    const bool shown = !text_->isHidden();
    // A bar without a parent would open as a window of its own.
    if (!shown || parentWidget() != nullptr) setVisible(shown);
}

bool NoticeBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) follow();
    return QFrame::eventFilter(watched, event);
}

/// Most windows have nothing to tell when they open.
void NoticeBar::showEvent(QShowEvent* event) {
    drawSign();
    QFrame::showEvent(event);
}

void NoticeBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange && isVisible()) drawSign();
    QFrame::changeEvent(event);
}

void NoticeBar::announce() {
    const QString told = text_->isHidden() ? QString() : text_->text();
    if (told == announced_) return;
    announced_ = told;
    setAccessibleName(told);
    if (told.isEmpty()) return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    tell(alert);
}

}  // namespace varnholt
