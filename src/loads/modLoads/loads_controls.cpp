// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the loads windows, in their reading order.
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

/// Captions that change with the units.
struct UnitCaption {
    const char* label;
    int englishText, metricText;
};

constexpr UnitCaption unitCaptions[] = {
    {"LOHeatGainsUnitLabel", 2822, 2823},
    {"LOHeatLossesUnitLabel", 2822, 2823},
    {"LOCapacityLabel", 2842, 2841},
    {"LOCOPLabel", 2845, 2844},
    {"LOFlowRateLabel", 2847, 2846},
    {"LOInletLoadsTempUnitLabel(0)", 2880, 2879},
    {"LOInletLoadsTempUnitLabel(2)", 2880, 2879},
    {"LOInletLoadsFlowUnitLabel(0)", 2874, 2873},
    {"LOInletLoadsFlowUnitLabel(2)", 2878, 2877},
    {"LOInletTempLabel", 2870, 2869},
    {"FLFlowRateUnitLabel", 2876, 2872},
    {"HPLoadInletUnitLabel(0)", 2880, 2879},
    {"HPLoadInletUnitLabel(1)", 2880, 2879},
    {"HPLoadInletUnitLabel(2)", 2880, 2879},
    {"HPLoadInletUnitLabel(3)", 2880, 2879},
};

std::string numbered(const std::string& name, int index) {
    return name + "(" + std::to_string(index) + ")";
}

}  // namespace

