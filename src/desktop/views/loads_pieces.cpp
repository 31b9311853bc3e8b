// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/loads_pieces.h"

#include <QAbstractItemView>
#include <QLabel>

#include "desktop/drawings/drawings.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/qt_text.h"
#include "forms/quantity.h"
#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

const ZoneWindow* windowOf(const Binder& bind) {
    return static_cast<const ZoneWindow*>(bind.form());
}

QWidget* ifAny(Binder& bind, const std::string& name) {
    return bind.has(name) ? bind.widget(name) : nullptr;
}

QWidget* withIcon(Binder& bind, const std::string& name, const char* icon) {
    return bind.has(name) ? bind.iconButton(name, QString::fromLatin1(icon)) : nullptr;
}

/// "kW" of "(kW)".
std::string withoutBrackets(const std::string& unit) {
    if (unit.size() < 2 || unit.front() != '(' || unit.back() != ')') return unit;
    return unit.substr(1, unit.size() - 2);
}

FieldRow headRow(Binder& bind, const char* caption, const char* cooling, const char* heating) {
    FieldRow row = bind.heads(cooling, heating);
    if (caption != nullptr) row.caption = bind.widget(caption);
    return row;
}

FieldRow unitRow(Binder& bind, const char* cooling, const char* heating) {
    FieldRow row;
    for (const char* name : {cooling, heating}) {
        auto* unit = static_cast<QLabel*>(bind.widget(name));
        unit->setProperty("unit", true);
        unit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        row.fields.push_back(unit);
    }
    return row;
}

FieldRow blockRow(Binder& bind, int block) {
    const auto name = [](const char* control, int index) {
        return std::string(control) + "(" + std::to_string(index) + ")";
    };
    FieldRow row;
    row.caption = bind.widget(name("LOTimeLabel", block));
    row.fields = {bind.widget(name("LOGainsText", block)),
                  bind.widget(name("LOGainsText", block + static_cast<int>(timeBlocks)))};
    bind.mark(name("LOGainsText", block), cooling);
    bind.mark(name("LOGainsText", block + static_cast<int>(timeBlocks)), heating);
    return row;
}

FieldRow hoursRow(Binder& bind) {
    FieldRow row = bind.pair("LOHoursText");
    row.caption = bind.widget("LOLoadsLabel(1)");
    return row;
}

QWidget* loads(Binder& bind) {
    Drawing* bars = newLoadsBars(
        [&bind] {
            const ZoneWindow* window = windowOf(bind);
            return window == nullptr ? LoadsChart() : window->loadsChart();
        },
        [&bind] { return loadsCaptions(bind); }, bind.form()->texts());
    return group(
        bind.frame("LODesignLoadsFrame"),
        row_(column(grid(bind.row("LOZoneReferenceText"), bind.wide(bind.widget("LOLoadsLabel(0)")),
                         headRow(bind, "LOTimeOfDayLabel", "LOHeatGainsLabel", "LOHeatLossesLabel"),
                         unitRow(bind, "LOHeatGainsUnitLabel", "LOHeatLossesUnitLabel"),
                         blockRow(bind, 0), blockRow(bind, 1), blockRow(bind, 2), blockRow(bind, 3),
                         hoursRow(bind), bind.row("LODaysperWeekText")),
                    buttons(bind.widget("LOEqvHoursCommand"))),
             grow(bind.drawing("LOLoadsChart", bars))));
}

FieldRow pumpName(Binder& bind) {
    const FieldRow units = bind.row("LONumberOfUnitsText(1)");
    FieldRow row = bind.row("LOPumpNameText");
    row.more = {units.caption, units.fields.front()};
    return row;
}

QWidget* specifications(Binder& bind) {
    return group(bind.frame("LOSpecificationsFrame"), grid(pumpName(bind)),
                 grid(headRow(bind, nullptr, "LOCoolingLabel", "LOHeatingLabel"),
                      bind.pair("LOCapacityText"), bind.pair("LOPowerText"), bind.pair("LOCOPText"),
                      bind.pair("LOFlowRateText"), bind.pair("LOPLFText")));
}

QWidget* pumpCommands(Binder& bind) {
    return buttons(bind.widget("LOSelectCommand"), ifAny(bind, "LOAutoSelectCommand"),
                   bind.widget("LODetailsCommand"), bind.widget("LOClearPumpsCommand"),
                   bind.widget("LOCustomPumpCheck"));
}

/// A number that the form keeps as text.
void narrow(QWidget* field) {
    constexpr int figures = 6;
    field->setFont(figureFont(field->font()));
    static_cast<FieldEdit*>(field)->setFigures(figures);
}

QWidget* selection(Binder& bind) {
    narrow(bind.widget("LONumberOfUnitsText(0)"));
    FieldRow model = bind.row("LOPumpNameCombo");
    model.caption = bind.widget("LOPumpNameComboLabel");
    revealWhenOpened(bind.frame("LOSelectFrame"));
    return group(bind.frame("LOSelectFrame"),
                 row_(grid(bind.row("LOMfgCombo"), bind.row("LOSeriesCombo")), gap(),
                      grid(model, bind.row("LONumberOfUnitsText(0)")), stretch()),
                 buttons(bind.primary("LOSelectPumpCommand"), bind.widget("LOCancelCommand")));
}

