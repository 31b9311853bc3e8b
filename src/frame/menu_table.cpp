// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/menu_table.h"

namespace varnholt {
namespace {

// clang-format off
constexpr MenuRow menus[] = {
    {"File", nullptr, 1002, 0},
    {"NewBorehole", "File", 1015, 1300, true},
    {"NewHorizontal", "File", 1016, 1301, true},
    {"NewSurfaceWater", "File", 1017, 1302, true},
    {"mnuFileOpen", "File", 1018, 1303, true},
    {"OpenProject", "File", 1019, 1304, true},
    {"Split1", "File", 0, 0},
    {"mnuFileSave", "File", 1020, 1305},
    {"mnuFileSaveAs", "File", 1021, 1306},
    {"SaveProject", "File", 1022, 1307},
    {"Split2", "File", 0, 0},
    {"mnuFilePrint", "File", 1023, 1308},
    {"mnuFilePrintSetup", "File", 1024, 1309},
    {"mnuFileExit", "File", 1025, 1310},
    {"mnuEdit", nullptr, 1080, 0},
    {"mnuUndo", "mnuEdit", 1081, 1330},
    {"mnuRedo", "mnuEdit", 1082, 1331},
    {"Split5", "mnuEdit", 0, 0},
    {"mnuCut", "mnuEdit", 1083, 1332},
    {"mnuCopy", "mnuEdit", 1084, 1333},
    {"mnuPaste", "mnuEdit", 1085, 1334},
    {"mnuSelectAll", "mnuEdit", 1086, 1335},
    {"mnuView", nullptr, 1003, 0},
    {"mnuShowToolbar", "mnuView", 1026, 1311},
    {"mnuLoads", nullptr, 1004, 0},
    {"mnuAvgBlock", "mnuLoads", 1027, 1312, true},
    {"mnuZoneManage", "mnuLoads", 1028, 1313, true},
    {"Split3", "mnuLoads", 0, 0},
    {"mnuLink", "mnuLoads", 1029, 1314},
    {"mnuUnlink", "mnuLoads", 1032, 1315},
    {"Split4", "mnuLoads", 0, 0},
    {"mnuMonthlyLoadsImport", "mnuLoads", 1033, 1316, true},
    {"mnuHeatPumps", nullptr, 1005, 0},
    {"EditAdd", "mnuHeatPumps", 1034, 1317, true},
    {"mnuTools", nullptr, 1006, 0},
    {"mnuDiffCalc", "mnuTools", 1035, 1318, true},
    {"mnuEqvHours", "mnuTools", 1036, 1319, true},
    {"mnuPumpPowerCalc", "mnuTools", 1037, 1320, true},
    {"mnuUnits", nullptr, 1007, 0},
    {"Metric", "mnuUnits", 1038, 1321},
    {"English", "mnuUnits", 1039, 1322},
    {"Tables", nullptr, 1008, 0},
    {"FluidProperties", "Tables", 1040, 1323, true},
    {"SoilProperties", "Tables", 1041, 1324, true},
    {"PipeProperties", "Tables", 1042, 1325, true},
    {"Conversions", "Tables", 1043, 1326, true},
    {"Window", nullptr, 1009, 0},
    {"Help", nullptr, 1011, 0},
    {"mnuHelp", "Help", 1044, 1327},
    {"mnuAbout", "Help", 1045, 1328, true},
};

constexpr ToolRow tools[] = {
    {"NewBorehole", 1050, false},
    {"NewHorizontal", 1051, false},
    {"NewSurfaceWater", 1052, false},
    {"OpenProject", 1053, true},
    {"SaveProject", 1054, false},
    {"mnuFilePrint", 1055, false},
    {"EditAdd", 1056, true},
    {"Metric", 1057, false},
    {"mnuAvgBlock", 1058, true},
    {"mnuZoneManage", 1059, false},
    {"mnuLink", 1060, true},
    {"mnuUnlink", 1061, false},
};
// clang-format on

}  // namespace

std::span<const MenuRow> menuTable() { return menus; }
std::span<const ToolRow> toolTable() { return tools; }

}  // namespace varnholt
