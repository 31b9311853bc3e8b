// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "catalogue/pump_catalogue.h"
#include "catalogue/pump_evaluation.h"
#include "frame/child_window.h"
#include "frame/design_document.h"
#include "loads/zone.h"

namespace varnholt {

/// A window that owns a list of zones with the conditions that they are designed for: what a
/// linked design and the project files know of the two loads windows.
class LoadsWindow : public ChildWindow {
 public:
    LoadsWindow(std::string formName, Varnmain& main);

    bool isLoads() const override { return true; }

    /// The zones in use, in the order of `LOZoneList`.
    std::vector<Zone> ZoneList;
    /// Entries of the list.
    std::int16_t zoneNumber = 0;
    /// Takes other zones in place of the window's own and shows them together with the window's
    /// values (series, flow, temperatures, file) as they stand by then. Not a user's change.
    virtual void replaceLoads(const std::vector<Zone>& zones) = 0;

    PumpCatalogue catalogue;
    std::string& activeSeries = catalogue.activeSeries;
    double flowRate = 3;                         ///< source side, gpm per ton
    ByMode<double> inletTemp{85, 50};            ///< entering water, degF
    ByMode<double> inletLoadAirTemp{67, 70};     ///< wet bulb in cooling, dry bulb in heating, degF
    ByMode<double> inletLoadWaterTemp{55, 100};  ///< degF
    DesignConditions designConditions() const;

    /// The zone file's name and folder.
    std::string workingZoneFile, workingZoneDirectory;
    /// Whether the zones have a file on disk.
    bool workingFileCheck = false;
    /// The last save was cancelled.
    bool zoneSaveCancelled = false;
    virtual bool hasUnsavedChanges() const = 0;
    /// Asks whether unsaved changes should be saved, and saves them. False when the user cancels,
    /// or when the save did not succeed.
    virtual bool CheckForSave() = 0;
    /// Asks for the file and writes it. A failure is told, and the changes stay unsaved.
    virtual void LOSaveCommand_Click() = 0;
    /// Reads a zone file without a dialog. False when it could not be read to its end; whatever
    /// could be read is then in the window.
    virtual bool LOOpenZoneFile(const std::string& path) = 0;

    /// Reads the catalogue afresh, loads the active series, fills the lists of the heat pump tab.
    virtual void InitializeHeatPumpLists() = 0;
    /// Shows flow and temperatures after code has changed them.
    virtual void SetFluidsTabbedPaneSwitchVariables() = 0;
    /// Looks the catalogue pumps up again under the design conditions as they are now.
    virtual void LOUpdatePumpsCommand_Click() = 0;
    /// The selection panel is open.
    virtual bool pumpsAreBeingSelected() const = 0;

    /// Number of the design that read from the window last; 0 when unlinked.
    std::int16_t designLinkID = 0;
    /// Hands the loads to that design.
    void TransferCall();
    /// Set by a link, so that the window needs to know no design.
    std::function<void()> onClosed, onUnitsSwitched;
    /// The window's title without a project's name.
    virtual std::string plainTitle() const = 0;
    virtual void setLight(bool on) = 0;
    /// Whether the linked design has a use for hours and days a week.
    virtual void showHoursAndDays(bool shown) = 0;

    /// Project data of the linked design, for the reports.
    ProjectInformation information;
};

}  // namespace varnholt
