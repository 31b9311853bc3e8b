// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/headed_tabs.h"

#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QWidgetItem>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// Between the last tab and the bar, which has a margin of its own.
constexpr int behindTabs = gridStep;
/// What the bar must have to spare before it goes to the tabs: a tab becomes strong or has a sign,
/// a notice has a longer button, and nothing is to jump for that.
constexpr int spareForTabs = 8 * gridStep;
/// How much higher than the tabs their line may become: a notice of two lines.
constexpr int higherThanTabs = 2 * gridStep;
/// Above the line.
constexpr int aboveTabs = gridStep / 4;

QSize belowOneAnother(const QSize& bar, const QSize& pages) {
    return {std::max(bar.width(), pages.width()), bar.height() + pages.height()};
}

}  // namespace

HeadedTabsLayout::HeadedTabsLayout(QWidget* parent, QWidget* bar, QTabWidget* tabs)
    : QLayout(parent),
      bar_(std::make_unique<QWidgetItem>(bar)),
      pages_(std::make_unique<QWidgetItem>(tabs)),
      tabs_(tabs) {
    setContentsMargins(0, 0, 0, 0);
    // The keyboard comes to the bar first; the line of the tabs is as wide as the pages.
    addChildWidget(bar);
    addChildWidget(tabs);
    bar->raise();
}

HeadedTabsLayout::~HeadedTabsLayout() = default;

QLayoutItem* HeadedTabsLayout::itemAt(int index) const {
    if (index == 0) return bar_.get();
    return index == 1 ? pages_.get() : nullptr;
}

QSize HeadedTabsLayout::sizeHint() const {
    return belowOneAnother(bar_->sizeHint(), pages_->sizeHint());
}

QSize HeadedTabsLayout::minimumSize() const {
    return belowOneAnother(bar_->minimumSize(), pages_->minimumSize());
}

int HeadedTabsLayout::tabsWidth() const {
    return gridStep + tabs_->tabBar()->sizeHint().width() + behindTabs;
}

int HeadedTabsLayout::tabsHeight() const { return tabs_->tabBar()->sizeHint().height(); }

int HeadedTabsLayout::barHeight(int width) const {
    return bar_->hasHeightForWidth() ? bar_->heightForWidth(width) : bar_->sizeHint().height();
}

bool HeadedTabsLayout::fitsBeside(int width) const {
    const int room = width - tabsWidth() - (beside_ ? 0 : spareForTabs);
    const int needed = barNeeds ? barNeeds() : bar_->minimumSize().width();
    return needed <= room && barHeight(width - tabsWidth()) <= tabsHeight() + higherThanTabs;
}

void HeadedTabsLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    if (const bool beside = fitsBeside(rect.width()); beside != beside_) {
        beside_ = beside;
        if (onTurned) onTurned(beside);
    }
    if (beside_)
        placeBeside(rect);
    else
        placeAbove(rect);
}

void HeadedTabsLayout::placeAbove(const QRect& rect) {
    const int height = barHeight(rect.width());
    bar_->setGeometry({rect.x(), rect.y(), rect.width(), height});
    pages_->setGeometry(rect.adjusted(0, height, 0, 0));
}

/// Both end where the pages begin.
void HeadedTabsLayout::placeBeside(const QRect& rect) {
    const int width = rect.width() - tabsWidth();
    const int high = barHeight(width);
    const int line = std::max(tabsHeight(), high);
    pages_->setGeometry(rect.adjusted(0, aboveTabs + line - tabsHeight(), 0, 0));
    const QRect place(rect.x() + tabsWidth(), rect.y() + aboveTabs + line - high, width, high);
    bar_->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), rect, place));
}

}  // namespace varnholt
