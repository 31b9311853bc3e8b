// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "basis/mode.h"

namespace varnholt {

/// What the lines and marks of a chart mean, in one row above it.
class LegendRow : public QWidget {
 public:
    enum class Sign { coolingLine, heatingLine, neutralLine, measured, design, second, staleLine };
    struct Entry {
        Sign sign;
        QString text;
    };

    explicit LegendRow(QWidget* parent = nullptr);

    void setEntries(std::vector<Entry> entries);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {40, sizeHint().height()}; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    std::vector<Entry> entries_;
};

}  // namespace varnholt
