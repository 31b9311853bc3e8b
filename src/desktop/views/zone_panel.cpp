// SPDX-License-Identifier: GPL-3.0-or-later
// Loads and heat pump of the zone on display.
#include <QLabel>

#include "desktop/drawings/drawings.h"
#include "desktop/views/loads_pieces.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/text_label.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

FieldRow unitRow(Binder& bind, const char* cooling, const char* heating) {
    FieldRow row;
    for (const char* name : {cooling, heating}) {
        auto* unit = static_cast<QLabel*>(bind.widget(name));
        mute(unit);
        // Below the heads, whichever way the language reads.
        unit->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
        row.fields.push_back(unit);
    }
    return row;
}

FieldRow blockRow(Binder& bind, std::size_t block) {
    FieldRow row;
    row.caption = bind.widget(elementName("LOTimeLabel", block));
    for (const Mode mode : modes) {
        const std::string field = elementName("LOGainsText", block + mode * timeBlocks);
        row.fields.push_back(bind.widget(field));
        bind.mark(field, mode);
    }
    return row;
}

/// A block of a spreadsheet goes on over the loads, the hours and the days.
void takeBlocks(Binder& bind) {
    std::vector<std::vector<std::string>> rows;
    for (std::size_t block = 0; block < timeBlocks; ++block)
        rows.push_back(
            {elementName("LOGainsText", block), elementName("LOGainsText", block + timeBlocks)});
    rows.push_back({elementName("LOHoursText", 0), elementName("LOHoursText", 1)});
    rows.push_back({"LODaysperWeekText"});
    bind.block(std::move(rows));
}

QWidget* loads(Binder& bind) {
    takeBlocks(bind);
    Drawing* bars = newLoadsBars(
        [&bind] {
            const ZoneWindow* window = zoneWindowOf(bind);
            return window == nullptr ? LoadsChart() : window->loadsChart();
        },
        [&bind] { return loadsCaptions(bind); }, bind.form()->texts());
    return group(
        bind.frame("LODesignLoadsFrame"),
        reflow(
            column(grid(bind.row("LOZoneReferenceText"), bind.wide(bind.widget("LOLoadsLabel(0)")),
                        headRow(bind, "LOTimeOfDayLabel", "LOHeatGainsLabel", "LOHeatLossesLabel"),
                        unitRow(bind, "LOHeatGainsUnitLabel", "LOHeatLossesUnitLabel"),
                        blockRow(bind, 0), blockRow(bind, 1), blockRow(bind, 2), blockRow(bind, 3),
                        bind.pair("LOHoursText"), bind.row("LODaysperWeekText")),
                   buttons(bind.widget("LOEqvHoursCommand"))),
            grow(bind.drawing("LOLoadsChart", bars))));
}

/// A number of pumps, which leaves the line to their name.
void narrow(QWidget* field) {
    constexpr int figures = 6;
    field->setFont(figureFont(field->font()));
    static_cast<FieldEdit*>(field)->setFigures(figures);
}

FieldRow pumpName(Binder& bind) {
    const FieldRow units = bind.row("LONumberOfUnitsText(1)");
    narrow(units.fields.front());
    FieldRow row = bind.row("LOPumpNameText");
    row.more = {units.caption, units.fields.front()};
    return row;
}

QWidget* specifications(Binder& bind) {
    // Else a long title would keep the panel from standing beside the loads.
    constexpr int widestTitle = 47 * gridStep;
    GroupBox* frame = bind.frame("LOSpecificationsFrame");
    frame->breakTitleBeyond(widestTitle);
    return group(frame, grid(pumpName(bind)),
                 grid(headRow(bind, nullptr, "LOCoolingLabel", "LOHeatingLabel"),
                      bind.pair("LOCapacityText"), bind.pair("LOPowerText"), bind.pair("LOCOPText"),
                      bind.pair("LOFlowRateText"), bind.pair("LOPLFText")));
}

QWidget* pumpCommands(Binder& bind) {
    return buttons(bind.widget("LOSelectCommand"), ifAny(bind, "LOAutoSelectCommand"),
                   bind.widget("LODetailsCommand"), bind.widget("LOClearPumpsCommand"),
                   bind.widget("LOCustomPumpCheck"));
}

QWidget* selectionFields(Binder& bind) {
    narrow(bind.widget("LONumberOfUnitsText(0)"));
    return column(
        reflow(grid(bind.row("LOMfgCombo"), bind.row("LOSeriesCombo")),
               grow(grid(bind.row("LOPumpNameCombo"), bind.row("LONumberOfUnitsText(0)")))),
        buttons(bind.primary("LOSelectPumpCommand"), bind.widget("LOCancelCommand")));
}

QWidget* selection(Binder& bind) {
    revealWhenOpened(bind.frame("LOSelectFrame"));
    return bind.panel("LOSelectFrame", [&bind] { return selectionFields(bind); });
}

FieldRow detail(Binder& bind, std::size_t index) {
    FieldRow row;
    row.caption = bind.widget(elementName("LODetailsLabel", index));
    row.fields = {bind.widget(elementName("LODetailsTextLabel", index))};
    return row;
}

/// Temperature and flow of one kind of load side.
QWidget* loadSide(Binder& bind, const char* frame, std::size_t first) {
    const auto row = [&](const char* field) {
        FieldRow both = bind.row(elementName(field, first));
        both.fields.push_back(bind.widget(elementName(field, first + 1)));
        bind.mark(elementName(field, first), cooling).mark(elementName(field, first + 1), heating);
        return both;
    };
    return group(bind.frame(frame),
                 grid(bind.heads(elementName("LOInletLoadsModeLabel", first),
                                 elementName("LOInletLoadsModeLabel", first + 1)),
                      row("LOInletLoadsTempText"), row("LOInletLoadsFlowText")));
}

QWidget* detailsFields(Binder& bind) {
    return column(
        reflow(grid(detail(bind, 0), detail(bind, 1), detail(bind, 2)),
               column(loadSide(bind, "LOInletAirFrame", 0), loadSide(bind, "LOInletWaterFrame", 2)),
               grow(column(grid(bind.row("LONominalFlowText"))))),
        buttons(bind.widget("LOReturnCommand")));
}

QWidget* details(Binder& bind) {
    revealWhenOpened(bind.frame("LODetailsFrame"));
    return bind.panel("LODetailsFrame", [&bind] { return detailsFields(bind); });
}

/// What is to be checked in the zone on display.
std::vector<std::string> warningsOnDisplay(const Binder& bind) {
    const ZoneWindow* window = zoneWindowOf(bind);
    const int zone = window == nullptr ? -1 : window->selectedZone();
    if (zone < 0 || static_cast<std::size_t>(zone) >= window->ZoneList().size()) return {};
    return window->warningsOfZone(static_cast<std::size_t>(zone));
}

}  // namespace

QWidget* zonePanel(Binder& bind) {
    return group(
        bind.frame("LOZoneFrame"),
        reflow(grow(loads(bind), 3),
               grow(column(specifications(bind), pumpCommands(bind),
                           warningLines(bind, [&bind] { return warningsOnDisplay(bind); })),
                    2)),
        selection(bind), details(bind));
}

}  // namespace varnholt
