// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "loads/modLoads/zone_window.h"

namespace varnholt {

/// The Zone Manager: a building zone by zone, and its totals.
class frmZoneManage : public ZoneWindow {
 public:
    explicit frmZoneManage(Varnmain& main);

    void LOUpdatePumpsCommand_Click() override;

    /// The whole building's loads by time block.
    LoadsChart buildingDayChart() const;
    std::string descriptionOf(const std::string& image) const override;

    /// The summary as a table for elsewhere: heads with their units, and the cells of a line of
    /// `LOZoneSummaryList`; zone, label and mode come first.
    std::vector<std::string> summaryTableHeads() const;
    std::vector<std::string> summaryTableCells(std::size_t line) const;
    /// The zone of such a line.
    static std::size_t zoneOfSummaryLine(std::size_t line) { return line / 2; }

 protected:
    MiniPump evaluated(const pump& model, std::int16_t units, const Zone& zone) const override;
    std::string zoneFrameCaption(const Zone& zone) const override;
    void rebuildSummary() override;

 private:
    void addSummary();
    void addSummaryHeadings();
    void hookListCommands();

    void pasteFromClipboard();
    void LOCopyCommand_Click();
    void LORemoveCommand_Click();
    void LORenumberCommand_Click();
    void LOSummaryCommand_Click();
    void LOReturnFromSummaryCommand_Click();
    void LOAutoSelectCommand_Click();
    void LOAutoSelectAllCommand_Click();

    void showTotals();
    void showSummaryList();
    void showSummaryCaptions();

    /// False when no model fits; the zone is then as it was.
    bool autoSelect(std::size_t position);
    void updatePump(std::size_t position, std::string& zonesWithoutPump);
    void showSelectedPumps();
    void tellZonesWithoutPump(const std::string& zones);
};

}  // namespace varnholt
