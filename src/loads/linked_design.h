// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "basis/mode.h"
#include "frame/design_document.h"
#include "loads/design_project.h"
#include "loads/link.h"

namespace varnholt {

class LoadsWindow;

/// A design with its private copy of the loads and, while it is linked, the loads window that they
/// come from. While linked the loads window wins: its zones replace the design's.
class LinkedDesign : public DesignDocument {
 public:
    /// @param project  the project that the window holds, which outlives the call
    LinkedDesign(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot,
                 DesignProject& project);
    ~LinkedDesign() override;

    const ProjectLoads& loads() const { return common_.loads; }
    const SharedZones& ZoneList() const { return common_.loads.zones; }
    const ProjectConditions& conditions() const { return common_.conditions; }
    /// The linked loads window; null without a link, and from the moment that it closes.
    LoadsWindow* LoadsHome() const;
    const Link* link() const { return link_.get(); }
    /// The last save of the zone file was cancelled.
    bool zoneSaveCancelled = false;
    /// What a design shares with the loads windows under their names; it has no zone on display and
    /// one style of loads alone.
    Zone zoneTemp;
    std::int16_t style = 0;

    /// Makes the design take its loads from the window, and shows it on both sides. No transfer.
    void joinLoads(LoadsWindow& loads);
    /// Ends the link, on both sides; the design keeps its copy of the zones.
    void leaveLoads();
    /// The loads window has ended without a word: there is nothing to show any more.
    void dropLink() { link_.reset(); }

    /// Copies zones, series, flow and temperatures from the linked loads window when its zones
    /// differ from the design's, then its project data the other way. Does nothing when unlinked.
    void TransferLoadsVariablesIn();
    std::string descriptionOf(const std::string& image) const override;
    /// Copies the design's zones, series, flow and temperatures into the linked loads window.
    void TransferLoadsVariablesOut();
    /// The zones come from the window's file; temperatures, flow and series stay the project's,
    /// with which its results were computed.
    void takeZonesOf(LoadsWindow& loads);
    void takeSeries(const std::string& activeSeries) { common_.loads.activeSeries = activeSeries; }
    /// Which file the zones are in: the loads window's, or none any more.
    void takeZoneFile(const ZoneFile& file) { common_.loads.file = file; }
    void forgetZoneFile();
    /// Forgets which window the project was linked with when it was saved.
    void forgetLink() { common_.loads.linkType.clear(); }
    /// The project's zone file that could not be found when it was opened; empty once the design
    /// has been linked.
    const std::string& missingZoneFile() const { return missingZoneFile_; }
    void setMissingZoneFile(const std::string& name) { missingZoneFile_ = name; }

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

    /// Shows the link light that goes with the link, or the one for no link.
    void showLinkLight();

    /// The window goes: its link ends.
    void unloaded() override;

 protected:
    /// Adds `imgLinkLight(0)`, `imgLinkLight(8)` and `imgLinkLight(6)` where they stand in the
    /// reading order.
    void addLinkLights();
    /// The zones that a run would take: while linked the window's, else the design's own.
    const SharedZones& presentZones() const;
    /// Number of the linked loads window, 0 without a link.
    int linkedWindow() const;
    /// After undo and redo: links with the window of that number again, or ends the link. The
    /// window's own values come back by steps of its own, where the step was one of both.
    void restoreLink(int windowNumber);

 private:
    void registerLoadsValues();
    void registerConditions();

    bool loadsDiffer() const;
    bool transferZones();
    void flashLights();
    void passProjectData();

    DesignProject& common_;
    std::unique_ptr<Link> link_;
    std::string missingZoneFile_;
    bool valuePassed_ = false;
};

}  // namespace varnholt
