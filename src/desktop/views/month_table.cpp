// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/month_table.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include "desktop/binding/binder.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "loads/import/frmImport1.h"

namespace varnholt {
namespace {

constexpr int headRow = 0, unitRow = 1, firstMonthRow = 2;
constexpr int totalRow = firstMonthRow + static_cast<int>(monthsOfYear);
constexpr int cellWidth = 104;

std::string nameOf(const frmImport1::Cell& cell) {
    return elementName(cell.column == frmImport1::Column::total ? "lblTotal" : "lblPeak",
                       cell.month);
}

}  // namespace

MonthTable::MonthTable(Binder& bind)
    : bind_(bind), grid_(new QGridLayout(this)), field_(bind.widget("txtImport1")) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(gridStep / 2);
    grid_->setVerticalSpacing(2);
    addHeads();
    addMonths();
    addYear();
    field_->setParent(this);
    static_cast<QLineEdit*>(field_)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field_->setFont(figureFont(field_->font()));
    bind_.onSettled([this] { placeField(); });
}

QLabel* MonthTable::label(const std::string& name, int row, int column, bool figure) {
    auto* label = static_cast<QLabel*>(bind_.widget(name));
    if (figure) {
        label->setFont(figureFont(label->font()));
        label->setMinimumWidth(cellWidth);
        label->setContentsMargins(6, 2, 6, 2);
    }
    label->setAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    grid_->addWidget(label, row, column);
    return label;
}

void MonthTable::addHeads() {
    for (int column = 0; column < 4; ++column) {
        QLabel* head = label("lblTitle(" + std::to_string(column) + ")", headRow, column, false);
        QFont font = head->font();
        font.setWeight(QFont::DemiBold);
        head->setFont(font);
    }
    mute(label("lblTitle(5)", unitRow, 1, false));
    mute(label("lblTitle(7)", unitRow, 2, false));
}

void MonthTable::addMonths() {
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        const int row = firstMonthRow + static_cast<int>(month);
        QLabel* name = label(elementName("lblEqvHours", month), row, 0, false);
        int column = 1;
        for (const char* stem : {"lblTotal", "lblPeak", "lblPLF"}) {
            QLabel* cell = label(elementName(stem, month), row, column++, true);
            cell->setAccessibleName(name->text());
        }
    }
}

void MonthTable::addYear() {
    label("lblEqvHours(13)", totalRow, 0, false);
    label("lblTotal(12)", totalRow, 1, true);
    label("lblPeak(12)", totalRow, 2, true);
    label("lblEqvHours(14)", totalRow + 1, 0, false);
    label("lblHours", totalRow + 1, 1, true);
    grid_->setRowStretch(totalRow + 2, 1);
}

void MonthTable::placeField() {
    const auto* form = static_cast<const frmImport1*>(bind_.form());
    if (form == nullptr) return;
    const BoundControl* cell = bind_.find(nameOf(form->cell()));
    if (cell == nullptr) return;
    dressField();
    field_->setGeometry(cell->widget()->geometry());
    field_->raise();
    const auto* month = static_cast<const QLabel*>(
        bind_.find(elementName("lblEqvHours", form->cell().month))->widget());
    const auto* head = static_cast<const QLabel*>(
        bind_
            .find(form->cell().column == frmImport1::Column::total ? "lblTitle(1)" : "lblTitle(2)")
            ->widget());
    field_->setAccessibleName(month->text() + QStringLiteral(", ") + head->text());
}

/// The field has the colour of the cells, which the house's style of fields would cover.
void MonthTable::dressField() {
    const Look& look = bind_.look();
    const QColor back = backColour(bind_.form()->control("txtImport1").backcolor(), look);
    const QString style =
        QStringLiteral(
            "QLineEdit { background: %1; border: 2px solid %2; border-radius: 2px; "
            "padding: 0 3px; min-height: 0; }")
            .arg(back.name(), look.accent.name());
    if (field_->styleSheet() != style) field_->setStyleSheet(style);
}

void MonthTable::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    grid_->activate();
    placeField();
}

void MonthTable::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) placeField();
}

}  // namespace varnholt
