// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "frame/design_document.h"
#include "loads/zone.h"

namespace varnholt {

class LoadsWindow;

/// A design with its private copy of the loads and, while it is linked, the loads window that they
/// come from. While linked the loads window wins: its zones replace the design's.
class LinkedDesign : public DesignDocument {
 public:
    LinkedDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot);

    /// "frmZoneManage", "frmAvgBlock", or empty without a link.
    std::string linkType;
    /// Whether the project's file can tell of a link at all; projects of old versions cannot.
    bool linkIsStored = true;
    /// The linked loads window; null without a link, and from the moment that it closes.
    LoadsWindow* LoadsHome = nullptr;

    // The design's own copy of the loads. It outlives the link.
    std::vector<Zone> ZoneList;
    /// As a project file holds it: it may be more than the zones at hand while a project's zone
    /// file is missing.
    std::int16_t zoneNumber = 0;
    std::int16_t zoneCount() const { return zoneNumber; }
    /// Manufacturer's and series' name joined.
    std::string activeSeries;
    /// Zone file's name; empty without one.
    std::string workingZoneFile;
    std::string workingZoneDirectory;
    bool workingFileCheck = false;
    /// The last save of the zone file was cancelled.
    bool zoneSaveCancelled = false;

    // Design temperatures and flows, in degF, gpm and gpm per ton.
    ByMode<double> inletTemp{85, 50};
    ByMode<double> inletLoadAirTemp{67, 70};
    ByMode<double> inletLoadWaterTemp{55, 100};
    ByMode<double> minflowRate{2.8, 4.2};
    double flowRate = 3;

    /// Copies zones, series, flow and temperatures from the linked loads window when its zones
    /// differ from the design's, then its project data the other way. Does nothing when unlinked.
    void TransferLoadsVariablesIn();
    /// Copies the design's zones, series, flow and temperatures into the linked loads window.
    void TransferLoadsVariablesOut();

    /// The transfer has replaced the loads: the design shows the temperatures and the flow that
    /// came along and recomputes its roll-up. The results are already marked stale.
    virtual void loadsChanged() = 0;
    /// Whether the design's method uses the zones' hours and days a week.
    virtual bool usesHoursAndDays() const { return true; }

    /// A design temperature or the flow was changed by the user: the linked loads window takes it.
    void passTemperature(Mode mode);
    void passFlow();
    /// The field of a temperature or the flow was left: the linked loads window looks its pumps up
    /// again, unless they are already being selected.
    void refreshLoadsPumps();

    /// To be called by MetricCheck_Click before it rewrites the window. A linked loads window in
    /// the other units follows when its caption names this design; otherwise this design's check
    /// box goes back to the loads window's units.
    void switchLinkedUnits();

    /// A loads window in changed state hands its zones over when the design comes to the front.
    void activated() override;

    /// The caption's part behind its first "-", trimmed; the whole caption without one.
    std::string projectCaption() const;

    /// Shows the link light that goes with `linkType`, or the one for no link.
    void showLinkLight();

    /// The window goes: its link ends.
    void unloaded() override;

 protected:
    /// Adds `imgLinkLight(0)`, `imgLinkLight(8)` and `imgLinkLight(6)` where they stand in the
    /// reading order.
    void addLinkLights();

 private:
    void registerLoadsValues();

    bool transferZones();
    bool blinkLight();
    void passProjectData();

    bool transferring_ = false;
    bool valuePassed_ = false;
};

}  // namespace varnholt
