// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <vector>

#include "desktop/widgets/field_row.h"

class QGridLayout;

namespace varnholt {

/// A table of figures with a column for each thing that is compared. The columns whose heads are on
/// show share the width; where they are too many for it they scroll sideways, and the page about
/// them stays.
class ComparisonTable : public QScrollArea {
 public:
    /// @param rows  heads first; each with the same number of labels
    explicit ComparisonTable(const std::vector<FieldRow>& rows);

    /// Columns that have a share.
    int columnCount() const;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void shareWidth();
    void fitHeight();

    QGridLayout* grid_;
    std::vector<QWidget*> heads_;
};

}  // namespace varnholt
