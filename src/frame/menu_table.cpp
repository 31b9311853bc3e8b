// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/menu_table.h"
#include "forms/text_numbers/help.h"
#include "forms/text_numbers/hints.h"
#include "forms/text_numbers/main.h"

namespace varnholt {
namespace {

// clang-format off
constexpr MenuRow menus[] = {
    {"File", nullptr, Text::fileMenu, 0},
    {"NewBorehole", "File", Text::newBorehole, Text::newBoreholeHint, true},
    {"NewHorizontal", "File", Text::newHorizontal, Text::newHorizontalHint, true},
    {"NewSurfaceWater", "File", Text::newSurfaceWater, Text::newSurfaceWaterHint, true},
    {"mnuFileOpen", "File", Text::open, Text::openHint, true},
    {"OpenProject", "File", Text::openProject, Text::openProjectHint, true},
    {"Split1", "File", 0, 0},
    {"mnuFileSave", "File", Text::save, Text::saveHint},
    {"mnuFileSaveAs", "File", Text::saveAs, Text::saveAsHint},
    {"SaveProject", "File", Text::saveProject, Text::saveProjectHint},
    {"Split2", "File", 0, 0},
    {"mnuFilePrint", "File", Text::printPreview, Text::printPreviewHint},
    {"mnuFilePrintSetup", "File", Text::printSetup, Text::printSetupHint},
    {"mnuFileExit", "File", Text::exitProgram, Text::exitProgramHint},
    {"mnuEdit", nullptr, Text::editMenu, 0},
    {"mnuUndo", "mnuEdit", Text::undo, Text::undoHint},
    {"mnuRedo", "mnuEdit", Text::redo, Text::redoHint},
    {"Split5", "mnuEdit", 0, 0},
    {"mnuCut", "mnuEdit", Text::cut, Text::cutHint},
    {"mnuCopy", "mnuEdit", Text::copy, Text::copyHint},
    {"mnuPaste", "mnuEdit", Text::paste, Text::pasteHint},
    {"mnuSelectAll", "mnuEdit", Text::selectAll, Text::selectAllHint},
    {"mnuView", nullptr, Text::viewMenu, 0},
    {"mnuShowToolbar", "mnuView", Text::showToolbar, Text::showToolbarHint},
    {"mnuLoads", nullptr, Text::loadsMenu, 0},
    {"mnuAvgBlock", "mnuLoads", Text::averageBlock, Text::averageBlockHint, true},
    {"mnuZoneManage", "mnuLoads", Text::zoneManager, Text::zoneManagerHint, true},
    {"Split3", "mnuLoads", 0, 0},
    {"mnuLink", "mnuLoads", Text::linkLoads, Text::linkLoadsHint},
    {"mnuUnlink", "mnuLoads", Text::unlinkLoads, Text::unlinkLoadsHint},
    {"Split4", "mnuLoads", 0, 0},
    {"mnuMonthlyLoadsImport", "mnuLoads", Text::monthlyImporter, Text::monthlyImporterHint, true},
    {"mnuHeatPumps", nullptr, Text::heatPumpsMenu, 0},
    {"EditAdd", "mnuHeatPumps", Text::editPumps, Text::editPumpsHint, true},
    {"mnuTools", nullptr, Text::toolsMenu, 0},
    {"mnuDiffCalc", "mnuTools", Text::diffusivityTool, Text::diffusivityToolHint, true},
    {"mnuEqvHours", "mnuTools", Text::equivalentHoursTool, Text::equivalentHoursToolHint, true},
    {"mnuPumpPowerCalc", "mnuTools", Text::pumpPowerTool, Text::pumpPowerToolHint, true},
    {"mnuUnits", nullptr, Text::unitsMenu, 0},
    {"Metric", "mnuUnits", Text::metricUnits, Text::metricUnitsHint},
    {"English", "mnuUnits", Text::englishUnits, Text::englishUnitsHint},
    {"Tables", nullptr, Text::tablesMenu, 0},
    {"FluidProperties", "Tables", Text::fluidProperties, Text::fluidPropertiesHint, true},
    {"SoilProperties", "Tables", Text::soilProperties, Text::soilPropertiesHint, true},
    {"PipeProperties", "Tables", Text::pipeProperties, Text::pipePropertiesHint, true},
    {"Conversions", "Tables", Text::conversionTables, Text::conversionTablesHint, true},
    {"Window", nullptr, Text::windowMenu, 0},
    {"Help", nullptr, Text::helpMenu, 0},
    {"mnuHelp", "Help", Text::helpContents, Text::helpContentsHint},
    {"mnuWhatsThis", "Help", Text::whatsThis, Text::whatsThisHint},
    {"mnuAbout", "Help", Text::about, Text::aboutHint, true},
};

constexpr ToolRow tools[] = {
    {"NewBorehole",     Text::newBoreholeTip,     false},
    {"NewHorizontal",   Text::newHorizontalTip,   false},
    {"NewSurfaceWater", Text::newSurfaceWaterTip, false},
    {"OpenProject",     Text::openProjectTip,     true},
    {"SaveProject",     Text::saveProjectTip,     false},
    {"mnuFilePrint",    Text::printProjectTip,    false},
    {"EditAdd",         Text::editPumpsTip,       true},
    {"Metric",          Text::switchUnitsTip,     false},
    {"mnuAvgBlock",     Text::averageBlockTip,    true},
    {"mnuZoneManage",   Text::zoneManagerTip,     false},
    {"mnuLink",         Text::linkLoadsTip,       true},
    {"mnuUnlink",       Text::unlinkLoadsTip,     false},
};
// clang-format on

}  // namespace

std::span<const MenuRow> menuTable() { return menus; }
std::span<const ToolRow> toolTable() { return tools; }

}  // namespace varnholt
