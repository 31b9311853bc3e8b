// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/list_view.h"

#include <QHeaderView>
#include <QItemSelection>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/widgets/qt_text.h"

namespace varnholt {

void ListModel::setItems(const std::vector<std::string>& items) {
    int columns = 1;
    for (const std::string& item : items)
        columns =
            std::max(columns, static_cast<int>(std::count(item.begin(), item.end(), '\t')) + 1);
    // One entry that changes its text keeps the others' place and selection.
    if (items.size() == items_.size() && columns == columns_) {
        for (std::size_t row = 0; row < items.size(); ++row) {
            if (items[row] == items_[row]) continue;
            items_[row] = items[row];
            dataChanged(index(static_cast<int>(row), 0),
                        index(static_cast<int>(row), columns_ - 1));
        }
        return;
    }
    beginResetModel();
    items_ = items;
    columns_ = columns;
    endResetModel();
}

void ListModel::setHeads(QStringList heads) {
    beginResetModel();
    heads_ = std::move(heads);
    endResetModel();
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : std::max(columns_, static_cast<int>(heads_.size()));
}

QString ListModel::cell(const QModelIndex& index) const {
    const QString item = qt(items_[static_cast<std::size_t>(index.row())]);
    return columns_ == 1 ? item : item.section(u'\t', index.column(), index.column());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::DisplayRole) return cell(index);
    if (role == Qt::TextAlignmentRole && index.column() > 0) {
        bool isNumber = false;
        cell(index).toDouble(&isNumber);
        if (isNumber) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section >= heads_.size()) return {};
    if (role == Qt::DisplayRole) return heads_[section];
    // A head stands as the entries below it do.
    if (role == Qt::TextAlignmentRole && !items_.empty()) return data(index(0, section), role);
    return {};
}

ListView::ListView(bool multiple, QWidget* parent)
    : QTreeView(parent), model_(new ListModel(this)) {
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHeaderHidden(true);
    header()->setStretchLastSection(true);
    setSelectionMode(multiple ? ExtendedSelection : SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
}

void ListView::setItems(const std::vector<std::string>& items) {
    writing_ = true;
    const bool grows = items.size() != model_->items().size();
    model_->setItems(items);
    if (grows) fitColumns();
    writing_ = false;
}

void ListView::fitColumns() {
    for (int column = 0; column + 1 < model_->columnCount(); ++column)
        resizeColumnToContents(column);
}

void ListView::setHeads(const QStringList& heads) {
    model_->setHeads(heads);
    setHeaderHidden(heads.isEmpty());
    fitColumns();
}

void ListView::setRows(const std::vector<int>& rows) {
    if (rows == this->rows()) return;
    writing_ = true;
    select(rows);
    writing_ = false;
}

void ListView::pick(const std::vector<int>& rows) {
    if (rows == this->rows()) {
        if (onPicked) onPicked();
    } else {
        select(rows);
    }
}

void ListView::select(const std::vector<int>& rows) {
    QItemSelection selection;
    for (const int row : rows) {
        const QModelIndex at = model_->index(row, 0);
        if (at.isValid()) selection.select(at, at);
    }
    if (!rows.empty()) {
        const QModelIndex first = model_->index(rows.front(), 0);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

std::vector<int> ListView::rows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ListView::mousePressEvent(QMouseEvent* event) {
    told_ = false;
    QTreeView::mousePressEvent(event);
    // A press on the row that is chosen already is a choice too.
    if (!told_ && event->button() == Qt::LeftButton && indexAt(event->pos()).isValid() && onPicked)
        onPicked();
}

/// Only now do its entries have the fonts of the window.
void ListView::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    fitColumns();
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (writing_ || !onPicked) return;
    told_ = true;
    onPicked();
}

int ListView::longestEntry() const {
    // The entry of the most characters stands for the widest: to measure all of a thousand takes
    // longer than to draw the window.
    const std::vector<std::string>& items = model_->items();
    const auto longest = std::max_element(
        items.begin(), items.end(),
        [](const std::string& a, const std::string& b) { return a.size() < b.size(); });
    return longest == items.end() ? 0 : fontMetrics().horizontalAdvance(qt(*longest));
}

QSize ListView::sizeHint() const {
    // As wide as its longest entry and eight rows high; whoever places it may stretch it.
    constexpr int edges = 48;
    const int wide = std::max(160, longestEntry() + edges);
    return {std::min(wide, 520), 8 * std::max(18, sizeHintForRow(0)) + 8};
}

}  // namespace varnholt
