// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "basis/mode.h"
#include "frame/child_window.h"
#include "frame/design_document.h"
#include "loads/zone.h"

namespace varnholt {

/// A window that owns a list of zones with the conditions that they are designed for. (Only what a
/// linked design uses; the windows' author completes it.)
class LoadsWindow : public ChildWindow {
 public:
    using ChildWindow::ChildWindow;
    bool isLoads() const override { return true; }

    std::vector<Zone> ZoneList;
    std::int16_t zoneNumber = 0;
    double flowRate = 3;
    ByMode<double> inletTemp{85, 50};
    ByMode<double> inletLoadAirTemp{67, 70}, inletLoadWaterTemp{55, 100};
    std::string activeSeries, workingZoneFile, workingZoneDirectory;
    bool workingFileCheck = false, zoneSaveCancelled = false;
    std::int16_t designLinkID = 0;
    ProjectInformation information;

    virtual bool hasUnsavedChanges() const = 0;
    virtual bool CheckForSave() = 0;
    virtual void LOSaveCommand_Click() = 0;
    virtual void LOOpenZoneFile(const std::string& path) = 0;
    virtual void InitializeHeatPumpLists() = 0;
    virtual void SetFluidsTabbedPaneSwitchVariables() = 0;
    virtual void LOUpdatePumpsCommand_Click() = 0;
    virtual bool pumpsAreBeingSelected() const = 0;
    virtual void replaceLoads(const std::vector<Zone>& zones) = 0;
    virtual void showHoursAndDays(bool shown) = 0;
    virtual std::string plainTitle() const = 0;
    virtual void setLight(bool on) = 0;

    std::function<void()> onClosed, onUnitsSwitched;
};

}  // namespace varnholt
