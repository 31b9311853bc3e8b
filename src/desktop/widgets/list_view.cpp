// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/list_view.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <numeric>

#include "desktop/widgets/look.h"
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

void ListModel::setColumns(ListColumns columns) {
    beginResetModel();
    further_ = std::move(columns);
    endResetModel();
}

void ListModel::refreshColumns() {
    if (items_.empty()) return;
    dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void ListOrder::setText(const QString& text) {
    text_ = text;
    invalidateFilter();
}

bool ListOrder::holds(int sourceRow, const QString& text) const {
    for (int column = 0; column < sourceModel()->columnCount(); ++column)
        if (sourceModel()
                ->index(sourceRow, column)
                .data()
                .toString()
                .contains(text, Qt::CaseInsensitive))
            return true;
    return false;
}

bool ListOrder::filterAcceptsRow(int sourceRow, const QModelIndex&) const {
    return text_.isEmpty() || holds(sourceRow, text_);
}

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

int ListModel::columnCount(const QModelIndex& parent) const {
    const auto further = static_cast<int>(std::max(heads_.size(), further_.heads.size()));
    return parent.isValid() ? 0 : std::max(columns_, further);
}

QString ListModel::cell(const QModelIndex& index) const {
    const QString item = qt(items_[static_cast<std::size_t>(index.row())]);
    return columns_ == 1 ? item : item.section(u'\t', index.column(), index.column());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (further_.data && (index.column() > 0 || role != Qt::DisplayRole))
        return further_.data(index.row(), index.column(), role);
    if (role == Qt::DisplayRole) return cell(index);
    if (role == Qt::TextAlignmentRole && index.column() > 0) {
        bool isNumber = false;
        cell(index).toDouble(&isNumber);
        if (isNumber) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (section < further_.heads.size())
        return role == Qt::DisplayRole ? QVariant(further_.heads[section]) : QVariant();
    if (section >= heads_.size()) return {};
    if (role == Qt::DisplayRole) return heads_[section];
    // A head stands as the entries below it do.
    if (role == Qt::TextAlignmentRole && !items_.empty()) return data(index(0, section), role);
    return {};
}

ListView::ListView(bool multiple, QWidget* parent)
    : QTreeView(parent), model_(new ListModel(this)), order_(new ListOrder(this)) {
    order_->setSourceModel(model_);
    order_->setSortRole(Qt::UserRole);
    setModel(order_);
    connect(this, &QTreeView::activated, this, [this](const QModelIndex& opened) {
        if (onOpened) onOpened(order_->mapToSource(opened).row());
    });
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
    if (model_->hasColumns()) return shareWidth();
    for (int column = 0; column + 1 < model_->columnCount(); ++column)
        resizeColumnToContents(column);
}

int ListView::leastWidthOf(int column) const {
    const int digits = model_->widths()[static_cast<std::size_t>(column)].least;
    if (digits > 0) {
        const QString head = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        const int headWidth = header()->fontMetrics().horizontalAdvance(head) + 2 * gridStep;
        return std::max({digits * fontMetrics().horizontalAdvance(u'0'),
                         header()->minimumSectionSize(), headWidth});
    }
    // With a sign before the entry, which may come any time.
    const int sign = style()->pixelMetric(QStyle::PM_SmallIconSize);
    return std::max(longestEntry() + sign + 3 * gridStep, header()->sectionSizeHint(column));
}

/// Columns from the first on, as many as find room, the last one up to the list's edge.
void ListView::shareWidth() {
    if (sized_ || model_->widths().empty()) return;
    sharing_ = true;
    int rest = viewport()->width(), shares = 0, shown = 0;
    for (int column = 0; column < model_->columnCount(); ++column) {
        const bool fits = shown == column && (column == 0 || leastWidthOf(column) <= rest);
        setColumnHidden(column, !fits);
        if (!fits) continue;
        ++shown;
        rest -= leastWidthOf(column);
        shares += model_->widths()[static_cast<std::size_t>(column)].share;
    }
    rest = std::max(rest, 0);
    int taken = 0;
    for (int column = 0; column + 1 < shown; ++column) {
        const int share = model_->widths()[static_cast<std::size_t>(column)].share;
        const int width = leastWidthOf(column) + rest * share / std::max(shares, 1);
        setColumnWidth(column, width);
        taken += width;
    }
    setColumnWidth(shown - 1, std::max(viewport()->width() - taken, 0));
    sharing_ = false;
}

/// The last column follows the list's edge without a person.
void ListView::noteSizedColumn(int column) {
    const bool byHand = !sharing_ && QApplication::mouseButtons() != Qt::NoButton;
    int last = model_->columnCount() - 1;
    while (last > 0 && isColumnHidden(last)) --last;
    if (byHand && column != last) sized_ = true;
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    if (model_->hasColumns()) shareWidth();
}

void ListView::setColumns(ListColumns columns) {
    model_->setColumns(std::move(columns));
    connect(header(), &QHeaderView::sectionResized, this, &ListView::noteSizedColumn);
    setHeaderHidden(false);
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    fitColumns();
}

/// What the columns show of each row in sight.
QStringList ListView::shownRows() const {
    QStringList shown;
    const int end = viewport()->height();
    for (QModelIndex at = indexAt(QPoint(0, 0)); at.isValid() && visualRect(at).top() < end;
         at = indexBelow(at)) {
        const int row = order_->mapToSource(at).row();
        shown << QString::number(row) << model_->shownOf(row);
    }
    return shown;
}

void ListView::refreshColumns() {
    // Rows out of sight are asked when they come into it, if none of them decides what is in sight.
    const QStringList shown = order_->isAsGiven() ? shownRows() : QStringList();
    if (!shown.isEmpty() && shown == shown_) return;
    shown_ = shown;
    writing_ = true;
    model_->refreshColumns();
    writing_ = false;
}

void ListView::setFilter(const QString& text) {
    writing_ = true;
    order_->setText(text);
    select(picked_);
    writing_ = false;
}

QModelIndex ListView::shownIndex(int row) const {
    return order_->mapFromSource(model_->index(row, 0));
}

int ListView::rowAt(const QPoint& place) const {
    const QModelIndex at = indexAt(place);
    return at.isValid() ? order_->mapToSource(at).row() : -1;
}

/// Looks on from the row in front, which itself counts while one goes on typing.
void ListView::keyboardSearch(const QString& typed) {
    const bool goesOn =
        lastKey_.isValid() && lastKey_.elapsed() < QApplication::keyboardInputInterval();
    lastKey_.start();
    searched_ = goesOn ? searched_ + typed : typed;
    const int rows = order_->rowCount();
    const int first = std::max(0, currentIndex().row()) + (goesOn ? 0 : 1);
    for (int step = 0; step < rows; ++step) {
        const QModelIndex at = order_->index((first + step) % rows, 0);
        if (!order_->holds(order_->mapToSource(at).row(), searched_)) continue;
        setCurrentIndex(at);
        return;
    }
}

void ListView::setHeads(const QStringList& heads) {
    model_->setHeads(heads);
    setHeaderHidden(heads.isEmpty());
    fitColumns();
}

void ListView::setRows(const std::vector<int>& rows) {
    picked_ = rows;
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
        const QModelIndex at = shownIndex(row);
        if (at.isValid()) selection.select(at, at);
    }
    if (!rows.empty()) {
        const QModelIndex first = shownIndex(rows.front());
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
    selectionModel()->select(selection,
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

std::vector<int> ListView::rows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(order_->mapToSource(index).row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QStringList ListView::cellsOf(int row) const {
    if (cells_.ofRow) return cells_.ofRow(row);
    return qt(model_->items()[static_cast<std::size_t>(row)]).split(u'\t');
}

QString ListView::tableOf(const std::vector<int>& rows) const {
    QStringList lines;
    const QStringList heads = cells_.heads ? cells_.heads() : model_->heads();
    if (!heads.isEmpty()) lines << heads.join(u'\t');
    for (const int row : rows) lines << cellsOf(row).join(u'\t');
    return lines.join(u'\n');
}

QString ListView::table() const {
    std::vector<int> all(model_->items().size());
    std::iota(all.begin(), all.end(), 0);
    return tableOf(all);
}

void ListView::mousePressEvent(QMouseEvent* event) {
    told_ = false;
    QTreeView::mousePressEvent(event);
    // A press on the row that is chosen already is a choice too.
    if (!told_ && event->button() == Qt::LeftButton && indexAt(event->pos()).isValid() && onPicked)
        onPicked();
}

/// Copying is its window's, which gives whole lines away.
void ListView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        event->ignore();
    else
        QTreeView::keyPressEvent(event);
}

/// Only now do its entries have the fonts of the window.
void ListView::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    fitColumns();
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (writing_) return;
    picked_ = rows();
    if (!onPicked) return;
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
    constexpr int edges = 48;
    const int wide = std::max(160, longestEntry() + edges);
    return {std::min(wide, 520), usualRows_ * std::max(18, sizeHintForRow(0)) + 8};
}

}  // namespace varnholt
