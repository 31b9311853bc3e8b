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

constexpr int titleRow = 0, unitTitleRow = 1, firstMonthRow = 2;
constexpr int totalRow = firstMonthRow + static_cast<int>(monthsOfYear);
constexpr int cellWidth = 104;

}  // namespace

MonthTable::MonthTable(Binder& bind)
    : bind_(bind), grid_(new QGridLayout(this)), field_(bind.widget("txtImport1")) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(gridStep / 2);
    grid_->setVerticalSpacing(2);
    addHeads();
    addMonths();
    addYear();
    // Whichever of them holds the field, which would take more.
    for (int column = 1; column < 4; ++column) grid_->setColumnStretch(column, 1);
    constexpr int figures = 9;
    static_cast<FieldEdit*>(field_)->setFigures(figures);
    field_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    field_->setFont(figureFont(field_->font()));
    placeField();
    bind_.onSettled([this] { placeField(); });
}

QLabel* MonthTable::label(const std::string& name, int row, int column, bool figure) {
    auto* label = static_cast<QLabel*>(bind_.widget(name));
    if (figure) {
        label->setFont(figureFont(label->font()));
        label->setMinimumWidth(cellWidth);
        label->setContentsMargins(6, 2, 6, 2);
    }
    // Figures and their heads stand at the right of their columns in every language.
    label->setAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight | Qt::AlignAbsolute) |
                        Qt::AlignVCenter);
    grid_->addWidget(label, row, column);
    return label;
}

void MonthTable::addHeads() {
    for (int column = 0; column < 4; ++column) {
        QLabel* head = label("lblTitle(" + std::to_string(column) + ")", titleRow, column, false);
        QFont font = head->font();
        font.setWeight(QFont::DemiBold);
        head->setFont(font);
    }
    mute(label("lblTitle(5)", unitTitleRow, 1, false));
    mute(label("lblTitle(7)", unitTitleRow, 2, false));
}

void MonthTable::addMonths() {
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        const int row = firstMonthRow + static_cast<int>(month);
        label(elementName("lblEqvHours", month), row, 0, false);
        int column = 1;
        for (const char* stem : {"lblTotal", "lblPeak", "lblPLF"})
            label(elementName(stem, month), row, column++, true);
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

/// The field shares the cell of the layout with the label that it stands over, and is called as it.
void MonthTable::placeField() {
    const auto* form = static_cast<const frmImport1*>(bind_.form());
    if (form == nullptr) return;
    dressField();
    field_->setAccessibleName(qt(bind_.spokenName(form->control("txtImport1"))));
    const frmImport1::Cell& cell = form->cell();
    const int row = firstMonthRow + static_cast<int>(cell.month);
    const int column = cell.column == frmImport1::Column::total ? 1 : 2;
    if (row == row_ && column == column_) return;
    row_ = row;
    column_ = column;
    grid_->removeWidget(field_);
    grid_->addWidget(field_, row, column);
    field_->raise();
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
    if (field_->styleSheet() == style) return;
    field_->setStyleSheet(style);
    // So that no row grows when the field comes.
    for (int row = firstMonthRow; row < totalRow; ++row)
        grid_->setRowMinimumHeight(row, field_->minimumSizeHint().height());
}

void MonthTable::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) placeField();
}

}  // namespace varnholt
