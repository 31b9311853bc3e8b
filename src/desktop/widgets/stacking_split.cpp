// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/stacking_split.h"

#include <QEvent>
#include <QStyle>
#include <algorithm>

#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// Tells a split when what its page shows becomes wider or narrower.
class NeedWatcher : public QObject {
 public:
    NeedWatcher(StackingSplit& split, QWidget* content) : QObject(&split), split_(split) {
        content->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest) split_.arrange();
        return QObject::eventFilter(watched, event);
    }

 private:
    StackingSplit& split_;
};

/// With the bar that a page higher than its window has.
int widthWithoutScrolling(const ScrollPage& page) {
    const int bar = page.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &page);
    return page.widget()->minimumSizeHint().width() + bar;
}

}  // namespace

StackingSplit::StackingSplit(QWidget* first, QWidget* second, std::function<int()> needed)
    : QSplitter(Qt::Horizontal), needed_(std::move(needed)) {
    setChildrenCollapsible(false);
    setHandleWidth(gridStep);
    addWidget(first);
    addWidget(second);
    connect(this, &QSplitter::splitterMoved, this, [this] { firstPart_ = 0; });
}

void StackingSplit::arrange() {
    const int first = std::max(widget(0)->minimumWidth(), widget(0)->minimumSizeHint().width());
    const Qt::Orientation way =
        width() < first + handleWidth() + needed_() ? Qt::Vertical : Qt::Horizontal;
    if (way == orientation()) return;
    (way == Qt::Vertical ? beside_ : above_) = sizes();
    setOrientation(way);
    const QList<int>& before = way == Qt::Vertical ? above_ : beside_;
    // Above what it chooses from, a list is low: a few of its rows.
    constexpr int partsAbove = 4;
    if (!before.isEmpty())
        setSizes(before);
    else if (way == Qt::Vertical)
        setSizes({height() / partsAbove, height() - height() / partsAbove});
}

void StackingSplit::resizeEvent(QResizeEvent* event) {
    arrange();
    QSplitter::resizeEvent(event);
    if (orientation() == Qt::Horizontal && firstPart_ > 0) shareWidth();
}

/// Each piece has its least width before the first has its part.
void StackingSplit::shareWidth() {
    const int room = width() - handleWidth();
    const int least = std::max(widget(0)->minimumWidth(), widget(0)->minimumSizeHint().width());
    const int most = std::max(least, room - needed_());
    const int first = std::clamp(static_cast<int>(firstPart_ * room), least, most);
    setSizes({first, room - first});
}

StackingSplit* besidePage(QWidget* list, ScrollPage* page, double listPart) {
    auto* split = new StackingSplit(list, page, [page] { return widthWithoutScrolling(*page); });
    new NeedWatcher(*split, page->widget());
    split->setStretchFactor(1, 1);
    split->setFirstPart(listPart);
    return split;
}

}  // namespace varnholt
