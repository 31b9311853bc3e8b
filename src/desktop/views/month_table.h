// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>

class QGridLayout;
class QLabel;

namespace varnholt {

class Binder;

/// The importer's table: a row a month, the year's row below, and the one field that stands over
/// the cell which is being typed into.
class MonthTable : public QWidget {
 public:
    explicit MonthTable(Binder& bind);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    QLabel* label(const std::string& name, int row, int column, bool figure);
    void addHeads();
    void addMonths();
    void addYear();
    void placeField();
    void dressField();

    Binder& bind_;
    QGridLayout* grid_;
    QWidget* field_;
    int row_ = 0, column_ = 0;  ///< of the field
};

}  // namespace varnholt
