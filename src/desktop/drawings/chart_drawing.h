// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBoxLayout>
#include <vector>

#include "desktop/drawings/chart_module.h"
#include "desktop/drawings/drawing.h"
#include "desktop/drawings/legend_row.h"
#include "forms/texts.h"

class QLabel;

namespace varnholt {

/// A drawing made of charts side by side, or one below the other. The module of charts is loaded
/// when there is something to show for the first time; where it is missing, a sentence in the
/// charts' place says so.
class ChartDrawing : public Drawing {
 public:
    ChartDrawing(const Texts& texts, ChartModuleFinder charts,
                 QBoxLayout::Direction direction = QBoxLayout::LeftToRight);

    void refresh() final;
    QSize minimumSizeHint() const override { return {240, 160}; }

 protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Takes what is to be drawn from the form again. False when it is the same as before.
    virtual bool take() = 0;
    /// The charts in the order of reading; always the same number.
    virtual std::vector<ChartPicture> pictures() const = 0;
    virtual std::vector<LegendRow::Entry> legend() const = 0;
    /// What stands in place of the charts while there is nothing to draw; else empty.
    virtual QString emptyHint() const = 0;

    const Texts& texts() const { return texts_; }

 private:
    void create();
    void dress();

    const Texts& texts_;
    ChartModuleFinder module_;
    LegendRow* legend_;
    QLabel* hint_;
    QWidget* plots_;
    std::vector<Chart*> charts_;
    bool refreshed_ = false, created_ = false;
};

}  // namespace varnholt
