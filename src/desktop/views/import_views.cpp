// SPDX-License-Identifier: GPL-3.0-or-later
// The importer, and the preview of a table.
#include <QAbstractItemView>

#include "desktop/drawings/drawings.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/month_table.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "loads/import/frmImport1.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

const frmImport1* importerOf(const Binder& bind) {
    return static_cast<const frmImport1*>(bind.form());
}

QWidget* caption(Binder& bind, const char* name) {
    QWidget* label = bind.widget(name);
    mute(label);
    return label;
}

QWidget* importCommands(Binder& bind) {
    return bar(column(buttons(bind.iconButton("cmdImport(2)", QStringLiteral("open")),
                              bind.iconButton("cmdImport(5)", QStringLiteral("table")),
                              bind.iconButton("cmdImport(3)", QStringLiteral("paste")),
                              bind.widget("cmdImport(0)")),
                      buttons(bind.widget("cmdCoolHeat(0)"), bind.widget("cmdCoolHeat(1)"),
                              bind.widget("MetricCheck"),
                              row_(caption(bind, "lblTitle(4)"), bind.widget("lblTitle(9)")),
                              row_(caption(bind, "lblTitle(8)"), bind.widget("lblTitle(10)")))));
}

QWidget* importedYearFields(Binder& bind) {
    return bind.drawing("imgMonths", newMonthsPicture(
                                         [&bind] {
                                             const frmImport1* form = importerOf(bind);
                                             return form == nullptr ? MonthsChart()
                                                                    : form->monthsChart();
                                         },
                                         bind.form()->texts()));
}

LoadsCaptions dayCaptions(const Binder& bind) {
    const frmImport1* form = importerOf(bind);
    return form == nullptr ? LoadsCaptions() : loadsCaptions(form->units(), form->texts());
}

QWidget* transfer(Binder& bind) {
    Drawing* day = newLoadsBars(
        [&bind] {
            const frmImport1* form = importerOf(bind);
            return form == nullptr ? LoadsChart() : form->dayChart();
        },
        [&bind] { return dayCaptions(bind); }, bind.form()->texts());
    return group(bind.frame("fraTransfer"), wrapped(bind.widget("lblTransferTarget")),
                 row_(bind.widget("optDesignDay(0)"), bind.widget("optDesignDay(1)"), stretch()),
                 grow(bind.drawing("imgDesignDay", day)), wrapped(bind.widget("lblNotLookedAt(0)")),
                 wrapped(bind.widget("lblNotLookedAt(1)")),
                 row_(stretch(), bind.primary("cmdImport(4)")));
}

QWidget* rows(Binder& bind) {
    auto* list = static_cast<ListView*>(bind.widget("TIRowsList"));
    list->setHeads({qt(bind.text(Text::tableLineHead)), qt(bind.text(Text::tableDateHead)),
                    qt(bind.text(Text::cooling)), qt(bind.text(Text::heating))});
    constexpr int listWidth = 320, listHeight = 260;
    list->setMinimumSize(listWidth, listHeight);
    return column(bind.widget("TIRowsLabel"), grow(list));
}

QWidget* choices(Binder& bind) {
    return column(
        grid(bind.row("TILayoutCombo"), bind.row("TISeparatorCombo"), bind.row("TIDecimalCombo"),
             bind.row("TIUnitCombo"), bind.row("TIDateColumnCombo"),
             bind.row("TICoolingColumnCombo"), bind.row("TIHeatingColumnCombo")),
        bind.widget("TISignCheck"), stretch());
}

}  // namespace

QWidget* makeImporterView(Binder& bind) {
    return roomy(column(importCommands(bind),
                        grow(new ScrollPage(page(column(
                            reflow(new MonthTable(bind), grow(column(grow(importedYearFields(bind)),
                                                                     grow(transfer(bind))))),
                            row_(stretch(), bind.widget("cmdImport(1)"))))))),
                 {135 * gridStep, 720});
}

QWidget* makeImportTableView(Binder& bind) {
    return page(column(
        row_(bind.widget("TISourceLabel"), stretch(),
             bind.iconButton("TIOpenCommand", QStringLiteral("open")),
             bind.iconButton("TIPasteCommand", QStringLiteral("paste"))),
        grow(reflow(choices(bind), grow(rows(bind)))), wrapped(bind.widget("TIMessageLabel")),
        row_(stretch(), bind.primary("TIImportCommand"), bind.widget("TICancelCommand"))));
}

}  // namespace varnholt
