// SPDX-License-Identifier: GPL-3.0-or-later
// The heat pump editor: lists and commands above, the pumps at the left of the pages.
#include <QAbstractItemView>
#include <QLabel>
#include <QTabWidget>

#include "catalogue/editor/frmHPEdit.h"
#include "desktop/views/pump_editor_pages.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/stacking_split.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/heat_pump_editor.h"

namespace varnholt {
namespace {

QWidget* editorCommands(Binder& bind) {
    return buttons(
        bind.widget("NewCommand"), bind.widget("CopyCommand"), bind.widget("RemoveCommand"),
        bind.widget("ReorderCommand"), bind.widget("ClearCommand"), bind.widget("SummaryCommand"),
        bind.iconButton("SaveCommand", QStringLiteral("save")), bind.widget("EditSeriesCommand"),
        bind.widget("DeleteSeriesCommand"), bind.widget("ExitCommand"));
}

QWidget* lists(Binder& bind) {
    return reflow(grow(grid(bind.row("MfgCombo"))), grow(grid(bind.row("SeriesCombo"))),
                  bind.widget("MetricCheck"));
}

QWidget* nothing(Binder& bind) {
    return group(bind.frame("NoInfoPicture"), bind.widget("NoPumpInfoLabel"),
                 hint(bind, Text::pumpEditorHint, [] { return true; }));
}

FieldRow line(Binder& bind, const char* stem, std::size_t index) {
    return bind.row(elementName(stem, index));
}

QWidget* information(Binder& bind) {
    FieldRow date;
    date.caption = bind.widget("SeriesInfoDTLabel");
    date.fields = {bind.widget("SeriesInfoDTPicker")};
    QWidget* inside = group(
        bind.frame("InsidePumpInfoPicture"),
        grid(line(bind, "ManufacturerAddressText", 0), line(bind, "ManufacturerAddressText", 1),
             line(bind, "ManufacturerAddressText", 2), line(bind, "ManufacturerAddressText", 3),
             line(bind, "ManufacturerAddressText", 4), line(bind, "SeriesInfoText", 0),
             line(bind, "SeriesInfoText", 1), date),
        buttons(bind.primary("ProceedCommand")));
    constexpr int widest = 80 * gridStep;
    inside->setMaximumWidth(widest);
    return group(bind.frame("PumpInfoPicture"), grid(bind.row("SelectMfgCombo")), inside,
                 buttons(bind.widget("CancelCommand")), stretch());
}

QWidget* pumpNames(Binder& bind) {
    constexpr int listWidth = 168;
    auto* list = static_cast<QAbstractItemView*>(bind.widget("PumpNamesList"));
    list->setMinimumWidth(listWidth);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QWidget* label = bind.widget("PumpNamesLabel");
    mute(label);
    return column(label, grow(list));
}

QWidget* data(Binder& bind) {
    QWidget* pages =
        bind.tabs("PumpDataTabs", {[&bind] { return page(pumpDetailsPage(bind)); },
                                   [&bind] { return page(ratingPageOf(bind, cooling)); },
                                   [&bind] { return page(ratingPageOf(bind, heating)); },
                                   [&bind] { return page(correctionPageOf(bind, byTemperature)); },
                                   [&bind] { return page(correctionPageOf(bind, byFlow)); },
                                   [&bind] { return page(pumpTestPage(bind)); }});
    auto* place = new QWidget;
    GroupBox* card = bind.frame("PumpDataPicture");
    // The cards of the pages have edges of their own.
    card->setLow();
    QWidget* frame = group(card, grow(place));
    // Behind the frame's back, so that the page that is built first is a card as the others are.
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    // The widest of the pages holds the factors of both modes side by side.
    constexpr int widestPage = 82 * gridStep;
    auto* split = new StackingSplit(pumpNames(bind), pages, [] { return widestPage; });
    split->setStretchFactor(1, 1);
    layout->addWidget(split);
    return frame;
}

}  // namespace

QWidget* makePumpEditorView(Binder& bind) {
    return roomy(column(bar(column(lists(bind), row_(editorCommands(bind), grow(noticeBar(bind))))),
                        grow(nothing(bind)), grow(information(bind)), grow(data(bind))),
                 {1240, 700});
}

}  // namespace varnholt