FieldRow detail(Binder& bind, int index) {
    const std::string element = "(" + std::to_string(index) + ")";
    FieldRow row;
    row.caption = bind.widget("LODetailsLabel" + element);
    row.fields = {bind.widget("LODetailsTextLabel" + element)};
    return row;
}

/// Temperature and flow of one kind of load side.
QWidget* loadSide(Binder& bind, const char* frame, int first) {
    const auto element = [](const char* name, int index) {
        return std::string(name) + "(" + std::to_string(index) + ")";
    };
    const auto row = [&](const char* field) {
        FieldRow both = bind.row(element(field, first));
        both.fields.push_back(bind.widget(element(field, first + 1)));
        bind.mark(element(field, first), cooling).mark(element(field, first + 1), heating);
        return both;
    };
    return group(bind.frame(frame), grid(bind.heads(element("LOInletLoadsModeLabel", first),
                                                    element("LOInletLoadsModeLabel", first + 1)),
                                         row("LOInletLoadsTempText"), row("LOInletLoadsFlowText")));
}

QWidget* details(Binder& bind) {
    revealWhenOpened(bind.frame("LODetailsFrame"));
    return group(
        bind.frame("LODetailsFrame"),
        row_(grid(detail(bind, 0), detail(bind, 1), detail(bind, 2)), gap(),
             column(loadSide(bind, "LOInletAirFrame", 0), loadSide(bind, "LOInletWaterFrame", 2)),
             gap(), grid(bind.row("LONominalFlowText")), stretch()),
        buttons(bind.widget("LOReturnCommand")));
}

QWidget* conditions(Binder& bind) {
    bind.mark("HPLoadInletText(0)", cooling).mark("HPLoadInletText(1)", heating);
    bind.mark("HPLoadInletText(2)", cooling).mark("HPLoadInletText(3)", heating);
    return group(bind.frame("HPDesignFrame"),
                 grid(headRow(bind, nullptr, "HPCoolingLabel", "HPHeatingLabel"),
                      bind.pair("LOInletTempText"), bind.row("FLFlowRateText")),
                 group(bind.frame("HPInletAirFrame"),
                       grid(bind.row("HPLoadInletText(0)"), bind.row("HPLoadInletText(1)"))),
                 group(bind.frame("HPInletWaterFrame"),
                       grid(bind.row("HPLoadInletText(2)"), bind.row("HPLoadInletText(3)"))));
}

PumpPicture pumpPicture(const Binder& bind) {
    PumpPicture picture;
    const ZoneWindow* window = windowOf(bind);
    if (window == nullptr) return picture;
    picture.pump = window->pumpChart();
    const bool metric = window->units() == UnitSystem::metric;
    for (const Mode mode : modes)
        picture.designWater[mode] =
            quantities::temperature.shown(window->inletTemp[mode], window->units());
    picture.temperatureUnit = metric ? bind.text(2879) : bind.text(2880);
    picture.capacityUnit = loadsCaptions(bind).unit;
    picture.powerUnit = withoutBrackets(bind.text(2823));
    return picture;
}

QWidget* catalogue(Binder& bind) {
    Drawing* curves = newPumpCurves([&bind] { return pumpPicture(bind); }, bind.form()->texts());
    return group(bind.frame("HPCatalogueFrame"),
                 grid(bind.row("HPManufacturerCombo"), bind.row("HPSeriesCombo")),
                 bind.widget("HPPumpListLabel"),
                 grow(row_(named(bind, "HPPumpList", "HPPumpListLabel"),
                           grow(bind.drawing("LOPumpChart", curves)))));
}

}  // namespace

LoadsCaptions loadsCaptions(const Binder& bind) {
    const ZoneWindow* window = windowOf(bind);
    if (window == nullptr) return {};
    const bool metric = window->units() == UnitSystem::metric;
    return {{bind.text(2881), bind.text(2882), bind.text(2883), bind.text(2884)},
            withoutBrackets(metric ? bind.text(2823) : bind.text(2822))};
}

QWidget* loadsBar(Binder& bind) {
    return bar(column(
        buttons(bind.widget("LONewCommand"), ifAny(bind, "LOCopyCommand"),
                ifAny(bind, "LORemoveCommand"), ifAny(bind, "LORenumberCommand"),
                bind.widget("LOClearCommand"), ifAny(bind, "LOSummaryCommand"),
                withIcon(bind, "LOOpenCommand", "open"), withIcon(bind, "LOSaveCommand", "save"),
                withIcon(bind, "LOPrintCommand", "print"), bind.widget("LOImportCommand"),
                ifAny(bind, "LOAutoSelectAllCommand"), bind.widget("LOUpdatePumpsCommand")),
        row_(bind.widget("MetricCheck"), stretch(), bind.widget("LOWorkingZoneLabel"),
             linkLights(bind))));
}

QWidget* zoneList(Binder& bind) {
    constexpr int listWidth = 136;
    auto* list = static_cast<QAbstractItemView*>(bind.widget("LOZoneList"));
    list->setFixedWidth(listWidth);
    list->setAccessibleName(qt(bind.text(2811)));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    return list;
}

QWidget* zonePanel(Binder& bind) {
    return group(bind.frame("LOZoneFrame"),
                 row_(grow(loads(bind), 3), gap(),
                      grow(column(specifications(bind), pumpCommands(bind)), 2)),
                 selection(bind), details(bind));
}

QWidget* heatPumpPage(Binder& bind) { return row_(conditions(bind), grow(catalogue(bind))); }

}  // namespace varnholt
