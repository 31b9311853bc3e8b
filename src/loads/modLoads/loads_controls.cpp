// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the loads windows, in their reading order; fields stand with their frames.
#include <string>

#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/screen_reader.h"
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
    {"LONewCommand", Text::newZone, Text::newZoneTip, false},
    {"LOCopyCommand", Text::copyZone, Text::copyZoneTip, true},
    {"LORemoveCommand", Text::removeZone, Text::removeZoneTip, true},
    {"LORenumberCommand", Text::renumberZones, Text::renumberZonesTip, true},
    {"LOClearCommand", Text::clearZones, Text::clearZonesTip, false},
    {"LOSummaryCommand", Text::showSummary, Text::showSummaryTip, true},
    {"LOOpenCommand", Text::openZones, Text::openZonesTip, false},
    {"LOSaveCommand", Text::saveZones, Text::saveZonesTip, false},
    {"LOPrintCommand", Text::printZones, Text::printTip, false},
    {"LOImportCommand", Text::importLoads, Text::importLoadsTip, false},
    {"LOAutoSelectAllCommand", Text::autoSelectAll, Text::autoSelectAllTip, true},
    {"LOUpdatePumpsCommand", Text::updatePumps, Text::updatePumpsTip, false},
};

}  // namespace

void ZoneWindow::addControls() {
    addCommandBar();
    addNotice();
    add("tabLoads", ControlKind::tabs)
        .setItems({text(Text::zonesPage), text(Text::pumpsHeading)})
        .setIndex(0);
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
    add("MetricCheck", ControlKind::check, Text::loadsMetricSwitch);
    for (const std::size_t light : {0U, 8U, 6U})
        add(elementName("imgLinkLight", light), ControlKind::image).setVisible(light == 6);
    add("LOWorkingZoneLabel", ControlKind::label);
}

void ZoneWindow::addZonePanel() {
    add("LOZoneList", ControlKind::list).multipleRows().setAccessibleName(text(Text::zonesPage));
    add("LOZoneFrame", ControlKind::frame).setVisible(false);
    addLoadsFrame();
    addSpecificationsFrame();
    add("LOSelectCommand", ControlKind::button, Text::selectPump).in("LOZoneFrame");
    if (kind_.listsZones)
        add("LOAutoSelectCommand", ControlKind::button, Text::autoSelectPump).in("LOZoneFrame");
    add("LODetailsCommand", ControlKind::button, Text::pumpDetails).in("LOZoneFrame");
    add("LOClearPumpsCommand", ControlKind::button, Text::clearPump)
        .in("LOZoneFrame")
        .setSpokenName(text(Text::clearPumpTold));
    add("LOCustomPumpCheck", ControlKind::check, Text::customPump).in("LOZoneFrame");
    addSelectFrame();
    addDetailsFrame();
}

void ZoneWindow::addSelectFrame() {
    const std::string frame = "LOSelectFrame";
    add(frame, ControlKind::frame, Text::heatPumpSpecifications)
        .in("LOZoneFrame")
        .setVisible(false);
    add("LOMfgLabel", ControlKind::label, Text::manufacturer).in(frame);
    add("LOMfgCombo", ControlKind::combo).captionedBy("LOMfgLabel").in(frame);
    add("LOSeriesLabel", ControlKind::label, Text::series).in(frame);
    add("LOSeriesCombo", ControlKind::combo).captionedBy("LOSeriesLabel").in(frame);
    add("LOPumpNameComboLabel", ControlKind::label, Text::model).in(frame);
    add("LOPumpNameCombo", ControlKind::combo).captionedBy("LOPumpNameComboLabel").in(frame);
    add("LONumberOfUnitsLabel(0)", ControlKind::label, Text::numberOfUnits).in(frame);
    add("LONumberOfUnitsText(0)", ControlKind::text)
        .captionedBy("LONumberOfUnitsLabel(0)")
        .in(frame)
        .setText(kind_.firstUnits);
    add("LOSelectPumpCommand", ControlKind::button, Text::takeSelectedPump).in(frame);
    add("LOCancelCommand", ControlKind::button, Text::cancelSelection).in(frame);
}

void ZoneWindow::addDetailsFrame() {
    const std::string frame = "LODetailsFrame";
    add(frame, ControlKind::frame, Text::heatPumpDetails).in("LOZoneFrame").setVisible(false);
    constexpr int captionTexts[] = {Text::manufacturer, Text::series, Text::pumpType};
    for (std::size_t i = 0; i < 3; ++i) {
        add(elementName("LODetailsLabel", i), ControlKind::label, captionTexts[i]).in(frame);
        add(elementName("LODetailsTextLabel", i), ControlKind::label).in(frame);
    }
    addLoadSideFrame("LOInletAirFrame", Text::loadSideAir, 0);
    addLoadSideFrame("LOInletWaterFrame", Text::loadSideWater, 2);
    add("LONominalFlowLabel", ControlKind::label, Text::nominalFlow).in(frame);
    add("LONominalFlowText", ControlKind::text)
        .captionedBy("LONominalFlowLabel")
        .unitsIn("LONominalFlowUnitLabel")
        .in(frame)
        .setLocked(true);
    add("LONominalFlowUnitLabel", ControlKind::label).in(frame);
    add("LOReturnCommand", ControlKind::button, Text::returnToZone)
        .in(frame)
        .setSpokenName(text(Text::returnToZone) + ", " + text(Text::heatPumpDetails));
}

void ZoneWindow::addHeatPumpTab() {
    addConditionsFrame();
    addCatalogueFrame();
}

void ZoneWindow::addCatalogueFrame() {
    const std::string frame = "HPCatalogueFrame";
    add(frame, ControlKind::frame, Text::heatPumpCatalogue);
    add("HPManufacturerLabel", ControlKind::label, Text::manufacturer).in(frame);
    add("HPManufacturerCombo", ControlKind::combo).captionedBy("HPManufacturerLabel").in(frame);
    add("HPSeriesLabel", ControlKind::label, Text::series).in(frame);
    add("HPSeriesCombo", ControlKind::combo).captionedBy("HPSeriesLabel").in(frame);
    add("HPPumpListLabel", ControlKind::label, Text::pumpsOfSeries).in(frame);
    add("HPPumpList", ControlKind::list).captionedBy("HPPumpListLabel").in(frame);
    add("LOPumpChart", ControlKind::image, Text::pumpChart).in(frame);
}

}  // namespace varnholt
