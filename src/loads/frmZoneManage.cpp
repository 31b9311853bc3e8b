// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/frmZoneManage.h"

#include <algorithm>
#include <utility>

#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "catalogue/pump_selection.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/modLoads/progress.h"

namespace varnholt {
namespace {

constexpr ZoneWindowKind zoneManager{.formName = "frmZoneManage",
                                     .windowExists = &Varnmain::frmZoneManageWindowExists,
                                     .titleText = Text::zoneManagerTitle,
                                     .pumpNameText = Text::pumpName,
                                     .hoursText = Text::annualFullLoadHours,
                                     .listsZones = true,
                                     .linkLight = 0,
                                     .firstUnits = "1"};

void append(std::string& list, const std::string& entry) {
    if (!list.empty()) list += ", ";
    list += entry;
}

}  // namespace

frmZoneManage::frmZoneManage(Varnmain& main) : ZoneWindow(zoneManager, main) {
    addSummary();
    hookListCommands();
}

void frmZoneManage::hookListCommands() {
    onClick("LOCopyCommand", [this] { LOCopyCommand_Click(); });
    onClick("LORemoveCommand", [this] { LORemoveCommand_Click(); });
    onClick("LORenumberCommand", [this] { LORenumberCommand_Click(); });
    onClick("LOSummaryCommand", [this] { LOSummaryCommand_Click(); });
    onClick("LOReturnFromSummaryCommand", [this] { LOReturnFromSummaryCommand_Click(); });
    onClick("LOAutoSelectCommand", [this] { LOAutoSelectCommand_Click(); });
    onKey("LOZoneList", [this](const std::string& key) {
        if (key == "Ctrl+V") pasteFromClipboard();
    });
    onClick("LOAutoSelectAllCommand", [this] { LOAutoSelectAllCommand_Click(); });
}

/// The summary suspends the commands that add zones, and this is one of them.
void frmZoneManage::pasteFromClipboard() {
    if (!control("LONewCommand").enabled()) return;
    nameStep(text(Text::pasteZones));
    const PastedBlock block = readBlock(platform().clipboard(), platform().decimalMark());
    const PastedZones pasted = pasteZones(block);
    if (pasted.zones == 0) return platform().tell(text(Text::noZonesToPaste));
    std::string told = filledIn(text(Text::zonesPasted), {std::to_string(pasted.zones)});
    if (pasted.refused > 0)
        told += " " + filledIn(text(Text::zoneCellsRefused), {std::to_string(pasted.refused)});
    platform().tell(told);
}

std::string frmZoneManage::zoneFrameCaption(const Zone& zone) const {
    return text(Text::loadsAndHeatPumpOf) + " " + zone.name;
}

MiniPump frmZoneManage::evaluated(const pump& model, std::int16_t units, const Zone& zone) const {
    return evaluatePump(model, units, zone.gains, zone.pump, evaluationConditions());
}

void frmZoneManage::LOCopyCommand_Click() {
    const Zone* selected = shownZone();
    if (selected == nullptr) return;
    Zone copy = *selected;
    copy.name = nameOfZone(ZoneList().size() + 1);
    addZone(std::move(copy));
}

/// Later zones keep their names, so that numbers may have gaps.
void frmZoneManage::LORemoveCommand_Click() {
    const int position = selectedZone();
    if (shownZone() == nullptr) return;
    nameStep(text(Text::removeZone) + " " + shownZone()->name);
    zones().erase(static_cast<std::size_t>(position));
    if (ZoneList().empty()) {
        document_.zoneCount = 0;
        forgetZoneFile();
        return showZones(-1);
    }
    showZones(std::min(position, static_cast<int>(ZoneList().size()) - 1));
    markChanged();
}

void frmZoneManage::LORenumberCommand_Click() {
    for (std::size_t i = 0; i < ZoneList().size(); ++i) zones().edit(i).name = nameOfZone(i + 1);
    document_.zoneCount = zoneNumber();
    showZones(0);
    markChanged();
}

bool frmZoneManage::autoSelect(std::size_t position) {
    const Zone& zone = ZoneList()[position];
    const auto models = catalogue.models(activeSlot);
    try {
        MiniPump pump = autoSelectPump(models, zone.gains, zone.pump, evaluationConditions());
        if (!(pump == zone.pump)) zones().edit(position).pump = std::move(pump);
    } catch (const RunTimeError& error) {
        // The subscript of no model, unless the series is too long to be searched at all.
        if (error.number() != 9 || models.size() > selectableModels) throw;
        return false;
    }
    markChanged();
    return true;
}

void frmZoneManage::LOAutoSelectCommand_Click() {
    const Zone* zone = shownZone();
    if (zone == nullptr) return;
    if (autoSelect(static_cast<std::size_t>(selectedZone())))
        displayZone();
    else
        show(MessageIcon::exclamation, text(Text::noPumpForZone) + "\n\n" + zone->name);
}

void frmZoneManage::LOAutoSelectAllCommand_Click() {
    std::string without;
    attempt([&] {
        Progress progress(platform(), text(Text::selectingPumps), ZoneList().size());
        for (std::size_t i = 0; i < ZoneList().size(); ++i) {
            if (!autoSelect(i)) append(without, ZoneList()[i].name);
            progress.tell(i + 1);
        }
        if (without.empty())
            platform().tell(
                filledIn(text(Text::pumpsSelected), {std::to_string(ZoneList().size())}));
    });
    showSelectedPumps();
    if (control("LOSummaryPicture").visible()) control("LOAutoSelectAllCommand").setEnabled(false);
    if (!without.empty()) tellZonesWithoutPump(without);
}

void frmZoneManage::tellZonesWithoutPump(const std::string& zones) {
    show(MessageIcon::exclamation, text(Text::noPumpForZones) + "\n\n" + zones);
}

/// After pumps of many zones have changed: the zone on display and the totals.
void frmZoneManage::showSelectedPumps() {
    displayZone();
    rebuildSummary();
}

/// Each catalogue pump is selected again from its own series, at the load temperatures that it has.
void frmZoneManage::LOUpdatePumpsCommand_Click() {
    std::string without;
    attempt([&] {
        Progress progress(platform(), text(Text::updatingPumps), ZoneList().size());
        for (std::size_t i = 0; i < ZoneList().size(); ++i) {
            if (ZoneList()[i].pump.customPump != 1) updatePump(i, without);
            progress.tell(i + 1);
        }
    });
    restoreActiveSeries(activeSlot);
    showSelectedPumps();
    if (!without.empty()) tellZonesWithoutPump(without);
}

void frmZoneManage::updatePump(std::size_t position, std::string& zonesWithoutPump) {
    const Zone& zone = ZoneList()[position];
    switch (loadSeriesOf(zone.pump, activeSlot)) {
        case ZoneSeries::unlisted:
            return tellSeriesMissing(zone);
        case ZoneSeries::unreadable:
            return;
        case ZoneSeries::loaded:
            break;
    }
    const RaisedFlag update(updating);
    carryLoadSide(zone.pump);
    if (!autoSelect(position)) append(zonesWithoutPump, ZoneList()[position].name);
}

}  // namespace varnholt
