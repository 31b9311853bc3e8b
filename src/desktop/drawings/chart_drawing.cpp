// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/chart_drawing.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <utility>

#include "desktop/widgets/qt_text.h"
#include "forms/text_numbers/desktop.h"

namespace varnholt {

ChartDrawing::ChartDrawing(const Texts& texts, ChartModuleFinder charts,
                           QBoxLayout::Direction direction)
    : texts_(texts),
      module_(std::move(charts)),
      legend_(new LegendRow(this)),
      hint_(new QLabel(this)),
      plots_(new QWidget(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gridStep / 2);
    layout->addWidget(legend_);
    layout->addWidget(plots_, 1);
    layout->addWidget(hint_, 1);
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    hint_->setTextFormat(Qt::PlainText);
    auto* row = new QBoxLayout(direction, plots_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gridStep);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    dress();
}

void ChartDrawing::create() {
    created_ = true;
    ChartModule* module = module_();
    if (module == nullptr) return;
    for (std::size_t i = 0; i < pictures().size(); ++i) {
        charts_.push_back(module->newChart(plots_));
        static_cast<QBoxLayout*>(plots_->layout())->addWidget(charts_.back()->widget(), 1);
    }
    dress();
}

void ChartDrawing::refresh() {
    const bool first = !std::exchange(refreshed_, true);
    if (!take() && !first) return;
    QString hint = emptyHint();
    if (hint.isEmpty()) {
        if (!created_) create();
        legend_->setEntries(legend());
        const std::vector<ChartPicture> pictures = this->pictures();
        for (std::size_t i = 0; i < charts_.size(); ++i) charts_[i]->draw(pictures[i]);
        if (charts_.empty()) hint = qt(texts_.text(Text::chartPartMissing));
    }
    hint_->setText(hint);
    hint_->setVisible(!hint.isEmpty());
    plots_->setVisible(hint.isEmpty());
    legend_->setVisible(hint.isEmpty());
}

void ChartDrawing::showEvent(QShowEvent* event) {
    refresh();
    setAccessibleDescription(description());
    Drawing::showEvent(event);
}

void ChartDrawing::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) dress();
    Drawing::changeEvent(event);
}

void ChartDrawing::dress() {
    const Look& look = lookOf(palette());
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, look.muted);
    hint_->setPalette(muted);
    for (Chart* chart : charts_) chart->dress(look, figureFont(font()));
}

}  // namespace varnholt
