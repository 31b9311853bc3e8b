// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <functional>
#include <string>
#include <vector>

namespace varnholt {

/// Columns that a view has beside the entries of a list, with heads over all of them.
struct ListColumns {
    QStringList heads;  ///< of the entries, and of the further columns
    /// What a cell of a further column, from 1, says for a role of the toolkit; of column 0, what
    /// is not the entry's own text. Sorting goes by Qt::UserRole.
    std::function<QVariant(int row, int column, int role)> data;
    /// All that the columns show of a row, in one text, by which a change is seen.
    std::function<QString(int row)> shown;
    /// How wide a column is until a person sizes it.
    struct Width {
        int least;  ///< in digits; 0 in the first column: as wide as the longest entry
        int share;  ///< of the room that is left over
    };
    std::vector<Width> widths;
};

/// The entries of a list box. An entry's tabs part it into columns; columns of figures stand right.
class ListModel : public QAbstractTableModel {
 public:
    using QAbstractTableModel::QAbstractTableModel;

    void setItems(const std::vector<std::string>& items);
    const std::vector<std::string>& items() const { return items_; }
    void setHeads(QStringList heads);
    const QStringList& heads() const { return heads_; }
    void setColumns(ListColumns columns);
    bool hasColumns() const { return !further_.heads.isEmpty(); }
    QString shownOf(int row) const { return further_.shown ? further_.shown(row) : QString(); }
    const std::vector<ListColumns::Width>& widths() const { return further_.widths; }
    /// What the further columns say has changed.
    void refreshColumns();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
    QString cell(const QModelIndex& index) const;

    std::vector<std::string> items_;
    QStringList heads_;
    ListColumns further_;
    int columns_ = 1;
};

/// The rows that hold a text somewhere, in an order to look at; the list's own stays.
class ListOrder : public QSortFilterProxyModel {
 public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text);
    /// Whether rows stand in their own order, none left out.
    bool isAsGiven() const { return text_.isEmpty() && sortColumn() < 0; }
    bool holds(int sourceRow, const QString& text) const;

 protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& parent) const override;

 private:
    QString text_;
};

/// A list box.
class ListView : public QTreeView {
 public:
    explicit ListView(bool multiple, QWidget* parent = nullptr);

    ListModel& entries() { return *model_; }
    void setItems(const std::vector<std::string>& items);
    void setRows(const std::vector<int>& rows);
    std::vector<int> rows() const;
    /// Selects exactly these rows as a person would.
    void pick(const std::vector<int>& rows);
    /// The rows as lines with tabs between their cells; heads, where there are any, come first.
    QString tableOf(const std::vector<int>& rows) const;
    QString table() const;
    /// For entries whose columns are made of blanks: the cells of a row, and those of the head.
    struct Cells {
        std::function<QStringList(int row)> ofRow;
        std::function<QStringList()> heads;
    };
    void setCells(Cells cells) { cells_ = std::move(cells); }
    /// Puts heads over the columns.
    void setHeads(const QStringList& heads);

    /// Puts columns beside the entries that can be sized and sorted by. Until a person sizes them
    /// they fill the list; those that find no room are not shown.
    void setColumns(ListColumns columns);
    /// What the columns show may have changed.
    void refreshColumns();
    /// Shows only the rows that hold the text. What is selected stays selected.
    void setFilter(const QString& text);
    /// What is typed goes to the next row that holds it.
    void keyboardSearch(const QString& typed) override;
    /// The row that stands at a place; -1 for none.
    int rowAt(const QPoint& place) const;

    /// How many rows it asks room for; whoever places it may stretch it.
    void setUsualRows(int rows) { usualRows_ = rows; }

    /// A person has opened a row, by a double click or Enter.
    std::function<void(int row)> onOpened;
    /// A person has picked rows, possibly the same as before.
    std::function<void()> onPicked;

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QSize sizeHint() const override;

 private:
    void fitColumns();
    void shareWidth();
    int leastWidthOf(int column) const;
    void noteSizedColumn(int column);
    QStringList cellsOf(int row) const;
    int longestEntry() const;
    void select(const std::vector<int>& rows);

    QModelIndex shownIndex(int row) const;
    QStringList shownRows() const;

    int usualRows_ = 8;
    ListModel* model_;
    ListOrder* order_;
    std::vector<int> picked_;
    QString searched_;
    QElapsedTimer lastKey_;
    Cells cells_;
    QStringList shown_;  ///< of the rows in sight when the columns were last refreshed
    bool writing_ = false;
    bool told_ = false;
    bool sharing_ = false;
    bool sized_ = false;  ///< a person has sized a column
};

}  // namespace varnholt
