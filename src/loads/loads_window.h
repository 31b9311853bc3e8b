// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "basis/mode.h"
#include "basis/system/file_source.h"
#include "catalogue/pump_catalogue.h"
#include "frame/child_window.h"
#include "loads/design_project.h"
#include "loads/link.h"
#include "loads/loads_document.h"

namespace varnholt {

/// A window that edits a list of zones with the conditions that they are designed for: what a
/// linked design and the project files know of the two loads windows.
class LoadsWindow : public ChildWindow {
 public:
    LoadsWindow(std::string formName, Varnmain& main);
    ~LoadsWindow() override;

    bool isLoads() const override { return true; }

    const LoadsDocument& document() const { return document_; }
    /// The zones in use, in the order of `LOZoneList`.
    const SharedZones& ZoneList() const { return document_.data.zones; }
    /// Entries of the list.
    std::int16_t zoneNumber() const { return static_cast<std::int16_t>(ZoneList().size()); }
    const DesignConditions& conditions() const { return document_.data.conditions; }
    const std::string& activeSeries() const { return document_.data.activeSeries; }
    const ZoneFile& file() const { return document_.file; }

    // What a linked design hands over. Not a change by the window's user.
    /// Takes a project's zones, series, file, temperatures and flow in place of the window's own.
    virtual void replaceLoads(const DesignProject& project) = 0;
    /// A design temperature, degF, or the design's flow, gpm per ton; shown at once.
    void takeTemperature(Mode mode, double temperature);
    void takeFlow(double flowPerTon);
    void takeSeries(const std::string& activeSeries);
    /// Whose building it is; comments stay the window's own.
    void takeProject(const ProjectInformation& information);

    /// The document is not as its file holds it.
    virtual bool hasUnsavedChanges() const = 0;
    /// Asks whether unsaved changes should be saved, and saves them. False when the user cancels,
    /// or when the save did not succeed.
    virtual bool CheckForSave() = 0;
    /// Asks for the file and writes it. A failure is told, and the changes stay unsaved.
    virtual void LOSaveCommand_Click() = 0;
    /// Reads a zone file without a dialog. False when it could not be read to its end; whatever
    /// could be read is then in the window.
    virtual bool LOOpenZoneFile(const std::string& path) = 0;
    /// The file as this program has read or written it last; nothing without one.
    virtual std::optional<KnownFile> knownFile() const { return std::nullopt; }
    /// Takes zones that were never saved, as a zone file holds them; they count as changed.
    /// @param path  of their file; empty without one
    virtual void takeRecovered(std::string_view /*bytes*/, const std::string& /*path*/,
                               const std::optional<KnownFile>& /*known*/) {}
    /// The last save was cancelled.
    bool zoneSaveCancelled = false;
    /// The person has decided not to open the zone file that was to be read last.
    bool zoneOpenCancelled = false;

    /// Reads the catalogue afresh, loads the active series, fills the lists of the heat pump tab.
    virtual void InitializeHeatPumpLists() = 0;
    /// The catalogue's files have been written: offers what they hold now. The zones stay as they
    /// are, and the active and the browsed series too as long as the catalogue lists them.
    virtual void refreshPumpLists() { InitializeHeatPumpLists(); }
    /// Shows flow and temperatures after code has changed them.
    virtual void SetFluidsTabbedPaneSwitchVariables() = 0;
    /// Looks the catalogue pumps up again under the design conditions as they are now.
    virtual void LOUpdatePumpsCommand_Click() = 0;
    /// The selection panel is open.
    virtual bool pumpsAreBeingSelected() const = 0;

    const LoadsLinks& links() const { return links_; }
    /// Hands the loads to the design that read from the window last.
    void TransferCall();
    /// The window's title without a project's name.
    virtual std::string plainTitle() const = 0;
    virtual void setLight(bool on) = 0;
    /// Whether the linked design has a use for hours and days a week.
    virtual void showHoursAndDays(bool shown) = 0;

    void actionEnds(const UserAction& action) override;
    void stepRecorded() override { refreshLinkedNotices(); }
    /// The designs tell at once that their results are older than the loads.
    void refreshLinkedNotices();
    /// The window goes: its links end.
    void unloaded() override;

 protected:
    /// To be called by MetricCheck_Click: the linked designs go over to the window's units.
    void switchLinkedUnits();
    /// What designs hand over is no change by the window's user.
    bool staysSaved() const override { return !hasUnsavedChanges(); }
    void savedStateReached(bool atSaved) override;

    LoadsDocument document_;

 public:
    /// The window's own copy of the catalogue, behind the document whose series it follows.
    PumpCatalogue catalogue;

 private:
    friend class Link;

    LoadsLinks links_;
};

}  // namespace varnholt
