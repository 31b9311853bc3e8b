// SPDX-License-Identifier: GPL-3.0-or-later
// The Zone Manager: the list of zones with the zone on display, the building's summary, and the
// heat pumps.
#include <QAbstractItemView>
#include <QStyledItemDelegate>
#include <QTabWidget>

#include "desktop/drawings/drawings.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "desktop/widgets/column_heads.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/stacking_split.h"
#include "forms/text_numbers/feedback.h"
#include "loads/frmZoneManage.h"

namespace varnholt {
namespace {

/// Of the table of the summary: its lines with the zones' labels, and seven zones of them.
constexpr int summaryWidth = 545, summaryHeight = 290;

/// Lines come in pairs, a zone's cooling and its heating: told by the colours of the modes.
class ModeLines : public QStyledItemDelegate {
 public:
    ModeLines(Binder& bind, QObject* parent) : QStyledItemDelegate(parent), bind_(bind) {}

 protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const Look& look = lookOf(option->palette);
        option->palette.setColor(QPalette::Text,
                                 index.row() % 2 == 0 ? look.cooling : look.heating);
        const auto* window = static_cast<const frmZoneManage*>(bind_.form());
        if (window != nullptr && index.row() % 2 == 0)
            option->text += behindLine(*window, static_cast<std::size_t>(index.row()));
    }

 private:
    /// A zone's label, and that there is something to be checked.
    static QString behindLine(const frmZoneManage& window, std::size_t line) {
        const std::size_t zone = frmZoneManage::zoneOfSummaryLine(line);
        if (zone >= window.ZoneList().size()) return {};
        QString told = QStringLiteral("  ") + qt(window.ZoneList()[zone].title);
        if (!window.warningsOfZone(zone).empty())
            told += QStringLiteral("  \u25B2 ") + qt(window.text(Text::zoneWarned));
        return told;
    }

    Binder& bind_;
};

void colourModes(Binder& bind, QWidget* list) {
    static_cast<QAbstractItemView*>(list)->setItemDelegate(new ModeLines(bind, list));
}

/// Scrolls to the zone on display, which stands below the summary.
void showZone(const Binder& bind) {
    bringToSight(bind.find("LOZoneReferenceText")->widget());
    reveal(bind.find("LOZoneFrame")->widget());
}

/// A zone that is clicked in the list while the summary is open is to be seen.
void showClickedZones(Binder& bind) {
    auto* list = static_cast<ListView*>(bind.widget("LOZoneList"));
    QObject::connect(list, &QAbstractItemView::clicked, list, [&bind] {
        const Form* form = bind.form();
        if (form != nullptr && form->control("LOSummaryPicture").visible()) showZone(bind);
    });
}

/// A line of the summary opens its zone.
void openZones(Binder& bind) {
    static_cast<ListView*>(bind.widget("LOZoneSummaryList"))->onOpened = [&bind](int line) {
        const auto zone =
            static_cast<int>(frmZoneManage::zoneOfSummaryLine(static_cast<std::size_t>(line)));
        bind.act(*bind.find("LOZoneList"),
                 [zone](Form& form, const std::string& name) { form.select(name, {zone}); });
        showZone(bind);
    };
}

/// Captions over the columns of the summary's lines: 3 characters for the zone, 8 for the pump, 2
/// for its units, 6 for each load, 7, 5, 6 and 4 for the pump's figures.
QWidget* summaryHeads(Binder& bind) {
    const auto label = [&](int index) {
        return bind.widget("LOSummaryLabel(" + std::to_string(index) + ")");
    };
    return new ColumnHeads(bind.widget("LOZoneSummaryList"), {{label(0), -1, 3, 1, true},
                                                              {label(1), 3, 11, 1, true},
                                                              {label(2), 13, 37, 0},
                                                              {label(3), 14, 19},
                                                              {label(4), 20, 25},
                                                              {label(5), 26, 31},
                                                              {label(6), 32, 37},
                                                              {label(7), 38, 44, 0},
                                                              {label(8), 38, 44},
                                                              {label(9), 45, 49, 0},
                                                              {label(10), 45, 49},
                                                              {label(11), 50, 55, 0},
                                                              {label(12), 50, 55},
                                                              {label(13), 56, 59}});
}

FieldRow total(Binder& bind, const std::string& name) {
    FieldRow row = bind.figure(name + "TitleLabel", name + "Label(0)");
    row.fields.push_back(bind.figure(name + "TitleLabel", name + "Label(1)").fields.front());
    return row;
}

QWidget* totals(Binder& bind) {
    return column(grid(bind.heads("LOSummaryModeLabel(0)", "LOSummaryModeLabel(1)"),
                       total(bind, "LOTotalCapacity"), total(bind, "LOPeakLoad"),
                       total(bind, "LOPeakDemand"), total(bind, "LOPumpCOP"),
                       total(bind, "LOPeakLoadPeriod")));
}

QStringList qtList(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) list << qt(text);
    return list;
}

/// Copied, the summary has a cell for each of its figures.
void giveTable(Binder& bind) {
    const auto window = [&bind] { return static_cast<const frmZoneManage*>(bind.form()); };
    static_cast<ListView*>(bind.widget("LOZoneSummaryList"))
        ->setCells({[window](int row) {
                        return qtList(window()->summaryTableCells(static_cast<std::size_t>(row)));
                    },
                    [window] { return qtList(window()->summaryTableHeads()); }});
}

QWidget* summaryFields(Binder& bind) {
    Drawing* day = newDayChart(
        [&bind] {
            const auto* window = static_cast<const frmZoneManage*>(bind.form());
            return window == nullptr ? LoadsChart() : window->buildingDayChart();
        },
        [&bind] { return loadsCaptions(bind); }, bind.form()->texts());
    bind.widget("LOZoneSummaryList")->setMinimumSize(summaryWidth, summaryHeight);
    colourModes(bind, bind.fixedPitch("LOZoneSummaryList"));
    openZones(bind);
    giveTable(bind);
    return column(
        grow(reflow(column(summaryHeads(bind), grow(bind.widget("LOZoneSummaryList"))),
                    grow(column(totals(bind), grow(bind.drawing("LOBuildingDayChart", day)))))),
        buttons(bind.widget("LOReturnFromSummaryCommand")));
}

QWidget* summary(Binder& bind) {
    revealWhenOpened(bind.frame("LOSummaryPicture"));
    return bind.panel("LOSummaryPicture", [&bind] { return summaryFields(bind); });
}

/// The summary above the zone, where it is seen as soon as it opens. In a narrow window its table
/// needs the place of the list, which then stands above it.
QWidget* zonesPage(Binder& bind) {
    constexpr double listPart = 0.22;
    auto* zone = new ScrollPage(
        column(firstZone(bind, Text::noZonesYet), grow(summary(bind)), zonePanel(bind)));
    QWidget* list = zoneList(bind);
    showClickedZones(bind);
    revealWhenClosed(bind.frame("LOSummaryPicture"), bind.frame("LOZoneFrame"));
    return column(grow(besidePage(list, zone, listPart)));
}

}  // namespace

QWidget* makeZoneManagerView(Binder& bind) {
    return loadsWindow(bind, bind.tabs("tabLoads", {[&bind] { return page(zonesPage(bind)); },
                                                    [&bind] { return page(heatPumpPage(bind)); }}));
}

}  // namespace varnholt
