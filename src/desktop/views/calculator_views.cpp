// SPDX-License-Identifier: GPL-3.0-or-later
// The three calculators, and the question to which mode the hours go.
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/house_widgets.h"

namespace varnholt {
namespace {

/// The figure that the window was opened for is the largest thing in it.
FieldRow largeResult(Binder& bind, const char* field) {
    FieldRow row = bind.row(field);
    auto* edit = static_cast<FieldEdit*>(bind.widget(field));
    QFont font = edit->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setWeight(QFont::DemiBold);
    edit->setFont(font);
    edit->setFigures(8);
    return row;
}

QWidget* units(Binder& bind) { return row_(bind.widget("MetricCheck"), stretch()); }

std::vector<FieldRow> months(Binder& bind, int first, int last) {
    std::vector<FieldRow> rows;
    for (int month = first; month <= last; ++month)
        rows.push_back(bind.row("txtEqvHours(" + std::to_string(month) + ")"));
    return rows;
}

}  // namespace

QWidget* makeDiffusivityView(Binder& bind) {
    return page(column(units(bind),
                       group(bind.frame("fraDiffCalc"),
                             grid(bind.row("txtDiffCalc(0)"), bind.row("txtDiffCalc(1)"),
                                  bind.row("txtDiffCalc(2)"), bind.row("txtDiffCalc(3)")),
                             rule(), grid(largeResult(bind, "txtDiffCalc(4)"))),
                       row_(bind.widget("cmdSoilTables"), stretch(), bind.widget("cmdClose"))));
}

QWidget* makePumpPowerView(Binder& bind) {
    return page(column(units(bind),
                       group(bind.frame("fraPumpPower"),
                             grid(bind.row("txtPumpPowerCalc(1)"), bind.row("txtPumpPowerCalc(2)"),
                                  bind.row("txtPumpPowerCalc(3)")),
                             rule(), grid(largeResult(bind, "txtPumpPowerCalc(0)"))),
                       row_(stretch(), bind.widget("cmdClose"))));
}

QWidget* makeEqvHoursView(Binder& bind) {
    return page(column(
        units(bind),
        group(bind.frame("fraEqvHours"), grid(bind.row("txtEqvHours(0)")),
              bind.widget("lblMonthlyLoads"),
              row_(gridOf(months(bind, 1, 6)), gap(), gridOf(months(bind, 7, 12)), stretch()),
              rule(), grid(largeResult(bind, "txtEqvHours(13)"))),
        row_(stretch(), bind.primary("cmdCalculate"), bind.widget("cmdClear"),
             bind.widget("cmdClose"))));
}

QWidget* makeTransferOptionsView(Binder& bind) {
    return page(column(group(bind.frame("fraTransferOption"), bind.widget("lblTransferSelect"),
                             bind.widget("optMode(0)"), bind.widget("optMode(1)")),
                       row_(stretch(), bind.primary("cmdSelect"), bind.widget("cmdCancel"))));
}

}  // namespace varnholt
