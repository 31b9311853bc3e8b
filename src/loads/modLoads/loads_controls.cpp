// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the loads windows, in their reading order; fields stand with their frames.
#include <string>

#include "loads/modLoads/zone_window.h"

namespace varnholt {
namespace {

struct CommandRow {
    const char* name;
    int captionText;
    int tipText;
    bool ofListOnly;  ///< makes sense where there are several zones
};

constexpr CommandRow commandBar[] = {
    {"LONewCommand", 2950, 2801, false},          {"LOCopyCommand", 2951, 2802, true},
    {"LORemoveCommand", 2952, 2803, true},        {"LORenumberCommand", 2953, 2804, true},
    {"LOClearCommand", 2954, 2805, false},        {"LOSummaryCommand", 2955, 2806, true},
    {"LOOpenCommand", 2956, 2807, false},         {"LOSaveCommand", 2957, 2808, false},
    {"LOPrintCommand", 2958, 1010, false},        {"LOImportCommand", 2959, 1501, false},
    {"LOAutoSelectAllCommand", 2960, 2809, true}, {"LOUpdatePumpsCommand", 2961, 2810, false},
};

}  // namespace

void ZoneWindow::addControls() {
    addCommandBar();
    addNotice();
    add("tabLoads", ControlKind::tabs).setItems({text(2811), text(1012)}).setIndex(0);
    addZonePanel();
    addHeatPumpTab();
}

void ZoneWindow::addCommandBar() {
    for (const CommandRow& row : commandBar)
        if (kind_.listsZones || !row.ofListOnly)
            add(row.name, ControlKind::button, row.captionText)
                .setTooltip(text(row.tipText))
                .setEnabled(false);
    control("LONewCommand").setEnabled(true);
    control("LOOpenCommand").setEnabled(true);
    add("MetricCheck", ControlKind::check, 2813);
    for (const std::size_t light : {0, 8, 6})
        add(elementName("imgLinkLight", light), ControlKind::image).setVisible(light == 6);
    add("LOWorkingZoneLabel", ControlKind::label);
}

void ZoneWindow::addZonePanel() {
    add("LOZoneList", ControlKind::list).multipleRows();
    add("LOZoneFrame", ControlKind::frame).setVisible(false);
    addLoadsFrame();
    addSpecificationsFrame();
    add("LOSelectCommand", ControlKind::button, 2835).in("LOZoneFrame");
    if (kind_.listsZones) add("LOAutoSelectCommand", ControlKind::button, 2834).in("LOZoneFrame");
    add("LODetailsCommand", ControlKind::button, 2851).in("LOZoneFrame");
    add("LOClearPumpsCommand", ControlKind::button, 2833).in("LOZoneFrame");
    add("LOCustomPumpCheck", ControlKind::check, 2864).in("LOZoneFrame");
    addSelectFrame();
    addDetailsFrame();
}

void ZoneWindow::addSelectFrame() {
    const std::string frame = "LOSelectFrame";
    add(frame, ControlKind::frame, 2849).in("LOZoneFrame").setVisible(false);
    add("LOMfgLabel", ControlKind::label, 2858).in(frame);
    add("LOMfgCombo", ControlKind::combo).in(frame);
    add("LOSeriesLabel", ControlKind::label, 2859).in(frame);
    add("LOSeriesCombo", ControlKind::combo).in(frame);
    add("LOPumpNameComboLabel", ControlKind::label, 2868).in(frame);
    add("LOPumpNameCombo", ControlKind::combo).in(frame);
    add("LONumberOfUnitsLabel(0)", ControlKind::label, 2852).in(frame);
    add("LONumberOfUnitsText(0)", ControlKind::text).in(frame).setText(kind_.firstUnits);
    add("LOSelectPumpCommand", ControlKind::button, 2853).in(frame);
    add("LOCancelCommand", ControlKind::button, 2861).in(frame);
}

void ZoneWindow::addDetailsFrame() {
    const std::string frame = "LODetailsFrame";
    add(frame, ControlKind::frame, 2867).in("LOZoneFrame").setVisible(false);
    constexpr int captionTexts[] = {2858, 2859, 2860};
    for (std::size_t i = 0; i < 3; ++i) {
        add(elementName("LODetailsLabel", i), ControlKind::label, captionTexts[i]).in(frame);
        add(elementName("LODetailsTextLabel", i), ControlKind::label).in(frame);
    }
    addLoadSideFrame("LOInletAirFrame", 2855, 0);
    addLoadSideFrame("LOInletWaterFrame", 2856, 2);
    add("LONominalFlowLabel", ControlKind::label, 2857).in(frame);
    add("LONominalFlowText", ControlKind::text).in(frame).setLocked(true);
    add("LONominalFlowUnitLabel", ControlKind::label).in(frame);
    add("LOReturnCommand", ControlKind::button, 2854).in(frame);
}

void ZoneWindow::addHeatPumpTab() {
    addConditionsFrame();
    addCatalogueFrame();
}

void ZoneWindow::addCatalogueFrame() {
    const std::string frame = "HPCatalogueFrame";
    add(frame, ControlKind::frame, 2893);
    add("HPManufacturerLabel", ControlKind::label, 2858).in(frame);
    add("HPManufacturerCombo", ControlKind::combo).in(frame);
    add("HPSeriesLabel", ControlKind::label, 2859).in(frame);
    add("HPSeriesCombo", ControlKind::combo).in(frame);
    add("HPPumpListLabel", ControlKind::label, 2892).in(frame);
    add("HPPumpList", ControlKind::list).in(frame);
    add("LOPumpChart", ControlKind::image, 2947).in(frame);
}

}  // namespace varnholt
