// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QTreeView>
#include <functional>
#include <string>
#include <vector>

namespace varnholt {

/// The entries of a list box. An entry's tabs part it into columns; columns of figures stand right.
class ListModel : public QAbstractTableModel {
 public:
    using QAbstractTableModel::QAbstractTableModel;

    void setItems(const std::vector<std::string>& items);
    const std::vector<std::string>& items() const { return items_; }
    void setHeads(QStringList heads);
    const QStringList& heads() const { return heads_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
    QString cell(const QModelIndex& index) const;

    std::vector<std::string> items_;
    QStringList heads_;
    int columns_ = 1;
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
    /// Puts heads over the columns.
    void setHeads(const QStringList& heads);

    /// A person has picked rows, possibly the same as before.
    std::function<void()> onPicked;

 protected:
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    QSize sizeHint() const override;

 private:
    void fitColumns();
    int longestEntry() const;
    void select(const std::vector<int>& rows);

    ListModel* model_;
    bool writing_ = false;
    bool told_ = false;
};

}  // namespace varnholt
