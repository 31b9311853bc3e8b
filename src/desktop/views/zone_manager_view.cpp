// SPDX-License-Identifier: GPL-3.0-or-later
// The Zone Manager: the list of zones with the zone on display, the building's summary, and the
// heat pumps.
#include <QLabel>
#include <QTabWidget>

#include "desktop/drawings/drawings.h"
#include "desktop/views/column_heads.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"
#include "loads/frmZoneManage.h"

namespace varnholt {
namespace {

/// Captions over the columns of the summary's lines: 3 characters for the zone, 8 for the pump, 2
/// for its units, 6 for each load, 7, 5, 6 and 4 for the pump's figures.
QWidget* summaryHeads(Binder& bind) {
    const auto label = [&](int index) {
        return bind.widget("LOSummaryLabel(" + std::to_string(index) + ")");
    };
    return new ColumnHeads(bind.widget("LOZoneSummaryList"), {{label(0), 0, 3, 1, true},
                                                              {label(1), 4, 11, 1, true},
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

QWidget* summary(Binder& bind) {
    Drawing* day = newDayChart(
        [&bind] {
            const auto* window = static_cast<const frmZoneManage*>(bind.form());
            return window == nullptr ? LoadsChart() : window->buildingDayChart();
        },
        [&bind] { return loadsCaptions(bind); }, bind.form()->texts());
    return group(bind.frame("LOSummaryPicture"), summaryHeads(bind),
                 grow(bind.fixedPitch("LOZoneSummaryList")),
                 row_(totals(bind), grow(bind.drawing("LOBuildingDayChart", day))),
                 buttons(bind.widget("LOReturnFromSummaryCommand")));
}

QWidget* zonesPage(Binder& bind) {
    return row_(bind.widget("LOZoneList"), grow(column(zonePanel(bind), summary(bind))));
}

}  // namespace

QWidget* makeZoneManagerView(Binder& bind) {
    return column(loadsBar(bind),
                  grow(bind.tabs("tabLoads", {page(zonesPage(bind)), page(heatPumpPage(bind))})));
}

}  // namespace varnholt
