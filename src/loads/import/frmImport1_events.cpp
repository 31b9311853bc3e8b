// SPDX-License-Identifier: GPL-3.0-or-later
// The importer's events: typing, pasting, reading and transferring.
#include <algorithm>
#include <cmath>
#include <utility>

#include "basis/file_system.h"
#include "basis/number_text.h"
#include "basis/pasted_lines.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/quantity.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/import/design_day.h"
#include "loads/import/frmImport1.h"
#include "loads/import/frmImportTable.h"
#include "loads/import/simulation_dialog.h"
#include "loads/import/simulation_file.h"
#include "loads/modLoads/zone_window.h"
#include "tools/frmEqvHoursCalc.h"

namespace varnholt {
namespace {

/// Lines of the clipboard that count: those with a return at their end, at most twelve.
std::vector<std::string> pastedMonths(const std::string& clipboard) {
    std::vector<std::string> lines = pastedLines(clipboard).ended;
    lines.resize(std::min(lines.size(), monthsOfYear));
    return lines;
}

double& valueIn(MonthlyLoads& year, const frmImport1::Cell& cell) {
    return (cell.column == frmImport1::Column::total ? year.totalLoads
                                                     : year.peakLoads)[cell.month];
}

/// Pasted values are in stored units, but for peaks, which are in MBtu/hr.
void paste(MonthlyLoads& year, const frmImport1::Cell& cell, const std::string& text) {
    const std::optional<double> number = readPlainNumber(text);
    if (!number || !std::isfinite(*number * btuPerMBtu)) return;
    valueIn(year, cell) = cell.column == frmImport1::Column::total ? *number : *number * btuPerMBtu;
}

}  // namespace

void frmImport1::hookCommands() {
    onClick("cmdImport(0)", [this] { cmdClear_Click(); });
    onClick("cmdImport(1)", [this] { main().close(*this); });
    onClick("cmdImport(2)", [this] { ReadImportFile(); });
    onClick("cmdImport(3)", [this] { pasteTable(); });
    onClick("cmdImport(4)", [this] { cmdModify_Click(); });
    onClick("cmdImport(5)", [this] { importTable(); });
    onClick("cmdCoolHeat(0)", [this] { cmdCoolHeat_Click(cooling); });
    onClick("cmdCoolHeat(1)", [this] { cmdCoolHeat_Click(heating); });
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
}

void frmImport1::hookTable() {
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        onClick(elementName("lblTotal", month), [this, month] { place({Column::total, month}); });
        onClick(elementName("lblPeak", month), [this, month] { place({Column::peak, month}); });
    }
    onChange("txtImport1", [this] { txtImport1_Change(); });
    onKey("txtImport1", [this](const std::string& key) { txtImport1_KeyPress(key); });
    onLeave("txtImport1", [this] { showField(); });
}

void frmImport1::place(const Cell& cell) {
    endVisitOfField();
    cell_ = cell;
    showField();
    control("txtImport1").takeFocus();
}

/// Text that is no number leaves the old value.
void frmImport1::txtImport1_Change() {
    const std::optional<double> number = readPlainNumber(control("txtImport1").text());
    if (!number || !std::isfinite(*number * btuPerMBtu / kilowattsPerMBtu)) return;
    const double stored = quantities::load.stored(*number, units());
    const RaisedFlag typing(typing_);
    change([&](ImportedLoads& loads) {
        valueIn(loads.years[mode_], cell_) =
            cell_.column == Column::total ? stored : stored * btuPerMBtu;
        for (MonthlyLoads& year : loads.years) year.recompute();
        loads.peakDays.reset();
    });
}

void frmImport1::txtImport1_KeyPress(const std::string& key) {
    if (key == "Enter") goOn();
    if (key == "Ctrl+V") pasteColumn();
}

/// Down the totals, down the peaks, and out.
void frmImport1::goOn() {
    Cell next = cell_;
    if (++next.month < monthsOfYear) return place(next);
    if (cell_.column == Column::total) return place({Column::peak, 0});
    leave("txtImport1");
    control(control("cmdImport(4)").enabled() ? "cmdImport(4)" : "cmdImport(1)").takeFocus();
}

void frmImport1::pasteColumn() {
    const std::vector<std::string> lines = pastedMonths(platform().clipboard());
    change([&](ImportedLoads& loads) {
        for (std::size_t i = 0; i < lines.size() && cell_.month + i < monthsOfYear; ++i)
            paste(loads.years[mode_], {cell_.column, cell_.month + i}, lines[i]);
        for (MonthlyLoads& year : loads.years) year.recompute();
        loads.peakDays.reset();
    });
    control("txtImport1").setText({});
}

void frmImport1::cmdClear_Click() {
    change([](ImportedLoads& loads) { loads = {}; });
}

void frmImport1::pasteTable() {
    const std::vector<std::string> lines = pastedMonths(platform().clipboard());
    change([&](ImportedLoads& loads) {
        loads = {};
        for (std::size_t month = 0; month < lines.size(); ++month) {
            const std::string& line = lines[month];
            const std::size_t tab = std::min(line.find('\t'), line.size());
            const std::size_t end = std::min(line.find('\t', tab + 1), line.size());
            MonthlyLoads& year = loads.years[mode_];
            paste(year, {Column::total, month}, line.substr(0, tab));
            if (tab < line.size())
                paste(year, {Column::peak, month}, line.substr(tab + 1, end - tab - 1));
        }
        for (MonthlyLoads& year : loads.years) year.recompute();
    });
}