void ZoneWindow::addControls() {
    addCommandBar();
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
    for (const int element : {0, 8, 6})
        add(numbered("imgLinkLight", element), ControlKind::image).setVisible(element == 6);
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

void ZoneWindow::addLoadsFrame() {
    const std::string frame = "LODesignLoadsFrame";
    add(frame, ControlKind::frame, 2832).in("LOZoneFrame");
    add("LOZoneReferenceLabel", ControlKind::label, 2850).in(frame);
    add("LOZoneReferenceText", ControlKind::text).in(frame);
    add("LOLoadsLabel(0)", ControlKind::label, 2818).in(frame);
    add("LOTimeOfDayLabel", ControlKind::label, 2819).in(frame);
    add("LOHeatGainsLabel", ControlKind::label, 2820).in(frame);
    add("LOHeatGainsUnitLabel", ControlKind::label).in(frame);
    add("LOHeatLossesLabel", ControlKind::label, 2821).in(frame);
    add("LOHeatLossesUnitLabel", ControlKind::label).in(frame);
    constexpr int timeTexts[] = {2824, 2825, 2826, 2827};
    for (int block = 0; block < 4; ++block) {
        add(numbered("LOTimeLabel", block), ControlKind::label, timeTexts[block]).in(frame);
        add(numbered("LOGainsText", block), ControlKind::text).in(frame);
        add(numbered("LOGainsText", block + 4), ControlKind::text).in(frame);
    }
    add("LOLoadsChart", ControlKind::image, 2945).in(frame);
    add("LOLoadsLabel(1)", ControlKind::label, kind_.hoursText).in(frame);
    add("LOHoursText(0)", ControlKind::text).in(frame);
    add("LOHoursText(1)", ControlKind::text).in(frame);
    add("LODaysperWeekLabel", ControlKind::label, 2830).in(frame);
    add("LODaysperWeekText", ControlKind::text).in(frame);
    add("LOEqvHoursCommand", ControlKind::button, 2831).in(frame);
}

void ZoneWindow::addSpecificationsFrame() {
    const std::string frame = "LOSpecificationsFrame";
    add(frame, ControlKind::frame, 2849).in("LOZoneFrame");
    add("LOPumpNameLabel", ControlKind::label, kind_.pumpNameText).in(frame);
    add("LOPumpNameText", ControlKind::text).in(frame);
    add("LONumberOfUnitsLabel(1)", ControlKind::label, 2838).in(frame);
    add("LONumberOfUnitsText(1)", ControlKind::text).in(frame);
    add("LOCoolingLabel", ControlKind::label, 2839).in(frame);
    add("LOHeatingLabel", ControlKind::label, 2840).in(frame);
    const auto figure = [&](const std::string& name, int captionText) {
        Control& label = add(name + "Label", ControlKind::label).in(frame);
        if (captionText != 0) label.setCaption(text(captionText));
        for (int m = 0; m < 2; ++m) add(numbered(name + "Text", m), ControlKind::text).in(frame);
    };
    figure("LOCapacity", 0);
    figure("LOPower", 2843);
    figure("LOCOP", 0);
    figure("LOFlowRate", 0);
    figure("LOPLF", 2848);
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
    for (int i = 0; i < 3; ++i) {
        add(numbered("LODetailsLabel", i), ControlKind::label, captionTexts[i]).in(frame);
        add(numbered("LODetailsTextLabel", i), ControlKind::label).in(frame);
    }
    addLoadSideFrame("LOInletAirFrame", 2855, 0);
    addLoadSideFrame("LOInletWaterFrame", 2856, 2);
    add("LONominalFlowLabel", ControlKind::label, 2857).in(frame);
    add("LONominalFlowText", ControlKind::text).in(frame).setLocked(true);
    add("LONominalFlowUnitLabel", ControlKind::label).in(frame);
    add("LOReturnCommand", ControlKind::button, 2854).in(frame);
}

/// @param first index of the frame's cooling fields; its heating fields follow
void ZoneWindow::addLoadSideFrame(const std::string& frame, int captionText, int first) {
    add(frame, ControlKind::frame, captionText).in("LODetailsFrame");
    add(numbered("LOInletLoadsModeLabel", first), ControlKind::label, 2839).in(frame);
    add(numbered("LOInletLoadsModeLabel", first + 1), ControlKind::label, 2840).in(frame);
    const auto row = [&](const std::string& name, int rowText) {
        add(numbered(name + "Label", first), ControlKind::label, rowText).in(frame);
        add(numbered(name + "Text", first), ControlKind::text).in(frame);
        add(numbered(name + "Text", first + 1), ControlKind::text).in(frame);
        add(numbered(name + "UnitLabel", first), ControlKind::label).in(frame);
    };
    row("LOInletLoadsTemp", 2889);
    row("LOInletLoadsFlow", 2890);
}

void ZoneWindow::addHeatPumpTab() {
    addConditionsFrame();
    addCatalogueFrame();
}

void ZoneWindow::addConditionsFrame() {
    add("HPDesignFrame", ControlKind::frame, 2891);
    add("HPCoolingLabel", ControlKind::label, 2839).in("HPDesignFrame");
    add("HPHeatingLabel", ControlKind::label, 2840).in("HPDesignFrame");
    add("LOInletTempLabel", ControlKind::label).in("HPDesignFrame");
    add("LOInletTempText(0)", ControlKind::text).in("HPDesignFrame");
    add("LOInletTempText(1)", ControlKind::text).in("HPDesignFrame");
    add("FLFlowRateLabel", ControlKind::label, 2871).in("HPDesignFrame");
    add("FLFlowRateText", ControlKind::text).in("HPDesignFrame");
    add("FLFlowRateUnitLabel", ControlKind::label).in("HPDesignFrame");
    add("HPInletAirFrame", ControlKind::frame, 2885).in("HPDesignFrame");
    add("HPInletWaterFrame", ControlKind::frame, 2886).in("HPDesignFrame");
    constexpr int captionTexts[] = {2888, 2887, 2839, 2840};
    for (int i = 0; i < 4; ++i) {
        const std::string frame = i < 2 ? "HPInletAirFrame" : "HPInletWaterFrame";
        add(numbered("HPLoadInletLabel", i), ControlKind::label, captionTexts[i]).in(frame);
        add(numbered("HPLoadInletText", i), ControlKind::text).in(frame);
        add(numbered("HPLoadInletUnitLabel", i), ControlKind::label).in(frame);
    }
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

void ZoneWindow::showUnitCaptions() {
    const bool metric = units() == UnitSystem::metric;
    for (const UnitCaption& row : unitCaptions)
        control(row.label).setCaption(text(metric ? row.metricText : row.englishText));
}

}  // namespace varnholt
