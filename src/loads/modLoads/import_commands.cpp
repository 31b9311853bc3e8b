// SPDX-License-Identifier: GPL-3.0-or-later
// What comes into the zones from outside: simulation files, the importer, the hours calculator.
#include <algorithm>
#include <optional>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "frame/varnmain.h"
#include "loads/import/design_day.h"
#include "loads/import/frmImport1.h"
#include "loads/import/simulation_dialog.h"
#include "loads/import/simulation_file.h"
#include "loads/modLoads/zone_window.h"
#include "tools/frmEqvHoursCalc.h"

namespace varnholt {

/// Changes the zones in the selected rows, as a command of another window or of this one.
void ZoneWindow::changeSelectedZones(const std::function<void(Zone&)>& change) {
    const std::vector<int> rows = control("LOZoneList").selected();
    if (rows.empty()) return;
    touch();
    for (const int row : rows) change(zones().edit(static_cast<std::size_t>(row)));
    displayZone();
    rebuildSummary();
    markChanged();
    refreshLinkedNotices();
}

std::string ZoneWindow::selectedZoneNames() const {
    constexpr std::size_t mostNames = 4;
    const std::vector<int>& rows = control("LOZoneList").selected();
    std::string names;
    for (std::size_t i = 0; i < std::min(rows.size(), mostNames); ++i)
        names += (names.empty() ? "" : ", ") + ZoneList()[static_cast<std::size_t>(rows[i])].name;
    return rows.size() > mostNames ? names + ", ..." : names;
}

/// The importer shows what has been read too, when it is open.
void ZoneWindow::LOImportCommand_Click() {
    if (!control("LOPrintCommand").enabled()) return;
    const std::optional<std::string> path = platform().chooseFile(simulationDialog(main()));
    if (!path) return;
    const SimulationFileType type = simulationFileType(*path);
    if (type == SimulationFileType::none) return tellNoSimulation(main(), *path);
    const ByMode<MonthlyLoads> years = heatingFirst(readSimulationFile(*path));
    importIntoSelected(years, baseNameOf(*path));
    if (auto* importer = dynamic_cast<frmImport1*>(main().find("frmImport1"))) {
        importer->TransferValuesToImport1(years);
        importer->Import1_Click(baseNameOf(*path), static_cast<std::int16_t>(type));
    }
}

/// The last of the selected zones takes it, and is on display then.
void ZoneWindow::importIntoSelected(const ByMode<MonthlyLoads>& years, const std::string& title) {
    const std::vector<int>& rows = control("LOZoneList").selected();
    if (rows.empty()) throw RunTimeError(9);
    const int row = rows.back();
    Zone imported = ZoneList()[static_cast<std::size_t>(row)];
    importInto(imported, years);
    imported.title = title;
    zones().edit(static_cast<std::size_t>(row)) = std::move(imported);
    selectZone(row);
    rebuildSummary();
    markChanged();
    // One zone, one import.
    if (!kind_.listsZones) control("LOImportCommand").setEnabled(false);
}

void ZoneWindow::LOEqvHoursCommand_Click() {
    main().click("mnuEqvHours");
    auto* calculator = dynamic_cast<frmEqvHoursCalc*>(main().find("frmEqvHoursCalc"));
    if (calculator == nullptr || shownZone() == nullptr) return;
    calculator->startFrom(shownZone()->hours[main().TransferOption == 1 ? heating : cooling]);
    calculator->openedBy({this, [this](const FullLoadHours& found, Mode m) {
                              TransferEqvHourCalcValues(found, m);
                          }});
}

/// The hours calculator's load as the design day of one mode, with its hours and load factor.
void ZoneWindow::TransferEqvHourCalcValues(const FullLoadHours& found, Mode m) {
    const double factor = limitedLoadFactor(found.factor);
    const ZoneImport import =
        zoneImportOf(designDay(found.fullLoad, factor, peakBlockOf(m)), found.hours);
    if (selectedZone() < 0) return;
    main().transferPLFm[m] = factor;
    changeSelectedZones([&](Zone& zone) {
        putInto(zone, m, import);
        zone.pump.plf[m] = factor;
    });
}

}  // namespace varnholt