void frmImport1::ReadImportFile() {
    const std::optional<std::string> path = platform().chooseFile(simulationDialog(main()));
    if (!path) return;
    const SimulationFileType type = simulationFileType(*path);
    if (type == SimulationFileType::none) return tellNoSimulation(main(), *path);
    const ByMode<MonthlyLoads> years = coolingFirst(readSimulationFile(*path));
    change([&](ImportedLoads& loads) {
        loads = {years, baseNameOf(*path), static_cast<std::int16_t>(type), {}};
        for (MonthlyLoads& year : loads.years) year.recompute();
    });
}

void frmImport1::importTable() {
    std::optional<TableSource> source = tableOnClipboard(main());
    if (!source) source = chooseTable(main());
    if (!source) return;
    frmImportTable preview(main(), std::move(*source), units());
    main().runModal(preview);
    if (!preview.isImported() || !preview.reading().years) return;
    preselectEvenDay();
    change([&](ImportedLoads& loads) {
        loads = {*preview.reading().years, preview.sourceName(), 0, preview.reading().peakDays};
    });
}

/// The window that was active last of those that take what is imported.
ChildWindow* frmImport1::opener() const {
    return main().lastActive([](const ChildWindow& window) {
        return window.isLoads() || window.formName() == "frmEqvHoursCalc";
    });
}

/// Where the values would go, and as what.
void frmImport1::showTransfer() {
    ChildWindow* target = opener();
    std::string words = text(Text::importNoTarget);
    if (const auto* window = dynamic_cast<const ZoneWindow*>(target)) {
        const std::string zones = window->selectedZoneNames();
        words = zones.empty() ? filledIn(text(Text::importNoZone), {window->plainTitle()})
                              : filledIn(text(Text::importTarget), {window->plainTitle(), zones});
    } else if (target != nullptr) {
        words =
            filledIn(text(Text::importTarget),
                     {target->caption(), text(mode_ == cooling ? Text::cooling : Text::heating)});
    }
    control("lblTransferTarget").setCaption(std::move(words));
    control("cmdImport(4)").setEnabled(target != nullptr);
    const bool hours = loads_.peakDays.has_value();
    element("optDesignDay", 1).setEnabled(hours);
    if (!hours) preselectEvenDay();
    // Without load factors there is nothing to look at.
    for (const Mode m : modes)
        control(elementName("lblNotLookedAt", m)).setVisible(!lookedAt_[m] && !fromHours());
}

void frmImport1::preselectEvenDay() {
    element("optDesignDay", 0).setChecked(true);
    element("optDesignDay", 1).setChecked(false);
}

bool frmImport1::fromHours() const {
    return loads_.peakDays && control("optDesignDay(1)").checked();
}

DayLoads frmImport1::dayOf(Mode mode) const {
    if (fromHours()) return (*loads_.peakDays)[mode];
    return designDay(loads_.years[mode].peakMax / btuPerMBtu,
                     limitedLoadFactor(main().import1TransferPLFm[mode]), peakBlockOf(mode));
}

double frmImport1::hoursOf(Mode mode) const {
    const MonthlyLoads& year = loads_.years[mode];
    return fromHours() ? hoursOfDay((*loads_.peakDays)[mode], year.yearTotal) : year.eqvHours;
}

void frmImport1::cmdModify_Click() {
    ChildWindow* target = opener();
    nameStep(caption());
    if (auto* window = dynamic_cast<ZoneWindow*>(target))
        TransferValuesFromImport1ToLoadsModule(*window);
    else if (auto* calculator = dynamic_cast<frmEqvHoursCalc*>(target))
        TransferValuesFromImport1ToCalc(*calculator, mode_);
}

void frmImport1::TransferValuesFromImport1ToLoadsModule(ZoneWindow& window) {
    if (window.selectedZone() < 0) return;
    ByMode<ZoneImport> imports;
    // Hours that are too many stop the transfer before anything is written.
    for (const Mode m : modes) imports[m] = zoneImportOf(dayOf(m), hoursOf(m));
    if (!fromHours())
        for (double& factor : main().import1TransferPLFm) factor = limitedLoadFactor(factor);
    window.changeSelectedZones([&](Zone& zone) {
        for (const Mode m : modes) putInto(zone, m, imports[m]);
    });
}

void frmImport1::TransferValuesFromImport1ToCalc(frmEqvHoursCalc& calculator, Mode mode) {
    const MonthlyLoads& year = loads_.years[mode];
    calculator.TransferValuesFromImport1ToCalc(year.totalLoads, year.peakMax / btuPerMBtu,
                                               year.eqvHours);
}

void installImporter(Varnmain& main) {
    const auto kept = std::make_shared<KeptImport>();
    main.setCommand("mnuMonthlyLoadsImport", CommandNeeds::nothing, [&main, kept] {
        ChildWindow* open = main.find("frmImport1");
        if (open == nullptr) {
            auto window = std::make_unique<frmImport1>(main, kept);
            open = window.get();
            main.open(std::move(window));
        } else {
            main.activate(*open);
        }
        static_cast<frmImport1*>(open)->Import1_Click({}, 0);
    });
}

}  // namespace varnholt
