// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/comparison_table.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// Least width of a column: a price of seven figures, strong.
constexpr int leastColumn = 11 * gridStep;
/// So many columns and more share the whole width.
constexpr int columnsThatFill = 4;

}  // namespace

ComparisonTable::ComparisonTable(const std::vector<FieldRow>& rows) : heads_(rows.front().fields) {
    auto* content = new QWidget;
    grid_ = new QGridLayout(content);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(gridStep);
    grid_->setVerticalSpacing(gridStep / 2);
    int line = 0;
    for (const FieldRow& row : rows) {
        if (row.caption != nullptr) grid_->addWidget(row.caption, line, 0);
        int column = 1;
        for (QWidget* field : row.fields) grid_->addWidget(field, line, column++);
        ++line;
    }
    grid_->setRowStretch(line, 1);
    for (QWidget* head : heads_) {
        auto* label = static_cast<QLabel*>(head);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignBottom);
        label->installEventFilter(this);
    }
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // The card behind is seen through.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    content->installEventFilter(this);
    shareWidth();
}

int ComparisonTable::columnCount() const {
    return static_cast<int>(std::count_if(heads_.begin(), heads_.end(),
                                          [](const QWidget* head) { return !head->isHidden(); }));
}

bool ComparisonTable::eventFilter(QObject* watched, QEvent* event) {
    const bool ofHead = watched != widget();
    if (ofHead && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent))
        shareWidth();
    if (!ofHead && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize))
        fitHeight();
    return QScrollArea::eventFilter(watched, event);
}

void ComparisonTable::shareWidth() {
    int column = 1;
    for (const QWidget* head : heads_) {
        const bool there = !head->isHidden();
        grid_->setColumnStretch(column, there ? 1 : 0);
        grid_->setColumnMinimumWidth(column, there ? leastColumn : 0);
        ++column;
    }
    // A few alternatives stay beside the words of their rows.
    grid_->setColumnStretch(column, std::max(0, columnsThatFill - columnCount()));
}

/// All rows are on show, with the bar below them where there is one.
void ComparisonTable::fitHeight() {
    const int content = grid_->hasHeightForWidth()
                            ? grid_->totalHeightForWidth(std::max(1, widget()->width()))
                            : grid_->totalSizeHint().height();
    const int height = content + horizontalScrollBar()->sizeHint().height();
    if (minimumHeight() != height) setMinimumHeight(height);
}

}  // namespace varnholt
